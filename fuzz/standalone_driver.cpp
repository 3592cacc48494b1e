// Feeds a fuzz target with a number of inputs of random bytes, the same each time, where no
// coverage-guided fuzzer drives it.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    constexpr std::size_t kLongestInput = 4096;
    const long runs = argc == 2 ? std::strtol(argv[1], nullptr, 10) : 0;
    if (runs <= 0) {
        std::fprintf(stderr, "usage: %s RUNS\n", argv[0]);
        return 2;  // a test that runs nothing mustn't pass
    }
    std::mt19937_64 random(1);
    std::vector<std::uint8_t> data;
    for (long run = 0; run < runs; ++run) {
        data.resize(random() % (kLongestInput + 1));
        for (std::uint8_t& byte : data) {
            byte = static_cast<std::uint8_t>(random());
        }
        LLVMFuzzerTestOneInput(data.data(), data.size());
    }
    std::printf("%ld inputs done\n", runs);
    return 0;
}
