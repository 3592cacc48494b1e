#include "ui/simple_tex.h"

#include <gtest/gtest.h>

#include <string>

namespace talvex {
namespace {

using Text = std::u16string;

// A text and, for each character, "^" raised, "_" lowered, "-" on the line, "=" on the line in the
// small font. Raised and lowered characters have to be small, the others not.
struct TexRow {
    Text source, text;
    std::string places;
};

std::string placesOf(const NSAttributedString& string, const NSFont& body) {
    std::string places;
    for (const NSTextAttributes& attributes : string.attributes) {
        const bool isSmall = attributes.font == NSFont{.name = body.name, .size = body.size * 0.75};
        const bool isBody = attributes.font == body;
        if (attributes.superscript == 0) {
            places += isBody ? '-' : '?';
        } else {
            places += !isSmall ? '?' : attributes.superscript == 1 ? '^' : '_';
        }
    }
    return places;
}

TEST(SimpleTex, MarksTheTitlesOfKeys) {
    const NSFont body{.name = u"Body", .size = 12.0};
    const TexRow rows[]{
        {u"y^{x}", u"yx", "-^"}, {u"log_{10}", u"log10", "---__"}, {u"a^{bc", u"abc", "-^^"},
        {u"a^{}b", u"ab", "--"}, {u"a^{b_c}", u"abc", "-^_"},      {u"a^{^b}", u"a^b", "-^^"},
        {u"a^", u"a", "-"},      {u"x^23", u"x23", "-^-"},         {u"{x}", u"{x}", "---"},
        {u"\\^2", u"\\2", "-^"}, {u"a\\nb", u"a\\nb", "----"},     {u"", u"", ""}};
    for (const TexRow& row : rows) {
        const NSAttributedString title = simpleTexTitle(row.source, body);
        EXPECT_EQ(title.string, row.text);
        EXPECT_EQ(placesOf(title, body), row.places) << testing::PrintToString(row.source);
    }
}

TEST(SimpleTex, MarksStatusTexts) {
    const TexRow rows[]{{u"abc", u"abc ", "---^"},   {u"a^2", u"a2", "-^"},
                        {u"a_2", u"a2 ", "-_^"},     {u"\\^", u"^ ", "-^"},
                        {u"[\\^]", u"[^] ", "---^"}, {u"a\\nb", u"a  b ", "----^"},
                        {u"a\\", u"a ", "-^"},       {u"a\\\\b", u"a\\b ", "---^"},
                        {u"a^", u"a", "-"},          {u"a_{b^c}", u"abc", "-_^"}};
    const NSFont body{.name = u"Lucida Grande", .size = 10.0};
    for (const TexRow& row : rows) {
        const NSAttributedString line = ZUStringExtensions::simpleTexSingleLine(row.source);
        EXPECT_EQ(line.string, row.text);
        EXPECT_EQ(placesOf(line, body), row.places) << testing::PrintToString(row.source);
    }
}

}  // namespace
}  // namespace talvex
