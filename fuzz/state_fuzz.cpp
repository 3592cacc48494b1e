// A saved state of any bytes is read without harm, and what was understood of it is written and
// read again as the same.

#include <cstdint>
#include <string_view>

#include "fuzz_input.h"
#include "state/SavedState.h"
#include "state/ZUStringExtensions.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace talvex;
    const std::string bytes(data, data + size);
    ZUStringExtensions::leadingNumber(bytes);
    // Random bytes are seldom a property list: a whole one with some bytes of the input in places
    // that the input says, or cut.
    FuzzInput input({data, size});
    std::string damaged = writePropertyList(propertiesOf({}), input.take<std::uint8_t>() % 2 == 0
                                                                  ? PropertyListFlavour::xml
                                                                  : PropertyListFlavour::binary);
    for (int count = input.take<std::uint8_t>() % 8; count > 0; --count) {
        damaged[input.take<std::uint16_t>() % damaged.size()] = input.take<char>();
    }
    if (input.take<std::uint8_t>() % 2 == 0) {
        damaged.resize(input.take<std::uint16_t>() % damaged.size());
    }
    for (const std::string_view candidate : {std::string_view(bytes), std::string_view(damaged)}) {
        if (const auto content = readPropertyList(candidate)) {
            const PropertyDictionary understood = propertiesOf(savedStateFrom(content->values));
            require(understood.size() == propertiesOf({}).size());
            for (const auto flavour : {PropertyListFlavour::xml, PropertyListFlavour::binary}) {
                const auto again = readPropertyList(writePropertyList(understood, flavour));
                require(again.has_value() && again->isWhole && again->values == understood);
            }
        }
    }
    return 0;
}
