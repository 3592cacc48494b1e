// Any series of commands, keys, clicks and choices leaves a calculator that still holds together.

#include "calculator_actions.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    talvex::HeadlessPlatform platform;
    talvex::DYXWindowController calculator(platform);
    talvex::FuzzInput input({data, size});
    while (!input.isAtEnd()) {
        talvex::act(calculator, platform, input);
        talvex::checkInvariants(calculator);
    }
    return 0;
}
