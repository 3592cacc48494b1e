#include <array>

#include "keyboard/HotKey.h"
#include "platform/NSEvent.h"

namespace talvex {
namespace {

constexpr std::int32_t kAnyModifier =
    storeCondition | recallCondition | inverseCondition | hyperbolicCondition;

constexpr auto kHotKeys = std::to_array<HotKey>({
    {command("data", "N00A"), u'a', hexInputCondition, HotKeyTest::hexInput},
    {command("data", "N00B"), u'b', hexInputCondition, HotKeyTest::hexInput},
    {command("data", "N00C"), u'c', hexInputCondition, HotKeyTest::hexInput},
    {command("data", "N00D"), u'd', hexInputCondition, HotKeyTest::hexInput},
    {command("data", "N00E"), u'e', hexInputCondition, HotKeyTest::hexInput},
    {command("data", "N00F"), u'f', hexInputCondition, HotKeyTest::hexInput},
    {command("memo", "M000"), u'0', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M001"), u'1', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M002"), u'2', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M003"), u'3', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M004"), u'4', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M005"), u'5', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M006"), u'6', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M007"), u'7', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M008"), u'8', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M009"), u'9', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M010"), u')', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M011"), u'!', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M012"), u'@', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M013"), u'#', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M014"), u'$', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M015"), u'%', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M016"), u'^', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M017"), u'&', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M018"), u'*', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "M019"), u'(', storeCondition | recallCondition, HotKeyTest::any},
    {command("memo", "STO+"), u'+', storeCondition, HotKeyTest::any},
    {command("memo", "STO-"), u'-', storeCondition, HotKeyTest::any},
    {command("memo", "STO*"), u'*', storeCondition, HotKeyTest::any},
    {command("memo", "STO/"), u'/', storeCondition, HotKeyTest::any},
    {command("memo", "STOC"), u'\x1B', 0, HotKeyTest::all},
    {command("data", "N000"), u'0', 0, HotKeyTest::all},
    {command("data", "N001"), u'1', 0, HotKeyTest::all},
    {command("data", "N002"), u'2', 0, HotKeyTest::all},
    {command("data", "N003"), u'3', 0, HotKeyTest::all},
    {command("data", "N004"), u'4', 0, HotKeyTest::all},
    {command("data", "N005"), u'5', 0, HotKeyTest::all},
    {command("data", "N006"), u'6', 0, HotKeyTest::all},
    {command("data", "N007"), u'7', 0, HotKeyTest::all},
    {command("data", "N008"), u'8', 0, HotKeyTest::all},
    {command("data", "N009"), u'9', 0, HotKeyTest::all},
    {command("cons", "PI  "), u'p', recallCondition, HotKeyTest::all},
    {command("cons", "e   "), u'e', recallCondition, HotKeyTest::all},
    {command("cons", "SQT2"), u'r', recallCondition, HotKeyTest::all},
    {command("cons", "Kb  "), u'k', recallCondition, HotKeyTest::all},
    {command("cons", "h   "), u'h', recallCondition, HotKeyTest::all},
    {command("cons", "e-  "), u'q', recallCondition, HotKeyTest::all},
    {command("cons", "c   "), u'c', recallCondition, HotKeyTest::all},
    {command("cons", "mub "), u'm', recallCondition, HotKeyTest::all},
    {command("data", "ENT "), u'\r', 0, HotKeyTest::all},
    {command("data", "ENT "), u'\x03', 0, HotKeyTest::all},
    {command("data", "BACK"), u'\x7F', 0, HotKeyTest::all},
    {command("data", "CHS "), u'=', 0, HotKeyTest::all},
    {command("data", ".   "), u'\u066B', 0, HotKeyTest::all},
    {command("data", ".   "), u'.', 0, HotKeyTest::all},
    {command("data", ".   "), u',', 0, HotKeyTest::all},
    {command("data", "EEX "), u'\t', 0, HotKeyTest::all},
    {command("data", "EEX "), NSPageUpFunctionKey, 0, HotKeyTest::all},
    {command("data", "EEX "), NSPageDownFunctionKey, 0, HotKeyTest::all},
    {command("data", "CLR "), NSClearLineFunctionKey, 0, HotKeyTest::all},
    {command("data", "CLRG"), NSDeleteFunctionKey, 0, HotKeyTest::all},
    {command("stac", "ROLU"), NSUpArrowFunctionKey, 0, HotKeyTest::all},
    {command("stac", "ROLD"), NSDownArrowFunctionKey, 0, HotKeyTest::all},
    {command("stac", "X<>Y"), NSRightArrowFunctionKey, 0, HotKeyTest::all},
    {command("stac", "X<>Y"), NSLeftArrowFunctionKey, 0, HotKeyTest::all},
    {command("unit", "SQR "), u'q', 0, HotKeyTest::all},
    {command("unit", "10^X"), u'o', 0, HotKeyTest::all},
    {command("unit", "EXP "), u'e', 0, HotKeyTest::all},
    {command("unit", "INV "), u'i', 0, HotKeyTest::all},
    {command("unit", "ABS "), u'a', 0, HotKeyTest::all},
    {command("unit", "ROOT"), u'r', 0, HotKeyTest::all},
    {command("unit", "LG10"), u'l', 0, HotKeyTest::all},
    {command("unit", "NLOG"), u'n', 0, HotKeyTest::all},
    {command("unit", "FACT"), u'f', 0, HotKeyTest::all},
    {command("unit", "GSIN"), u's', 0, HotKeyTest::all},
    {command("unit", "GCOS"), u'c', 0, HotKeyTest::all},
    {command("unit", "GTAN"), u't', 0, HotKeyTest::all},
    {command("unit", "GCOT"), u'h', 0, HotKeyTest::all},
    {command("unit", "ZETA"), u'z', kAnyModifier, HotKeyTest::none},
    {command("bina", "+   "), u'+', 0, HotKeyTest::all},
    {command("bina", "-   "), u'-', 0, HotKeyTest::all},
    {command("bina", "*   "), u'*', 0, HotKeyTest::all},
    {command("bina", "/   "), u'/', 0, HotKeyTest::all},
    {command("bina", "^   "), u'^', 0, HotKeyTest::all},
    {command("bina", "~   "), u'~', 0, HotKeyTest::all},
});

// Whether the keys of one command stand together, so that a row with a wrong command stands out.
consteval bool keepsKeysOfACommandTogether() {
    for (std::size_t first = 0; first < kHotKeys.size(); ++first) {
        for (std::size_t second = first + 2; second < kHotKeys.size(); ++second) {
            if (kHotKeys[first].command == kHotKeys[second].command &&
                kHotKeys[second - 1].command != kHotKeys[second].command) {
                return false;
            }
        }
    }
    return true;
}
static_assert(keepsKeysOfACommandTogether());

}  // namespace

std::span<const HotKey> hotKeyRows() { return kHotKeys; }

}  // namespace talvex
