#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// Text marked up as XML, read from bytes that may be anything.
namespace talvex {

inline constexpr std::string_view kXmlBlanks = " \t\r\n";

// The whole text as a number; nothing if it is none.
template <class Number, class... Format>
std::optional<Number> wholeNumber(std::string_view text, Format... format) {
    Number number{};
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, format...);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

// One step through the text.
struct XmlToken {
    enum class Kind { start, empty, end, text, nothing };
    Kind kind = Kind::nothing;
    std::string_view name = {};  // of an element
    std::string text = {};
    bool isReadable = true;  // of a text: it has no entities but the usual ones
};

class XmlTokens {
  public:
    // The bytes have to outlive the tokens.
    explicit XmlTokens(std::string_view bytes) : rest_(bytes) {}

    // Passes over comments, instructions and the document type. Nothing from the end on, or from
    // where the mark-up is cut off.
    XmlToken next();

  private:
    XmlToken text();
    XmlToken literalText();
    XmlToken tag();
    bool skipBehind(std::string_view end);
    bool skipDocumentType();
    XmlToken cutOff();

    std::string_view rest_;
};

}  // namespace talvex
