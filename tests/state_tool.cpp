// Reads and writes the saved state in a home folder, for checks from outside.
//   state_tool rewrite HOME       reads the file and writes it again, a fresh one if it can't
//   state_tool alternate HOME     writes two states in turn, until it is killed

#include <cstdio>
#include <string_view>

#include "state/StateFile.h"

namespace talvex {
namespace {

// All registers of a state hold one number.
SavedState stateOf(double number) {
    SavedState state;
    state.reg.fill(number);
    state.mem.fill(number);
    state.lastX = number;
    return state;
}

int rewrite(StateFile& file) {
    const SavedState state = file.read().value_or(SavedState());
    return file.write(state) ? 1 : 0;
}

int alternate(StateFile& file) {
    file.read();
    for (bool isFirst = true; !file.write(stateOf(isFirst ? 1.0 : 2.0)); isFirst = !isFirst) {
        std::puts("written");
        std::fflush(stdout);
    }
    return 1;
}

}  // namespace
}  // namespace talvex

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    talvex::StateFile file(argv[2]);
    return std::string_view(argv[1]) == "rewrite" ? talvex::rewrite(file) : talvex::alternate(file);
}
