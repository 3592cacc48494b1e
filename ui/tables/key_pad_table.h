#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "ui/DYXButton.h"
#include "ui/DrawerName.h"

namespace talvex {

// Everything about a key of the key pad. Rows and columns count from the top left.
struct KeyRow {
    Comand command;             // of the lock none
    std::u16string_view title;  // simple TeX; empty where an image stands in its place
    std::u16string_view hint;   // what the key does, in words
    KeyGroup group;
    std::uint8_t column;
    std::uint8_t row;
    std::uint8_t rowSpan = 1;
    KeyClass keyClass = KeyClass::key;
};

[[nodiscard]] std::span<const KeyRow> keyPadRows();

// The flat keys below all others: each opens and closes a drawer.
struct DrawerKeyRow {
    DrawerName drawer;
    std::u16string_view title;
    std::u16string_view hint;
};

[[nodiscard]] std::span<const DrawerKeyRow> drawerKeyRows();

// What the six keys on the top right do, which carry the letters of HEX input or exponents.
struct HexKeyRow {
    Comand hexCommand;
    std::u16string_view hexTitle;
    std::u16string_view hexHint;
    Comand command;
    std::u16string_view hint;
    std::u16string_view image;
    std::u16string_view alternateImage;
};

[[nodiscard]] std::span<const HexKeyRow> hexKeyRows();

}  // namespace talvex
