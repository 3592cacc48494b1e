#include "state/property_list.h"

#include <bit>
#include <memory>
#include <utility>

#include "numeric/integer_conversion.h"
#include "state/DYXDataExtensions.h"
#include "state/ZUStringExtensions.h"
#include "state/property_list_readers.h"

namespace talvex {
namespace {

struct FreeMemory {
    void operator()(char* memory) const { plist_to_xml_free(memory); }
};
using MemoryOwner = std::unique_ptr<char, FreeMemory>;

struct MakeNode {
    plist_t operator()(bool value) const { return plist_new_bool(value ? 1 : 0); }
    plist_t operator()(std::int64_t value) const {
        return plist_new_uint(std::bit_cast<std::uint64_t>(value));
    }
    plist_t operator()(double value) const { return plist_new_real(value); }
    plist_t operator()(const PropertyData& value) const {
        const std::string bytes(value.begin(), value.end());
        return plist_new_data(bytes.data(), bytes.size());
    }
    plist_t operator()(const std::string& value) const { return plist_new_string(value.c_str()); }
};

}  // namespace

std::optional<PropertyValue> plainValueOf(const PlistOwner& node) {
    std::uint64_t length = 0;
    switch (plist_get_node_type(node.get())) {
        case PLIST_BOOLEAN: {
            std::uint8_t value = 0;
            plist_get_bool_val(node.get(), &value);
            return value != 0;
        }
        case PLIST_UINT: {
            std::uint64_t value = 0;
            plist_get_uint_val(node.get(), &value);
            return std::bit_cast<std::int64_t>(value);
        }
        case PLIST_REAL: {
            double value = 0.0;
            plist_get_real_val(node.get(), &value);
            return value;
        }
        case PLIST_DATA: {
            const char* const bytes = plist_get_data_ptr(node.get(), &length);
            return bytes == nullptr ? PropertyData() : PropertyData(bytes, bytes + length);
        }
        case PLIST_STRING: {
            const char* const text = plist_get_string_ptr(node.get(), &length);
            return text == nullptr ? std::string() : std::string(text, length);
        }
        default:
            return std::nullopt;
    }
}

std::optional<PropertyListContent> readPropertyList(std::string_view bytes) {
    if (bytes.size() > kLargestPropertyList) {
        return std::nullopt;
    }
    PropertyListContent content = bytes.starts_with(kBinaryMagic) ? readBinaryPropertyList(bytes)
                                                                  : readXmlPropertyList(bytes);
    return content.isWhole || !content.values.empty() ? std::optional(std::move(content))
                                                      : std::nullopt;
}

std::string writePropertyList(const PropertyDictionary& dictionary, PropertyListFlavour flavour) {
    const PlistOwner root(plist_new_dict());
    for (const auto& [key, value] : dictionary) {
        plist_dict_set_item(root.get(), key.c_str(), std::visit(MakeNode(), value));
    }
    char* bytes = nullptr;
    std::uint32_t size = 0;
    if (flavour == PropertyListFlavour::xml) {
        plist_to_xml(root.get(), &bytes, &size);
    } else {
        plist_to_bin(root.get(), &bytes, &size);
    }
    const MemoryOwner owner(bytes);
    return bytes == nullptr ? std::string() : std::string(bytes, size);
}

double numberOf(const PropertyValue& value) {
    struct Reader {
        double operator()(bool number) const { return number ? 1.0 : 0.0; }
        double operator()(std::int64_t number) const { return static_cast<double>(number); }
        double operator()(double number) const { return number; }
        double operator()(const PropertyData& data) const {
            return DYXDataExtensions::doubleValue(data);
        }
        double operator()(const std::string& text) const {
            return ZUStringExtensions::leadingNumber(text);
        }
    };
    return std::visit(Reader(), value);
}

std::int32_t integerOf(const PropertyValue& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(*integer));
    }
    return toInt32(numberOf(value));
}

bool isTrue(const PropertyValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return text->starts_with("true") || text->starts_with("YES") || numberOf(value) != 0.0;
    }
    return numberOf(value) != 0.0;
}

}  // namespace talvex
