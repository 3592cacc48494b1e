#pragma once

#include <array>

namespace talvex {

// In the order in which drawers are handed over to the switch of the key pad.
enum class DrawerName { memory, constants, conversion, functions };

inline constexpr auto kDrawerNames = std::to_array<DrawerName>(
    {DrawerName::memory, DrawerName::constants, DrawerName::conversion, DrawerName::functions});

}  // namespace talvex
