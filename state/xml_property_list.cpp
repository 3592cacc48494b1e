#include <algorithm>
#include <array>
#include <bit>
#include <string>
#include <utility>

#include "display/utf8.h"
#include "numeric/decimal_text.h"
#include "state/property_list_readers.h"
#include "state/xml_tokens.h"

namespace talvex {
namespace {

// What some editors put ahead of a text.
constexpr std::string_view kMarkOfUtf8 = "\xEF\xBB\xBF";

// The mark ahead tells the order of the bytes.
std::string utf8OfUtf16(std::string_view bytes) {
    const std::size_t high = bytes.starts_with("\xFE\xFF") ? 0 : 1;
    std::string text;
    for (std::size_t place = 2; place + 1 < bytes.size(); place += 2) {
        const auto byte = [&](std::size_t index) {
            return static_cast<unsigned char>(bytes[place + index]);
        };
        appendUtf8(text, static_cast<char16_t>(byte(high) << 8U | byte(1 - high)));
    }
    return text;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t start = text.find_first_not_of(kXmlBlanks);
    return start == std::string_view::npos
               ? std::string_view()
               : text.substr(start, text.find_last_not_of(kXmlBlanks) + 1 - start);
}

std::optional<PropertyValue> integerIn(const std::string& text) {
    std::string_view number = trimmed(text);
    number.remove_prefix(number.starts_with('+') ? 1 : 0);
    if (number.starts_with("0x") || number.starts_with("0X")) {
        const auto bits = wholeNumber<std::uint64_t>(number.substr(2), 16);
        return bits ? std::optional<PropertyValue>(std::bit_cast<std::int64_t>(*bits))
                    : std::nullopt;
    }
    if (const auto integer = wholeNumber<std::int64_t>(number)) {
        return *integer;
    }
    const auto large = wholeNumber<std::uint64_t>(number);
    return large ? std::optional<PropertyValue>(std::bit_cast<std::int64_t>(*large)) : std::nullopt;
}

// Infinities and NaNs are written as words.
std::optional<PropertyValue> realIn(const std::string& text) {
    const std::string_view number = trimmed(text);
    const auto decimal = parseDecimal(number);
    const auto real =
        decimal ? decimal : wholeNumber<double>(number.substr(number.starts_with('+') ? 1 : 0));
    return real ? std::optional<PropertyValue>(*real) : std::nullopt;
}

std::optional<PropertyValue> dataIn(const std::string& text) {
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    PropertyData data;
    std::uint32_t bits = 0;
    unsigned count = 0;
    for (const char character : std::string_view(text).substr(0, text.find('='))) {
        const std::size_t digit = kDigits.find(character);
        if (digit == std::string_view::npos) {
            if (kXmlBlanks.find(character) == std::string_view::npos) {
                return std::nullopt;
            }
            continue;
        }
        bits = bits << 6U | static_cast<std::uint32_t>(digit);
        count += 6;
        if (count >= 8) {
            count -= 8;
            data.push_back(static_cast<std::uint8_t>(bits >> count));
        }
    }
    return data;
}

struct Kind {
    std::string_view name;
    std::optional<PropertyValue> (*read)(const std::string& text);
};

constexpr std::array<Kind, 6> kKinds{{
    {"data", dataIn},
    {"integer", integerIn},
    {"real", realIn},
    {"string", [](const std::string& text) { return std::optional<PropertyValue>(text); }},
    {"true", [](const std::string& /*text*/) { return std::optional<PropertyValue>(true); }},
    {"false", [](const std::string& /*text*/) { return std::optional<PropertyValue>(false); }},
}};

class XmlReader {
  public:
    explicit XmlReader(std::string_view bytes) : tokens_(bytes) {}

    std::optional<PropertyListContent> read() {
        XmlToken token = nextTag();
        if (token.kind == XmlToken::Kind::start && token.name == "plist") {
            token = nextTag();
        }
        const bool isEmpty = token.kind == XmlToken::Kind::empty;
        if (token.name != "dict" || (!isEmpty && token.kind != XmlToken::Kind::start)) {
            return std::nullopt;
        }
        PropertyListContent content;
        if (!isEmpty) {
            readPairs(content);
        }
        return content;
    }

  private:
    XmlToken nextTag() {
        XmlToken token = tokens_.next();
        while (token.kind == XmlToken::Kind::text) {
            token = tokens_.next();
        }
        return token;
    }

    void readPairs(PropertyListContent& content) {
        std::optional<std::string> key;
        for (XmlToken token = nextTag(); token.kind != XmlToken::Kind::end; token = nextTag()) {
            if (token.kind == XmlToken::Kind::nothing) {
                content.isWhole = false;
                return;
            }
            if (token.name == "key") {
                content.isWhole = content.isWhole && !key;
                key = textOf(token);
                continue;
            }
            const std::optional<PropertyValue> value = valueOf(token);
            if (key && value) {
                content.values.insert_or_assign(*key, *value);
            }
            content.isWhole = content.isWhole && key && value;
            key.reset();
        }
        content.isWhole = content.isWhole && !key;
    }

    std::optional<PropertyValue> valueOf(const XmlToken& token) {
        const std::optional<std::string> text = textOf(token);
        const auto* const kind = std::find_if(kKinds.begin(), kKinds.end(), [&](const Kind& each) {
            return each.name == token.name;
        });
        return text && kind != kKinds.end() ? kind->read(*text) : std::nullopt;
    }

    // All up to the end of an element; nothing if there is more in it than text.
    std::optional<std::string> textOf(const XmlToken& element) {
        std::string text;
        bool isText = true;
        for (int depth = element.kind == XmlToken::Kind::empty ? 0 : 1; depth > 0;) {
            const XmlToken token = tokens_.next();
            if (token.kind == XmlToken::Kind::nothing) {
                return std::nullopt;
            }
            isText = isText && token.isReadable &&
                     (token.kind == XmlToken::Kind::text || token.kind == XmlToken::Kind::end);
            depth += token.kind == XmlToken::Kind::start ? 1
                     : token.kind == XmlToken::Kind::end ? -1
                                                         : 0;
            text += token.text;
        }
        return isText ? std::optional(text) : std::nullopt;
    }

    XmlTokens tokens_;
};

}  // namespace

std::optional<PropertyListContent> readXmlPropertyList(std::string_view bytes) {
    if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE")) {
        const std::string text = utf8OfUtf16(bytes);
        return XmlReader(text).read();
    }
    bytes.remove_prefix(bytes.starts_with(kMarkOfUtf8) ? kMarkOfUtf8.size() : 0);
    return XmlReader(bytes).read();
}

}  // namespace talvex
