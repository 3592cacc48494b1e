#include "core/CalculatorState.h"

#include <algorithm>
#include <bit>
#include <tuple>

namespace talvex {
namespace {

template <class Numbers>
bool haveSameBits(const Numbers& left, const Numbers& right) {
    return std::equal(left.begin(), left.end(), right.begin(), [](double one, double other) {
        return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
    });
}

auto restOf(const CalculatorState& state) {
    return std::tie(state.modifiers, state.inputState, state.entry, state.lastCommand,
                    state.unitOfX);
}

}  // namespace

bool CalculatorState::operator==(const CalculatorState& other) const {
    return haveSameBits(stack.reg, other.stack.reg) &&
           haveSameBits(std::array{stack.lastX}, std::array{other.stack.lastX}) &&
           haveSameBits(mem, other.mem) && haveSameBits(converted, other.converted) &&
           restOf(*this) == restOf(other);
}

}  // namespace talvex
