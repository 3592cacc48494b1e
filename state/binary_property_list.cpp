#include <bit>
#include <string>
#include <utility>

#include "display/utf8.h"
#include "state/property_list_readers.h"

namespace talvex {
namespace {

constexpr std::size_t kTrailerSize = 32;
// One object can be the value of many keys.
constexpr std::uint64_t kMostBytesOfObjects = 1 << 20;

// The kinds of object, the upper half of its first byte; the lower half tells its size.
enum Kind : unsigned {
    constant = 0,
    integer = 1,
    real = 2,
    data = 4,
    ascii = 5,
    utf16 = 6,
    dictionary = 13
};

// The flavour ends in a table of the places of its objects, and in a description of the table.
class BinaryReader {
  public:
    explicit BinaryReader(std::string_view bytes) : bytes_(bytes) {
        if (bytes.size() >= kBinaryMagic.size() + kTrailerSize) {
            const std::size_t trailer = bytes.size() - kTrailerSize;
            placeSize_ = number(trailer + 6, 1);
            referenceSize_ = number(trailer + 7, 1);
            count_ = number(trailer + 8, 8);
            top_ = number(trailer + 16, 8);
            table_ = number(trailer + 24, 8);
        }
    }

    [[nodiscard]] std::optional<PropertyListContent> read() const {
        const std::optional<Object> top = objectAt(top_);
        if (!top || top->kind != Kind::dictionary || referenceSize_ == 0 || referenceSize_ > 8 ||
            top->size > (bytes_.size() - top->start) / (2 * referenceSize_)) {
            return std::nullopt;
        }
        PropertyListContent content;
        const auto objectOf = [&](std::uint64_t index) {
            return objectAt(number(top->start + index * referenceSize_, referenceSize_));
        };
        std::uint64_t left = kMostBytesOfObjects;
        for (std::uint64_t pair = 0; pair < top->size; ++pair) {
            const std::optional<Object> key = objectOf(pair);
            const std::optional<Object> value = objectOf(top->size + pair);
            const std::uint64_t size = (key ? key->size : 0) + (value ? value->size : 0);
            if (size > left) {
                content.isWhole = false;
                break;
            }
            left -= size;
            readPair(key, value, content);
        }
        return content;
    }

  private:
    struct Object {
        unsigned kind;
        std::uint64_t start;  // of what follows its first byte and its length
        std::uint64_t size;
    };

    // Nothing where the object or its beginning isn't within the file.
    [[nodiscard]] std::optional<Object> objectAt(std::uint64_t index) const {
        if (placeSize_ == 0 || placeSize_ > 8 || index >= count_ || table_ >= bytes_.size() ||
            index >= (bytes_.size() - table_) / placeSize_) {
            return std::nullopt;
        }
        const std::uint64_t place = number(table_ + index * placeSize_, placeSize_);
        if (place >= bytes_.size()) {
            return std::nullopt;
        }
        constexpr std::uint64_t kLong = 15;
        const auto first = static_cast<unsigned>(number(place, 1));
        Object object{.kind = first >> 4U, .start = place + 1, .size = first & kLong};
        if (object.size == kLong && object.kind >= Kind::data) {
            const std::uint64_t lengthSize = std::uint64_t{1} << (number(object.start, 1) & 3U);
            object.size = number(object.start + 1, lengthSize);
            object.start += 1 + lengthSize;
        }
        const bool isInside = object.start <= bytes_.size() && object.size <= bytes_.size();
        return isInside ? std::optional(object) : std::nullopt;
    }

    void readPair(const std::optional<Object>& key, const std::optional<Object>& value,
                  PropertyListContent& content) const {
        const std::optional<std::string> name = key ? textOf(*key) : std::nullopt;
        std::optional<PropertyValue> plain = value ? valueOf(*value) : std::nullopt;
        if (name && plain) {
            content.values.insert_or_assign(*name, std::move(*plain));
        } else {
            content.isWhole = false;
        }
    }

    [[nodiscard]] std::optional<PropertyValue> valueOf(const Object& object) const {
        constexpr std::uint64_t kFalse = 8;
        constexpr std::uint64_t kTrue = 9;
        if (object.kind == Kind::constant && (object.size == kFalse || object.size == kTrue)) {
            return object.size == kTrue;
        }
        if (object.kind == Kind::integer || object.kind == Kind::real) {
            return numberOf(object);
        }
        if (object.kind == Kind::data && isInside(object.start, object.size)) {
            const std::string_view bytes = bytes_.substr(object.start, object.size);
            return PropertyData(bytes.begin(), bytes.end());
        }
        if (auto text = textOf(object)) {
            return std::move(*text);
        }
        return std::nullopt;
    }

    // The size is a power of 2. Of an integer of 16 bytes the lower 8 count.
    [[nodiscard]] std::optional<PropertyValue> numberOf(const Object& object) const {
        const std::uint64_t size = object.size > 4 ? 0 : std::uint64_t{1} << object.size;
        if (size == 0 || !isInside(object.start, size)) {
            return std::nullopt;
        }
        const std::uint64_t bits = number(object.start, size);
        if (object.kind == Kind::integer) {
            return std::bit_cast<std::int64_t>(bits);
        }
        if (size == sizeof(float)) {
            return double{std::bit_cast<float>(static_cast<std::uint32_t>(bits))};
        }
        return size == sizeof(double) ? std::optional<PropertyValue>(std::bit_cast<double>(bits))
                                      : std::nullopt;
    }

    [[nodiscard]] std::optional<std::string> textOf(const Object& object) const {
        const std::uint64_t unit = object.kind == Kind::utf16 ? 2 : 1;
        if ((object.kind != Kind::ascii && object.kind != Kind::utf16) ||
            !isInside(object.start, object.size * unit)) {
            return std::nullopt;
        }
        std::string text;
        for (std::uint64_t index = 0; index < object.size; ++index) {
            appendUtf8(text, static_cast<char16_t>(number(object.start + index * unit, unit)));
        }
        return text;
    }

    [[nodiscard]] bool isInside(std::uint64_t start, std::uint64_t size) const {
        return start <= bytes_.size() && size <= bytes_.size() - start;
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
    std::uint64_t referenceSize_ = 0;
    std::uint64_t count_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t table_ = 0;
};

}  // namespace

std::optional<PropertyListContent> readBinaryPropertyList(std::string_view bytes) {
    return BinaryReader(bytes).read();
}

}  // namespace talvex
