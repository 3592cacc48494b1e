#include "ui/simple_tex.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/HeadlessPlatform.h"
#include "ui/DYXButton.h"

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
        {u"x^2", u"x2", "-^"},         {u"y^{x}", u"yx", "-^"},  {u"log_{10}", u"log10", "---__"},
        {u"a^{bc", u"abc", "-^^"},     {u"a^{}b", u"ab", "--"},  {u"a^{b_c}", u"abc", "-^_"},
        {u"a^{^b}", u"a^b", "-^^"},    {u"a^", u"a", "-"},       {u"a_", u"a", "-"},
        {u"a^{", u"a", "-"},           {u"x^2y", u"x2y", "-^-"}, {u"x^23", u"x23", "-^-"},
        {u"{x}", u"{x}", "---"},       {u"\\^2", u"\\2", "-^"},  {u"a\\nb", u"a\\nb", "----"},
        {u"plain", u"plain", "-----"}, {u"", u"", ""},
    };
    for (const TexRow& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.source));
        const NSAttributedString title = simpleTexTitle(row.source, body);
        EXPECT_EQ(title.string, row.text);
        EXPECT_EQ(placesOf(title, body), row.places);
        for (const NSTextAttributes& attributes : title.attributes) {
            EXPECT_EQ(attributes.alignment, NSTextAlignment::center);
        }
    }
}

TEST(SimpleTex, MarksStatusTexts) {
    const TexRow rows[]{
        {u"abc", u"abc ", "---^"},
        {u"a^2", u"a2", "-^"},
        {u"a_2", u"a2 ", "-_^"},
        {u"\\^", u"^ ", "-^"},
        {u"a\\_b", u"a_b ", "---^"},
        {u"[\\^]", u"[^] ", "---^"},
        {u"a\\nb", u"a  b ", "----^"},
        {u"a\\", u"a ", "-^"},
        {u"a\\\\b", u"a\\b ", "---^"},
        {u"a^", u"a", "-"},
        {u"a^{bc", u"abc", "-^^"},
        {u"a_{b^c}", u"abc", "-_^"},
        {u"", u" ", "^"},
    };
    const NSFont body{.name = ZUStringExtensions::simpleTexSingleLine(u"a").attributes[0].font.name,
                      .size = 10.0};
    for (const TexRow& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.source));
        const NSAttributedString line = ZUStringExtensions::simpleTexSingleLine(row.source);
        EXPECT_EQ(line.string, row.text);
        EXPECT_EQ(placesOf(line, body), row.places);
        for (const NSTextAttributes& attributes : line.attributes) {
            EXPECT_EQ(attributes.alignment, NSTextAlignment::left);
        }
    }
}

TEST(SimpleTex, IsTheTitleOfAKeyInItsOwnFont) {
    HeadlessPlatform platform;
    DYXButton key({}, u"e^x", {.name = u"Lucida Grande", .size = 12.0}, platform);
    EXPECT_EQ(key.attributedTitle(), simpleTexTitle(u"e^x", key.font()));
    EXPECT_EQ(key.attributedTitle().string, u"ex");
    key.mouseDown();
    ASSERT_EQ(platform.log.size(), 1U);
    EXPECT_EQ(platform.log[0], u"DYXButton: mouseDown : e^x : 1");
}

}  // namespace
}  // namespace talvex
