#pragma once

#include <plist/plist.h>

#include <memory>
#include <optional>
#include <string_view>

#include "state/property_list.h"

// The two flavours of a property list, read from bytes that may be anything. Libraries know the
// syntax; what is nested isn't followed, so that nothing in a file can exhaust the memory or the
// machine's stack. What holds no dictionary gives an empty content that isn't whole.
namespace talvex {

inline constexpr std::string_view kBinaryMagic = "bplist00";

PropertyListContent readXmlPropertyList(std::string_view bytes);
PropertyListContent readBinaryPropertyList(std::string_view bytes);

struct FreePlist {
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
using PlistOwner = std::unique_ptr<void, FreePlist>;

// Nothing if the node is none, or not plain.
std::optional<PropertyValue> plainValueOf(const PlistOwner& node);

}  // namespace talvex
