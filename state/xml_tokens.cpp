#include "state/xml_tokens.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "display/utf8.h"

namespace talvex {
namespace {

constexpr std::string_view kLiteralStart = "<![CDATA[";

void appendCodePoint(std::string& text, std::uint32_t code) {
    constexpr std::uint32_t kFirstBeyondPlane = 0x10000;
    if (code < kFirstBeyondPlane) {
        appendUtf8(text, static_cast<char16_t>(code));
        return;
    }
    text += static_cast<char>(0xF0 | code >> 18U);
    for (const unsigned shift : {12U, 6U, 0U}) {
        text += static_cast<char>(0x80 | (code >> shift & 0x3FU));
    }
}

// What stands between "&" and ";".
bool appendEntity(std::string& text, std::string_view name) {
    constexpr std::array<std::pair<std::string_view, char>, 5> kNames{
        {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}}};
    for (const auto& [entity, character] : kNames) {
        if (name == entity) {
            text += character;
            return true;
        }
    }
    const bool isHex = name.starts_with("#x");
    if (!name.starts_with('#')) {
        return false;
    }
    const auto code = wholeNumber<std::uint32_t>(name.substr(isHex ? 2 : 1), isHex ? 16 : 10);
    constexpr std::uint32_t kLastCode = 0x10FFFF;
    if (!code || *code == 0 || *code > kLastCode) {
        return false;
    }
    appendCodePoint(text, *code);
    return true;
}

bool appendText(std::string& text, std::string_view raw) {
    while (!raw.empty()) {
        const std::size_t entity = std::min(raw.find('&'), raw.size());
        text += raw.substr(0, entity);
        raw.remove_prefix(entity);
        if (!raw.empty()) {
            const std::size_t end = raw.find(';');
            if (end == std::string_view::npos || !appendEntity(text, raw.substr(1, end - 1))) {
                return false;
            }
            raw.remove_prefix(end + 1);
        }
    }
    return true;
}

}  // namespace

XmlToken XmlTokens::next() {
    while (!rest_.empty()) {
        if (rest_.front() != '<') {
            return text();
        }
        if (rest_.starts_with(kLiteralStart)) {
            return literalText();
        }
        if (!rest_.starts_with("<!") && !rest_.starts_with("<?")) {
            return tag();
        }
        const bool isWhole = rest_.starts_with("<!--") ? skipBehind("-->")
                             : rest_.starts_with("<!") ? skipDocumentType()
                                                       : skipBehind("?>");
        if (!isWhole) {
            return cutOff();
        }
    }
    return {};
}

XmlToken XmlTokens::text() {
    const std::string_view raw = rest_.substr(0, rest_.find('<'));
    XmlToken token{.kind = XmlToken::Kind::text};
    token.isReadable = appendText(token.text, raw);
    rest_.remove_prefix(raw.size());
    return token;
}

XmlToken XmlTokens::literalText() {
    constexpr std::string_view kEnd = "]]>";
    const std::size_t end = rest_.find(kEnd);
    if (end == std::string_view::npos) {
        return cutOff();
    }
    const std::string_view inside = rest_.substr(0, end).substr(kLiteralStart.size());
    rest_.remove_prefix(end + kEnd.size());
    return {.kind = XmlToken::Kind::text, .text = std::string(inside)};
}

XmlToken XmlTokens::tag() {
    const std::size_t end = rest_.find('>');
    if (end == std::string_view::npos) {
        return cutOff();
    }
    std::string_view inside = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    XmlToken token{.kind = XmlToken::Kind::start};
    if (inside.starts_with('/')) {
        token.kind = XmlToken::Kind::end;
        inside.remove_prefix(1);
    } else if (inside.ends_with('/')) {
        token.kind = XmlToken::Kind::empty;
        inside.remove_suffix(1);
    }
    token.name = inside.substr(0, inside.find_first_of(kXmlBlanks));
    return token;
}

bool XmlTokens::skipBehind(std::string_view end) {
    const std::size_t place = rest_.find(end);
    rest_.remove_prefix(place == std::string_view::npos ? 0 : place + end.size());
    return place != std::string_view::npos;
}

// It may hold declarations in brackets.
bool XmlTokens::skipDocumentType() {
    const std::size_t end = rest_.find_first_of("[>");
    return end != std::string_view::npos && (rest_[end] == '>' || skipBehind("]")) &&
           skipBehind(">");
}

XmlToken XmlTokens::cutOff() {
    rest_ = {};
    return {};
}

}  // namespace talvex
