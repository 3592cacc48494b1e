#include "keyboard/HotKey.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

namespace talvex {
namespace {

using Text = std::u16string;

constexpr HotKeyState kNothing{};
constexpr HotKeyState kStore{.isStoreArmed = true};
constexpr HotKeyState kRecall{.isRecallArmed = true};
constexpr HotKeyState kShift{.isInverse = true};
constexpr HotKeyState kHex{.isHexInput = true};
constexpr HotKeyState kHexRecall{.isRecallArmed = true, .isHexInput = true};

struct KeyRow {
    char16_t key;
    HotKeyState state;
    Text command;  // empty if no row applies
};

TEST(HotKeys, LeadFromCharacterAndStateToACommand) {
    // Where the state decides, and where a character needs a name.
    const KeyRow rows[]{{u'a', kHex, u"dataN00A"},
                        {u'a', kNothing, u"unitABS "},
                        {u'A', kHex, u"dataN00A"},
                        {u'A', kShift, u"unitABS "},
                        {u'f', kHex, u"dataN00F"},
                        {u'e', kHexRecall, u"dataN00E"},
                        {u'e', kRecall, u"conse   "},
                        {u'c', kHexRecall, u"dataN00C"},
                        {u'c', kRecall, u"consc   "},
                        {u'p', kRecall, u"consPI  "},
                        {u'p', kNothing, u""},
                        {u'3', kNothing, u"dataN003"},
                        {u'3', kRecall, u"memoM003"},
                        {u'3', kStore, u"memoM003"},
                        {u'!', kRecall, u"memoM011"},
                        {u'@', kStore, u"memoM012"},
                        {u'[', kNothing, u""},
                        {u')', kStore, u"memoM010"},
                        {u'+', kStore, u"memoSTO+"},
                        {u'+', kRecall, u"bina+   "},
                        {u'*', kStore, u"memoM018"},
                        {u'/', kStore, u"memoSTO/"},
                        {u'\x1B', kStore, u"memoSTOC"},
                        {u'\x1B', kNothing, u"memoSTOC"},
                        {u'z', kNothing, u"unitZETA"},
                        {u'z', kShift, u""},
                        {u'z', kStore, u""},
                        {u'S', kShift, u"unitGSIN"},
                        {u'\r', kRecall, u"dataENT "},
                        {u'\x03', kNothing, u"dataENT "},
                        {u'\u066B', kNothing, u"data.   "},
                        {u'\t', kNothing, u"dataEEX "},
                        {u'\uF72D', kShift, u"dataEEX "},
                        {u'\uF700', kNothing, u"stacROLU"},
                        {u'\uF702', kNothing, u"stacX<>Y"},
                        {u'\0', kNothing, u""}};
    const HotKeys hotKeys;
    EXPECT_EQ(hotKeys.rows().size(), 85U);
    for (const KeyRow& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.command) + " by " +
                     std::to_string(static_cast<int>(row.key)));
        const HotKey* const found = hotKeys.find(row.key, row.state);
        ASSERT_EQ(found == nullptr, row.command.empty());
        if (found != nullptr) {
            EXPECT_EQ(found->command, commandFromString(row.command));
        }
    }
}

TEST(HotKeys, AreToldInTheMarkUpOfStatusTexts) {
    const std::pair<Text, Text> rows[]{
        {u"dataENT ", u"[\u23CE|\u2324]"},
        {u"unitGSIN", u"[s]"},
        {u"consPI  ", u"[\u2325-p]"},
        {u"memoSTO+", u"[\u2303\u2325-+]"},
        {u"memoSTO*", u"[\u2303\u2325-*]"},
        {u"bina^   ", u"[\\^]"},
        {u"dataN00A", u"[a]"},
        {u"memoSTOC", u"[\u241B]"},
        {u"dataBACK", u"[\u232B]"},
        {u"dataCLR ", u"[\u232B]"},
        {u"dataCLRG", u"[\u2326]"},
        {u"stacROLU", u"[\u2191]"},
        {u"stacROLD", u"[\u2193]"},
        {u"stacX<>Y", u"[\u2190|\u2192]"},
        {u"dataEEX ", u"[\u21E5|\u21DE|\u21DF]"},
        {u"data.   ", u"[\u066B|.|,]"},
        {u"memoM003", u""},
        {u"unitZETA", u""},
        {u"unitERF ", u""},
        {u"datagrouENT ", u""},
        {u"ENT ", u""},
        {u"", u""},
    };
    for (const auto& [command, text] : rows) {
        EXPECT_EQ(HotKeys().hotKeyStringForCommandString(command), text)
            << testing::PrintToString(command);
    }
    const std::pair<std::int32_t, Text> masks[]{
        {0, u"\\_"},        {16, u"\\_"}, {1, u"\u2303\u2325-\\_"},
        {2, u"\u2325-\\_"}, {3, u""},     {4, u"\u21E7-\\_"},
        {8, u"\u2303-\\_"}, {12, u""},    {15, u""},
        {17, u""},          {-1, u""}};
    for (const auto& [mask, text] : masks) {
        EXPECT_EQ(stringForHotKey({.command = {}, .key = u'_', .modifierMask = mask}), text)
            << mask;
    }
    EXPECT_EQ(stringForHotKey({}), u"");
}

TEST(HotKeys, FollowTheDecimalSeparator) {
    HotKeys hotKeys;
    const Comand point = commandFromString(u"data.   ");
    for (const char16_t separator : {u'\u00B7', u'\'', u'.', u'\u066B', u','}) {
        hotKeys.followDecimalSeparator(separator);
        for (const char16_t key : {separator, u'.', u','}) {
            const HotKey* const found = hotKeys.find(key, {});
            ASSERT_NE(found, nullptr);
            EXPECT_EQ(found->command, point);
        }
    }
    EXPECT_EQ(hotKeys.find(u'\u00B7', {}), nullptr);
    // A key that is taken ahead of the points' rows stays what it is.
    hotKeys.followDecimalSeparator(u'=');
    EXPECT_EQ(hotKeys.find(u'=', {})->command, commandFromString(u"dataCHS "));
    // A row with conditions doesn't take a key.
    hotKeys.followDecimalSeparator(u'a');
    EXPECT_EQ(hotKeys.find(u'a', {})->command, point);
}

}  // namespace
}  // namespace talvex
