#include "ui/tables/key_pad_table.h"

#include <algorithm>
#include <array>

#include "ui/key_pad_geometry.h"

namespace talvex {
namespace {

using enum KeyGroup;
using enum KeyClass;

// Functions on the left, the stack beside ENTER, digits and operators where the right hand lies.
constexpr auto kKeys = std::to_array<KeyRow>({
    {command("modi", "ARC "), u"INV", u"inverse of the next function", shift, 0, 0, 1, modifier},
    {command("modi", "HYP "), u"HYP", u"hyperbolic form of the next function", shift, 1, 0, 1,
     modifier},
    {command("memo", "RCL "), u"RCL", u"recall a register, or read a converted unit", memory, 2, 0,
     1, modifier},
    {command("memo", "STO "), u"STO", u"store X in a register", memory, 3, 0, 1, modifier},
    {command("data", "E-03"), u"", u"exponent -3", digit, 4, 0},
    {command("data", "E-06"), u"", u"exponent -6", digit, 5, 0},
    {command("data", "E-09"), u"", u"exponent -9", digit, 6, 0},
    {command("data", "E+03"), u"", u"exponent 3", digit, 7, 0},
    {command("data", "E+06"), u"", u"exponent 6", digit, 8, 0},
    {command("data", "E+09"), u"", u"exponent 9", digit, 9, 0},

    {command("unit", "GSIN"), u"sin", u"sine", function, 0, 1},
    {command("unit", "GCOS"), u"cos", u"cosine", function, 1, 1},
    {command("unit", "GTAN"), u"tan", u"tangent", function, 2, 1},
    {command("memo", "STO+"), u"STO+", u"add X to a register", memory, 3, 1, 1, modifier},
    {command("unit", "FACT"), u"n!", u"factorial", function, 4, 1},
    {command("data", "CLR "), u"CLR", u"clear X", clear, 5, 1},
    {command("data", "CLRG"), u"CLST", u"clear the stack", clear, 6, 1},
    {command("data", "CLAL"), u"CLALL", u"clear the stack and all memory registers", clear, 7, 1},
    {command("cons", "PI  "), u"\u03C0", u"pi", number, 8, 1},
    {Comand{}, u"", u"output mode independent of the input mode", function, 9, 1, 1, lock},

    {command("unit", "GCSC"), u"csc", u"cosecant", function, 0, 2},
    {command("unit", "GSEC"), u"sec", u"secant", function, 1, 2},
    {command("unit", "GCOT"), u"cot", u"cotangent", function, 2, 2},
    {command("memo", "STO-"), u"STO\u2212", u"subtract X from a register", memory, 3, 2, 1,
     modifier},
    {command("stac", "LSTX"), u"LASTx", u"last X", stack, 4, 2},
    {command("data", "BACK"), u"\u232B", u"backspace", clear, 5, 2},
    {command("data", "N007"), u"7", u"7", digit, 6, 2},
    {command("data", "N008"), u"8", u"8", digit, 7, 2},
    {command("data", "N009"), u"9", u"9", digit, 8, 2},
    {command("bina", "/   "), u"\u00F7", u"divide Y by X", operation, 9, 2},

    {command("unit", "SQR "), u"x^2", u"square", function, 0, 3},
    {command("unit", "ROOT"), u"\u221Ax", u"square root", function, 1, 3},
    {command("unit", "INV "), u"1/x", u"reciprocal", function, 2, 3},
    {command("memo", "STO*"), u"STO\u00D7", u"multiply a register by X", memory, 3, 3, 1, modifier},
    {command("stac", "ROLU"), u"R\u2191", u"roll the stack up", stack, 4, 3},
    {command("data", "EEX "), u"EEX", u"enter exponent", number, 5, 3},
    {command("data", "N004"), u"4", u"4", digit, 6, 3},
    {command("data", "N005"), u"5", u"5", digit, 7, 3},
    {command("data", "N006"), u"6", u"6", digit, 8, 3},
    {command("bina", "*   "), u"\u00D7", u"multiply Y by X", operation, 9, 3},

    {command("unit", "EXP "), u"e^x", u"e to the power X", function, 0, 4},
    {command("unit", "NLOG"), u"ln", u"natural logarithm", function, 1, 4},
    {command("unit", "ABS "), u"|x|", u"absolute value", function, 2, 4},
    {command("memo", "STO/"), u"STO\u00F7", u"divide a register by X", memory, 3, 4, 1, modifier},
    {command("stac", "ROLD"), u"R\u2193", u"roll the stack down", stack, 4, 4},
    {command("data", "ENT "), u"ENTER", u"enter", enter, 5, 4, 2},
    {command("data", "N001"), u"1", u"1", digit, 6, 4},
    {command("data", "N002"), u"2", u"2", digit, 7, 4},
    {command("data", "N003"), u"3", u"3", digit, 8, 4},
    {command("bina", "-   "), u"\u2212", u"subtract X from Y", operation, 9, 4},

    {command("unit", "10^X"), u"10^x", u"10 to the power X", function, 0, 5},
    {command("unit", "LG10"), u"log", u"decimal logarithm", function, 1, 5},
    {command("bina", "^   "), u"", u"power", function, 2, 5},
    {command("bina", "~   "), u"", u"logarithm to a base", function, 3, 5},
    {command("stac", "X<>Y"), u"x\u21C4y", u"exchange X and Y", stack, 4, 5},
    {command("data", "N000"), u"0", u"0", digit, 6, 5},
    {command("data", ".   "), u"", u"decimal point", digit, 7, 5},
    {command("data", "CHS "), u"+/\u2212", u"change sign", number, 8, 5},
    {command("bina", "+   "), u"+", u"add X to Y", operation, 9, 5},
});

// Whether the keys fill the grid with no gap and no overlap.
consteval bool fillsTheGrid() {
    std::array<std::array<int, kPadColumns>, kPadRows> uses{};
    for (const KeyRow& key : kKeys) {
        for (unsigned row = key.row; row < 0U + key.row + key.rowSpan; ++row) {
            ++uses.at(row).at(key.column);
        }
    }
    return std::all_of(uses.begin(), uses.end(), [](const auto& row) {
        return std::all_of(row.begin(), row.end(), [](int use) { return use == 1; });
    });
}
static_assert(fillsTheGrid());

constexpr auto kHexKeys = std::to_array<HexKeyRow>({
    {command("data", "N00A"), u"A", u"A", command("data", "E-03"), u"exponent -3", u"EEX-3Small",
     u"EEX-3Pressed"},
    {command("data", "N00B"), u"B", u"B", command("data", "E-06"), u"exponent -6", u"EEX-6Small",
     u"EEX-6Pressed"},
    {command("data", "N00C"), u"C", u"C", command("data", "E-09"), u"exponent -9", u"EEX-9Small",
     u"EEX-9Pressed"},
    {command("data", "N00D"), u"D", u"D", command("data", "E+03"), u"exponent 3", u"EEX+3Small",
     u"EEX+3Pressed"},
    {command("data", "N00E"), u"E", u"E", command("data", "E+06"), u"exponent 6", u"EEX+6Small",
     u"EEX+6Pressed"},
    {command("data", "N00F"), u"F", u"F", command("data", "E+09"), u"exponent 9", u"EEX+9Small",
     u"EEX+9Pressed"},
});

// From left to right as the drawers lie.
constexpr auto kDrawerKeys = std::to_array<DrawerKeyRow>({
    {DrawerName::constants, u"\u25C2 constants", u"open or close the drawer of constants"},
    {DrawerName::conversion, u"\u25B4 units", u"open or close the drawer of unit conversions"},
    {DrawerName::functions, u"\u25BE functions", u"open or close the drawer of more functions"},
    {DrawerName::memory, u"memory \u25B8", u"open or close the drawer of memory registers"},
});

static_assert(lieApartWithin<kKeys.size() + kDrawerKeys.size()>(kKeyPadSize, [](std::size_t key) {
    return key < kKeys.size() ? padKeyFrame(kKeys[key].column, kKeys[key].row, kKeys[key].rowSpan)
                              : drawerKeyFrame(key - kKeys.size(), kDrawerKeys.size());
}));

}  // namespace

std::span<const KeyRow> keyPadRows() { return kKeys; }
std::span<const HexKeyRow> hexKeyRows() { return kHexKeys; }

std::span<const DrawerKeyRow> drawerKeyRows() { return kDrawerKeys; }

}  // namespace talvex
