#include <expat.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <string>
#include <system_error>
#include <type_traits>
#include <utility>

#include "numeric/decimal_text.h"
#include "state/property_list_readers.h"

namespace talvex {
namespace {

constexpr std::string_view kXmlBlanks = " \t\r\n";

// The whole text as a number; nothing if it is none.
template <class Number, class... Format>
std::optional<Number> wholeNumber(std::string_view text, Format... format) {
    Number number{};
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, format...);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
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
    if (const auto integer = wholeNumber<std::int64_t>(number)) {
        return *integer;
    }
    const bool isHex = number.starts_with("0x") || number.starts_with("0X");
    const auto bits = wholeNumber<std::uint64_t>(number.substr(isHex ? 2 : 0), isHex ? 16 : 10);
    return bits ? std::optional<PropertyValue>(std::bit_cast<std::int64_t>(*bits)) : std::nullopt;
}

// Infinities and NaNs are written as words.
std::optional<PropertyValue> realIn(const std::string& text) {
    const std::string_view number = trimmed(text);
    const auto decimal = parseDecimal(number);
    const auto real =
        decimal ? decimal : wholeNumber<double>(number.substr(number.starts_with('+') ? 1 : 0));
    return real ? std::optional<PropertyValue>(*real) : std::nullopt;
}

// The added padding completes a last group that lacks its own.
std::optional<PropertyValue> dataIn(const std::string& text) {
    constexpr std::string_view kAllowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/= \t\r\n";
    if (text.find_first_not_of(kAllowed) != std::string::npos) {
        return std::nullopt;
    }
    const std::string padded = "<plist><data>" + text + "===</data></plist>";
    plist_t node = nullptr;
    plist_from_xml(padded.data(), static_cast<std::uint32_t>(padded.size()), &node);
    return plainValueOf(PlistOwner(node));
}

struct Kind {
    std::string_view name;
    std::optional<PropertyValue> (*read)(const std::string& text);
};

constexpr auto kKinds = std::to_array<Kind>({
    {"data", dataIn},
    {"integer", integerIn},
    {"real", realIn},
    {"string", [](const std::string& text) { return std::optional<PropertyValue>(text); }},
    {"true", [](const std::string& /*text*/) { return std::optional<PropertyValue>(true); }},
    {"false", [](const std::string& /*text*/) { return std::optional<PropertyValue>(false); }},
});

using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)>;

class XmlReader {
  public:
    // Behind a fault it goes on at the next key, unless that may belong to what is nested.
    PropertyListContent read(std::string_view bytes) {
        constexpr int kMostFaults = 100;
        std::string_view head;
        for (int faults = 0; faults < kMostFaults; ++faults) {
            const std::size_t fault = parse(head, bytes);
            if (isAtEnd_) {
                break;
            }
            content_.isWhole = false;
            const std::size_t next = bytes.find("<key>", std::max<std::size_t>(fault, 1));
            if (next == std::string_view::npos || depth_ > dictionaryDepth_ + 1) {
                break;
            }
            bytes.remove_prefix(next);
            head = "<dict>";
        }
        return std::move(content_);
    }

  private:
    // The place where it ended.
    std::size_t parse(std::string_view head, std::string_view bytes) {
        depth_ = dictionaryDepth_ = 0;
        key_.reset();
        const Parser owner(XML_ParserCreate("UTF-8"), &XML_ParserFree);
        parser_ = owner.get();
        XML_SetUserData(parser_, this);
        XML_SetElementHandler(
            parser_, [](void* reader, const char* name, const char**) { self(reader).open(name); },
            [](void* reader, const char*) { self(reader).close(); });
        XML_SetCharacterDataHandler(parser_, [](void* reader, const char* text, int length) {
            self(reader).text_.append(text, static_cast<std::size_t>(length));
        });
        // With a handler for all else nothing stands in for an entity: it comes as it is written.
        XML_SetDefaultHandler(parser_, [](void* reader, const char* text, int) {
            self(reader).isText_ = self(reader).isText_ && *text != '&';
        });
        XML_UseForeignDTD(parser_, XML_TRUE);  // so that an unknown entity is no fault
        XML_Parse(parser_, head.data(), static_cast<int>(head.size()), XML_FALSE);
        XML_Parse(parser_, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
        const auto place = static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_));
        return place - head.size();
    }

    static XmlReader& self(void* reader) { return *static_cast<XmlReader*>(reader); }

    void open(std::string_view name) {
        ++depth_;
        isText_ = depth_ == dictionaryDepth_ + 1;
        if (isText_ && dictionaryDepth_ != 0) {
            element_ = name;
            text_.clear();
        } else if (dictionaryDepth_ == 0 && name == "dict") {
            dictionaryDepth_ = depth_;
        } else if (dictionaryDepth_ == 0 && (name != "plist" || depth_ != 1)) {
            stop(false);
        }
    }

    void close() {
        if (depth_ == dictionaryDepth_) {
            stop(content_.isWhole && !key_);
        } else if (depth_ == dictionaryDepth_ + 1) {
            readElement();
        }
        --depth_;
    }

    void stop(bool isWhole) {
        content_.isWhole = isWhole;
        isAtEnd_ = true;
        XML_StopParser(parser_, XML_FALSE);
    }

    void readElement() {
        if (element_ == "key") {
            content_.isWhole = content_.isWhole && !key_;
            key_ = isText_ ? std::optional(text_) : std::nullopt;
            return;
        }
        const auto* const kind = std::find_if(
            kKinds.begin(), kKinds.end(), [&](const Kind& each) { return each.name == element_; });
        const auto value = isText_ && kind != kKinds.end() ? kind->read(text_) : std::nullopt;
        if (key_ && value) {
            content_.values.insert_or_assign(*key_, *value);
        }
        content_.isWhole = content_.isWhole && key_ && value;
        key_.reset();
    }

    XML_Parser parser_ = nullptr;
    PropertyListContent content_;
    bool isAtEnd_ = false;  // of the dictionary, or there is none
    int depth_ = 0;
    int dictionaryDepth_ = 0;  // once it was opened
    std::optional<std::string> key_;
    std::string element_;
    std::string text_;
    bool isText_ = false;  // there is nothing else in the element
};

}  // namespace

PropertyListContent readXmlPropertyList(std::string_view bytes) { return XmlReader().read(bytes); }

}  // namespace talvex
