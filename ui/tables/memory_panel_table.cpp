#include <array>

#include "ui/panel_geometry.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

using enum KeyGroup;
using enum KeyClass;

constexpr auto kKeys = std::to_array<MemoryKeyRow>({
    {command("memo", "STO "), u"STO", u"store X in a register", memory, 0, 0, 1, modifier},
    {command("memo", "STO+"), u"STO+", u"add X to a register", memory, 0, 1, 1, modifier},
    {command("memo", "STO-"), u"STO\u2212", u"subtract X from a register", memory, 0, 2, 1,
     modifier},
    {command("memo", "STO*"), u"STO\u00D7", u"multiply a register by X", memory, 0, 3, 1, modifier},
    {command("memo", "STO/"), u"STO\u00F7", u"divide a register by X", memory, 0, 4, 1, modifier},
    {command("memo", "RCL "), u"RCL", u"recall a register, or read a converted unit", memory, 1, 0,
     1, modifier},
    {command("memo", "STOC"), u"cancel", u"take back STO and RCL", clear, 1, 1, 2},
    {command("memo", "CLMM"), u"clear all", u"clear all memory registers", clear, 1, 3, 2},
});

constexpr KeyGrid kGrid = memoryGrid(kKeys);
static_assert(kGrid.size().height <= kSideDrawerRoom);
static_assert(lieApartWithin<kKeys.size() + kRegisterKeys>(kGrid.size(), [](std::size_t key) {
    return key < kKeys.size() ? memoryKeyFrame(kGrid, kKeys[key])
                              : registerFrame(kGrid, key - kKeys.size());
}));

}  // namespace

std::span<const MemoryKeyRow> memoryKeyRows() { return kKeys; }

}  // namespace talvex
