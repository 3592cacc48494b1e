#include "keyboard/HotKey.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace talvex {
namespace {

using Text = std::u16string;

// The command of the first row that applies; nothing if none does.
Comand commandOf(const HotKeys& hotKeys, char16_t key, const HotKeyState& state = {}) {
    const HotKey* const found = hotKeys.find(key, state);
    return found != nullptr ? found->command : Comand();
}

TEST(HotKeys, LeadFromCharacterAndStateToACommand) {
    constexpr HotKeyState kNothing{};
    constexpr HotKeyState kStore{.isStoreArmed = true};
    constexpr HotKeyState kRecall{.isRecallArmed = true};
    constexpr HotKeyState kShift{.isInverse = true};
    constexpr HotKeyState kHex{.isHexInput = true};
    constexpr HotKeyState kHexRecall{.isRecallArmed = true, .isHexInput = true};
    // Where the state decides.
    const struct {
        char16_t key;
        HotKeyState state;
        Text command;
    } rows[]{{u'A', kHex, u"dataN00A"},       {u'A', kShift, u"unitABS "},
             {u'e', kHexRecall, u"dataN00E"}, {u'p', kNothing, u"nothing"},
             {u'3', kNothing, u"dataN003"},   {u'3', kRecall, u"memoM003"},
             {u'3', kStore, u"memoM003"},     {u'!', kNothing, u"nothing"},
             {u'+', kStore, u"memoSTO+"},     {u'+', kRecall, u"bina+   "},
             {u'*', kStore, u"memoM018"},     {u'\x1B', kStore, u"memoSTOC"},
             {u'z', kNothing, u"unitZETA"},   {u'z', kShift, u"nothing"},
             {u'z', kStore, u"nothing"},      {u'S', kShift, u"unitGSIN"},
             {u'\0', kNothing, u"nothing"}};
    for (const auto& row : rows) {
        EXPECT_EQ(commandOf(HotKeys(), row.key, row.state), commandFromString(row.command))
            << static_cast<int>(row.key) << testing::PrintToString(row.command);
    }
}

// What a key does by itself, and with recall armed.
TEST(HotKeys, HaveTheLettersAndSignsOfTheManual) {
    const std::pair<std::u16string_view, Text> rows[]{
        {u"aceFhilnoqrst+-*/^~",
         u"unitABS unitGCOSunitEXP unitFACTunitGCOTunitINV unitLG10unitNLOGunit10^XunitSQR unitROOT"
         u"unitGSINunitGTANbina+   bina-   bina*   bina/   bina^   bina~   "},
        {u"cehkmpqr)!@#$%^&*(",
         u"consc   conse   consh   consKb  consmub consPI  conse-  consSQT2memoM010memoM011memoM012"
         u"memoM013memoM014memoM015memoM016memoM017memoM018memoM019"}};
    for (const auto& [keys, commands] : rows) {
        Text found;
        for (const char16_t key : keys) {
            found += stringFromCommand(
                commandOf(HotKeys(), key, {.isRecallArmed = &keys == &rows[1].first}));
        }
        EXPECT_EQ(found, commands);
    }
}

TEST(HotKeys, StandInTheMarkUpOfStatusTexts) {
    const std::pair<Text, Text> rows[]{{u"dataENT ", u"[\u23CE|\u2324]"},
                                       {u"unitGSIN", u"[s]"},
                                       {u"consPI  ", u"[\u2325-p]"},
                                       {u"bina^   ", u"[\\^]"},
                                       {u"memoSTOC", u"[\u241B]"},
                                       {u"data.   ", u"[\u066B|.|,]"},
                                       {u"memoM003", u""},
                                       {u"unitZETA", u""}};
    for (const auto& [command, text] : rows) {
        EXPECT_EQ(HotKeys().hotKeyStringForCommand(commandFromString(command)), text)
            << testing::PrintToString(command);
    }
    const std::pair<int, Text> masks[]{{0, u"\\_"},        {16, u"\\_"}, {1, u"\u2303\u2325-\\_"},
                                       {2, u"\u2325-\\_"}, {3, u""},     {4, u"\u21E7-\\_"},
                                       {8, u"\u2303-\\_"}, {17, u""}};
    for (const auto& [mask, text] : masks) {
        EXPECT_EQ(stringForHotKey({.command = {}, .key = u'_', .modifierMask = mask}), text)
            << mask;
    }
}

TEST(HotKeys, FollowTheDecimalSeparator) {
    HotKeys hotKeys;
    const Comand point = commandFromString(u"data.   ");
    for (const char16_t separator : {u'\u00B7', u'\'', u'.', u'\u066B', u','}) {
        hotKeys.followDecimalSeparator(separator);
        for (const char16_t key : {separator, u'.', u','}) {
            EXPECT_EQ(commandOf(hotKeys, key), point);
        }
    }
    EXPECT_EQ(hotKeys.find(u'\u00B7', {}), nullptr);
    // A key that is taken ahead of the points' rows stays what it is; a row with conditions takes
    // none.
    hotKeys.followDecimalSeparator(u'=');
    EXPECT_EQ(commandOf(hotKeys, u'='), commandFromString(u"dataCHS "));
    hotKeys.followDecimalSeparator(u'a');
    EXPECT_EQ(commandOf(hotKeys, u'a'), point);
}

}  // namespace
}  // namespace talvex
