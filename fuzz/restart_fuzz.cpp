// A saved state with any values is loaded, shown and used; what the end of the program saves comes
// back as the same at the next start.

#include <array>
#include <fstream>
#include <iterator>

#include "PrivateHome.h"
#include "calculator_actions.h"

namespace talvex {
namespace {

PropertyValue anyValue(FuzzInput& input) {
    switch (input.take<std::uint8_t>() % 6) {
        case 0:
            return input.take<std::uint8_t>() % 2 == 0;
        case 1:
            return std::int64_t{input.take<std::int8_t>()};
        case 2:
            return input.take<std::int64_t>();
        case 3:
            return input.takeNumber();
        case 4: {
            PropertyData bytes(input.take<std::uint8_t>() % 40);
            for (std::uint8_t& byte : bytes) {
                byte = input.take<std::uint8_t>();
            }
            return bytes;
        }
        default: {
            std::string text(input.take<std::uint8_t>() % 10, ' ');
            for (char& character : text) {
                character = static_cast<char>(' ' + input.take<std::uint8_t>() % 90);
            }
            return text;
        }
    }
}

PropertyDictionary anyProperties(FuzzInput& input) {
    constexpr auto kOldKeys = std::to_array<std::string_view>(
        {"windowIsBig", "memKeysWasOpen", "helpFame", "showStatusLines", "unknown"});
    PropertyDictionary properties = propertiesOf({});
    for (int count = input.take<std::uint8_t>() % 24; count > 0; --count) {
        const std::size_t place =
            input.take<std::uint8_t>() % (properties.size() + kOldKeys.size());
        if (place >= properties.size()) {
            properties.insert_or_assign(std::string(kOldKeys.at(place - properties.size())),
                                        anyValue(input));
            continue;
        }
        const auto key = std::next(properties.begin(), static_cast<std::ptrdiff_t>(place));
        if (input.take<std::uint8_t>() % 8 == 0) {
            properties.erase(key);
        } else {
            key->second = anyValue(input);
        }
    }
    return properties;
}

PropertyDictionary savedBy(DYXWindowController& calculator, const PrivateHome& home) {
    calculator.applicationWillTerminate();
    const auto state = StateFile(home.folder()).read();
    require(state.has_value());
    PropertyDictionary properties = propertiesOf(*state);
    properties.erase("inputState");  // each start begins with the same one
    return properties;
}

}  // namespace
}  // namespace talvex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace talvex;
    static const PrivateHome home;
    FuzzInput input({data, size});
    const auto flavour = input.take<std::uint8_t>() % 2 == 0 ? PropertyListFlavour::xml
                                                             : PropertyListFlavour::binary;
    std::ofstream(home.file(), std::ios::binary)
        << writePropertyList(anyProperties(input), flavour);
    HeadlessPlatform platform;
    platform.home = home.folder();
    DYXWindowController first(platform);
    checkInvariants(first);
    while (!input.isAtEnd()) {
        act(first, platform, input);
        checkInvariants(first);
    }
    const PropertyDictionary saved = savedBy(first, home);
    DYXWindowController second(platform);
    checkInvariants(second);
    require(savedBy(second, home) == saved);
    return 0;
}
