#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// A flat property list: a dictionary of plain values, as XML or in the binary flavour.
namespace talvex {

using PropertyData = std::vector<std::uint8_t>;
using PropertyValue = std::variant<bool, std::int64_t, double, PropertyData, std::string>;
using PropertyDictionary = std::map<std::string, PropertyValue, std::less<>>;

// A bigger file is not taken for one of ours.
inline constexpr std::size_t kLargestPropertyList = 65536;

struct PropertyListContent {
    PropertyDictionary values;
    bool isWhole = true;  // nothing was left out
};

// What can be read in the bytes of a file, of either flavour; nothing if they hold no dictionary.
// Values that are no number, text, boolean or data are left out, and so is what is damaged.
std::optional<PropertyListContent> readPropertyList(std::string_view bytes);

enum class PropertyListFlavour { xml, binary };
std::string writePropertyList(const PropertyDictionary& dictionary, PropertyListFlavour flavour);

// The value as a number, whatever its kind: of data the first 8 bytes as a double, of a text the
// number that it starts with, else 0. As an integer the low 32 bits count.
double numberOf(const PropertyValue& value);
std::int32_t integerOf(const PropertyValue& value);
bool isTrue(const PropertyValue& value);

}  // namespace talvex
