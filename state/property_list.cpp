#include "state/property_list.h"

#include <plist/plist.h>

#include <array>
#include <bit>
#include <cstdlib>
#include <memory>
#include <span>

#include "numeric/integer_conversion.h"
#include "state/DYXDataExtensions.h"
#include "state/ZUStringExtensions.h"

namespace talvex {
namespace {

constexpr std::string_view kBinaryMagic = "bplist00";
constexpr std::size_t kTrailerSize = 32;

struct FreePlist {
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
using PlistOwner = std::unique_ptr<void, FreePlist>;

struct FreeMemory {
    void operator()(char* memory) const { plist_to_xml_free(memory); }
};
using MemoryOwner = std::unique_ptr<char, FreeMemory>;

// The library walks into containers without a limit, and ends the program at a key with a zero
// byte, so that both have to be refused ahead of it. In XML one dictionary is the first, and no
// array is one of ours.
bool isFlatXml(std::string_view bytes) {
    const std::size_t dictionary = bytes.find("<dict");
    return dictionary != std::string_view::npos &&
           bytes.find("<dict", dictionary + 1) == std::string_view::npos &&
           bytes.find("<array") == std::string_view::npos &&
           bytes.find("<!ENTITY") == std::string_view::npos &&
           bytes.find("&#") == std::string_view::npos && bytes.find('\0') == std::string_view::npos;
}

// The binary flavour ends in a table of places of its objects, and a description of the table.
class BinaryObjects {
  public:
    explicit BinaryObjects(std::string_view bytes) : bytes_(bytes) {
        if (bytes.size() >= kBinaryMagic.size() + kTrailerSize) {
            const std::size_t trailer = bytes.size() - kTrailerSize;
            placeSize_ = number(trailer + 6, 1);
            count_ = number(trailer + 8, 8);
            top_ = number(trailer + 16, 8);
            table_ = number(trailer + 24, 8);
        }
    }
    // Only the top object is a container, and that a dictionary of not too many keys.
    [[nodiscard]] bool isFlat() const {
        if (placeSize_ == 0 || placeSize_ > 8 || count_ > bytes_.size() || top_ >= count_ ||
            table_ > bytes_.size() || count_ * placeSize_ > bytes_.size() - table_) {
            return false;
        }
        for (std::uint64_t object = 0; object < count_; ++object) {
            const std::uint64_t place = number(table_ + object * placeSize_, placeSize_);
            if (place >= bytes_.size()) {
                return false;
            }
            const unsigned kind = static_cast<unsigned char>(bytes_[place]) >> 4U;
            constexpr unsigned kArray = 0xA;
            constexpr unsigned kDictionary = 0xD;
            const bool isContainer = kind >= kArray;
            if (isContainer != (object == top_) || (isContainer && kind != kDictionary) ||
                hasZeroInText(place, kind)) {
                return false;
            }
        }
        return count_ <= 2 * kMostProperties + 1;
    }

  private:
    // A text starts with its kind and length; a length of 15 or more stands in a number behind.
    [[nodiscard]] bool hasZeroInText(std::uint64_t place, unsigned kind) const {
        constexpr unsigned kAscii = 5;
        constexpr unsigned kUtf16 = 6;
        if (kind != kAscii && kind != kUtf16) {
            return false;
        }
        constexpr std::uint64_t kLongText = 15;
        std::uint64_t length = number(place, 1) & kLongText;
        std::uint64_t start = place + 1;
        if (length == kLongText) {
            const std::uint64_t size = std::uint64_t{1} << (number(start, 1) & 3U);
            length = number(start + 1, size);
            start += 1 + size;
        }
        const std::uint64_t unit = kind == kAscii ? 1 : 2;
        for (std::uint64_t index = 0; index < length && start + index * unit < bytes_.size();
             ++index) {
            if (number(start + index * unit, unit) == 0) {
                return true;
            }
        }
        return false;
    }
    // Most significant byte first; what lies behind the end counts as 0.
    [[nodiscard]] std::uint64_t number(std::uint64_t place, std::uint64_t size) const {
        std::uint64_t value = 0;
        for (std::uint64_t index = 0; index < size; ++index) {
            const bool isInside = place + index < bytes_.size();
            value =
                value << 8U | (isInside ? static_cast<unsigned char>(bytes_[place + index]) : 0U);
        }
        return value;
    }

    std::string_view bytes_;
    std::uint64_t placeSize_ = 0;
    std::uint64_t count_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t table_ = 0;
};

std::optional<PropertyValue> valueOf(plist_t node) {
    std::uint64_t length = 0;
    switch (plist_get_node_type(node)) {
        case PLIST_BOOLEAN: {
            std::uint8_t value = 0;
            plist_get_bool_val(node, &value);
            return value != 0;
        }
        case PLIST_UINT: {
            std::uint64_t value = 0;
            plist_get_uint_val(node, &value);
            return std::bit_cast<std::int64_t>(value);
        }
        case PLIST_REAL: {
            double value = 0.0;
            plist_get_real_val(node, &value);
            return value;
        }
        case PLIST_DATA: {
            const char* const bytes = plist_get_data_ptr(node, &length);
            return bytes == nullptr ? PropertyData() : PropertyData(bytes, bytes + length);
        }
        case PLIST_STRING: {
            const char* const text = plist_get_string_ptr(node, &length);
            return text == nullptr ? std::string() : std::string(text, length);
        }
        default:
            return std::nullopt;
    }
}

PropertyDictionary dictionaryOf(plist_t node) {
    PropertyDictionary dictionary;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const std::unique_ptr<void, decltype(&std::free)> owner(iterator, &std::free);
    for (std::size_t count = 0; count < kMostProperties; ++count) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator, &key, &item);
        const std::unique_ptr<char, decltype(&std::free)> keyOwner(key, &std::free);
        if (key == nullptr || item == nullptr) {
            break;
        }
        if (auto value = valueOf(item)) {
            dictionary.insert_or_assign(key, std::move(*value));
        }
    }
    return dictionary;
}

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

std::optional<PropertyDictionary> readPropertyList(std::string_view bytes) {
    const bool isBinary = bytes.starts_with(kBinaryMagic);
    if (bytes.size() > kLargestPropertyList ||
        !(isBinary ? BinaryObjects(bytes).isFlat() : isFlatXml(bytes))) {
        return std::nullopt;
    }
    plist_t node = nullptr;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (isBinary) {
        plist_from_bin(bytes.data(), size, &node);
    } else {
        plist_from_xml(bytes.data(), size, &node);
    }
    const PlistOwner owner(node);
    if (node == nullptr || plist_get_node_type(node) != PLIST_DICT) {
        return std::nullopt;
    }
    return dictionaryOf(node);
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
