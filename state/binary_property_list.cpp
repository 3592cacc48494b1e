#include <string>
#include <utility>

#include "state/property_list_readers.h"

namespace talvex {
namespace {

constexpr std::size_t kTrailerSize = 32;
constexpr std::size_t kTopSize = 8;
// One object can be the value of many keys.
constexpr std::uint64_t kMostBytesOfObjects = 1 << 20;

constexpr std::uint64_t kLastPlainKind = 6;
constexpr std::uint64_t kDictionary = 13;

// The flavour ends in a table of the places of its objects, and in a description of the table. The
// library reads one object at a time, which is made the top one: it would go down into containers
// without a limit, and give up everything for one object that it doesn't know.
class BinaryReader {
  public:
    explicit BinaryReader(std::string_view bytes) : bytes_(bytes) {
        if (bytes.size() >= kBinaryMagic.size() + kTrailerSize) {
            const std::size_t trailer = bytes.size() - kTrailerSize;
            placeSize_ = number(trailer + 6, 1);
            referenceSize_ = number(trailer + 7, 1);
            topPlace_ = trailer + 16;
            table_ = number(trailer + 24, 8);
        }
    }

    PropertyListContent read() {
        const Object top = objectAt(placeOf(number(topPlace_, kTopSize)));
        const bool isDictionary = top.kind == kDictionary && placeSize_ - 1 < 8 &&
                                  referenceSize_ - 1 < 8 && top.start <= bytes_.size() &&
                                  top.count <= (bytes_.size() - top.start) / (2 * referenceSize_);
        PropertyListContent content{.values = {}, .isWhole = isDictionary};
        for (std::uint64_t pair = 0; isDictionary && pair < top.count; ++pair) {
            const auto key = valueAt(top.start + pair * referenceSize_);
            auto value = valueAt(top.start + (top.count + pair) * referenceSize_);
            const auto* const name = key ? std::get_if<std::string>(&*key) : nullptr;
            if (name != nullptr && value) {
                content.values.insert_or_assign(*name, std::move(*value));
            } else {
                content.isWhole = false;
            }
        }
        return content;
    }

  private:
    struct Object {
        std::uint64_t kind;
        std::uint64_t start;  // of what follows its first byte and its count
        std::uint64_t count;
    };

    // The upper half of the first byte is the kind, the lower half the count; a count of 15 or more
    // is a number behind it.
    [[nodiscard]] Object objectAt(std::uint64_t place) const {
        constexpr std::uint64_t kLong = 15;
        const std::uint64_t first = number(place, 1);
        Object object{.kind = first >> 4U, .start = place + 1, .count = first & kLong};
        if (object.count == kLong) {
            const std::uint64_t size = std::uint64_t{1} << (number(object.start, 1) & 3U);
            object.count = number(object.start + 1, size);
            object.start += 1 + size;
        }
        return object;
    }

    [[nodiscard]] std::uint64_t placeOf(std::uint64_t object) const {
        const bool isInside = table_ < bytes_.size() && object < bytes_.size();
        return isInside ? number(table_ + object * placeSize_, placeSize_) : bytes_.size();
    }

    [[nodiscard]] std::optional<PropertyValue> valueAt(std::uint64_t reference) {
        const std::uint64_t index = number(reference, referenceSize_);
        const Object object = objectAt(placeOf(index));
        if (object.kind > kLastPlainKind || object.count > left_) {
            return std::nullopt;
        }
        left_ -= object.count;
        for (std::size_t byte = 0; byte < kTopSize; ++byte) {
            bytes_[topPlace_ + byte] = static_cast<char>(index >> 8 * (kTopSize - 1 - byte));
        }
        plist_t node = nullptr;
        plist_from_bin(bytes_.data(), static_cast<std::uint32_t>(bytes_.size()), &node);
        return plainValueOf(PlistOwner(node));
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

    std::string bytes_;
    std::uint64_t placeSize_ = 0;
    std::uint64_t referenceSize_ = 0;
    std::uint64_t topPlace_ = 0;
    std::uint64_t table_ = 0;
    std::uint64_t left_ = kMostBytesOfObjects;
};

}  // namespace

PropertyListContent readBinaryPropertyList(std::string_view bytes) {
    return BinaryReader(bytes).read();
}

}  // namespace talvex
