#include "ui/simple_tex.h"

#include <algorithm>
#include <cstddef>

namespace talvex {
namespace {

constexpr double kSmallFontScale = 0.75;
constexpr NSTextAttributes kHintText{
    .font = {.name = u"Lucida Grande", .size = ZUStringExtensions::kToolTipSize}};

enum class Backslash { isOrdinary, protects };

// Reads the marks of a text from left to right and takes them out as it goes.
class Reader {
  public:
    Reader(std::u16string_view text, const NSTextAttributes& body, Backslash backslash)
        : body_(body), backslash_(backslash) {
        result_.string = text;
        result_.attributes.assign(text.size(), body);
    }

    NSAttributedString read() {
        for (std::size_t place = 0; place < result_.string.size(); ++place) {
            const char16_t character = result_.string[place];
            if (character == u'^' || character == u'_') {
                readMark(place, character == u'^' ? 1 : -1);
            } else if (character == u'\\' && backslash_ == Backslash::protects) {
                readBackslash(place);
            }
        }
        return std::move(result_);
    }

    [[nodiscard]] bool metSuperscript() const { return metSuperscript_; }

  private:
    void remove(std::size_t place) {
        result_.string.erase(place, 1);
        result_.attributes.erase(result_.attributes.begin() + static_cast<std::ptrdiff_t>(place));
    }

    [[nodiscard]] bool isAt(std::size_t place, char16_t character) const {
        return place < result_.string.size() && result_.string[place] == character;
    }

    void readMark(std::size_t place, int superscript) {
        metSuperscript_ = metSuperscript_ || superscript > 0;
        remove(place);
        std::size_t end = place + 1;
        if (isAt(place, u'{')) {
            remove(place);
            const std::size_t brace = result_.string.find(u'}', place);
            end = std::min(brace, result_.string.size());
            if (brace != std::u16string::npos) {
                remove(brace);
            }
        }
        end = std::min(end, result_.string.size());
        for (std::size_t marked = place; marked < end; ++marked) {
            NSTextAttributes& attributes = result_.attributes[marked];
            attributes.superscript = superscript;
            attributes.font.size = body_.font.size * kSmallFontScale;
        }
    }

    void readBackslash(std::size_t place) {
        remove(place);
        if (isAt(place, u'n')) {
            result_.string.replace(place, 1, u"  ");
            result_.attributes.insert(
                result_.attributes.begin() + static_cast<std::ptrdiff_t>(place),
                result_.attributes[place]);
        }
    }

    NSTextAttributes body_;
    Backslash backslash_;
    NSAttributedString result_;
    bool metSuperscript_ = false;
};

}  // namespace

NSAttributedString simpleTexTitle(std::u16string_view text, const NSFont& font) {
    const NSTextAttributes body{.font = font, .alignment = NSTextAlignment::center};
    return Reader(text, body, Backslash::isOrdinary).read();
}

NSAttributedString simpleTexHint(std::u16string_view text) {
    return Reader(text, kHintText, Backslash::protects).read();
}

NSAttributedString ZUStringExtensions::simpleTexSingleLine(std::u16string_view text) {
    NSTextAttributes body = kHintText;
    Reader reader(text, body, Backslash::protects);
    NSAttributedString result = reader.read();
    if (!reader.metSuperscript()) {
        body.superscript = 1;
        body.font.size *= kSmallFontScale;
        result.string += u' ';
        result.attributes.push_back(body);
    }
    return result;
}

}  // namespace talvex
