#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "state/property_list.h"

// The two flavours of a property list, read from bytes that may be anything. Neither follows what
// is nested, so that nothing in a file can exhaust the memory or the machine's stack.
namespace talvex {

inline constexpr std::string_view kBinaryMagic = "bplist00";

std::optional<PropertyListContent> readXmlPropertyList(std::string_view bytes);
std::optional<PropertyListContent> readBinaryPropertyList(std::string_view bytes);

}  // namespace talvex
