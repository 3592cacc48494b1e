// Category "memo": arming a store or a recall, and the register keys that complete it.

#include <algorithm>
#include <array>

#include "core/DYXCalculator.h"

namespace talvex {
namespace {

// A way to store X in a register, reached by arming it ahead of a register key or directly.
struct StoreOperation {
    Store store;
    std::uint32_t armingAction;
    char directPrefix;
    double (*newValue)(double memory, double x);
};

constexpr auto kStoreOperations = std::to_array<StoreOperation>({
    {Store::plain, fourCC("STO "), 'S', [](double /*memory*/, double x) { return x; }},
    {Store::add, fourCC("STO+"), '+', [](double memory, double x) { return memory + x; }},
    {Store::subtract, fourCC("STO-"), '-', [](double memory, double x) { return memory - x; }},
    {Store::multiply, fourCC("STO*"), '*', [](double memory, double x) { return memory * x; }},
    {Store::divide, fourCC("STO/"), '/', [](double memory, double x) { return memory / x; }},
});

constexpr char kDirectRecallPrefix = 'R';

constexpr unsigned kNoRegister = 100;

// The last two characters of the action as decimal digits, or `kNoRegister`.
unsigned registerNumber(std::uint32_t action) {
    const auto digit = [action](unsigned place) {
        return static_cast<unsigned>(characterOf(action, place) - '0');
    };
    const bool areDigits = digit(2) < 10 && digit(3) < 10;
    return areDigits ? 10 * digit(2) + digit(3) : kNoRegister;
}

bool isRegisterKey(std::uint32_t action) {
    return characterOf(action, 0) == 'M' && characterOf(action, 1) == '0' &&
           registerNumber(action) != kNoRegister;
}

const StoreOperation* findByStore(Store store) {
    for (const StoreOperation& row : kStoreOperations) {
        if (row.store == store) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace

bool DYXCalculator::doCommandMemory(const Comand& command) {
    bool isKnown = true;
    const StoreOperation* armed = nullptr;
    for (const StoreOperation& row : kStoreOperations) {
        armed = row.armingAction == command.action ? &row : armed;
    }
    if (armed != nullptr) {
        now_.modifiers.store = now_.modifiers.store == armed->store ? Store::nothing : armed->store;
    } else if (command.action == fourCC("RCL ")) {
        now_.modifiers.recall = !now_.modifiers.recall;
    } else if (command.action == fourCC("STOC")) {
        now_.modifiers.store = Store::nothing;
        now_.modifiers.recall = false;
    } else if (command.action == fourCC("CLMM")) {
        now_.mem.fill(0.0);
    } else if (isRegisterKey(command.action)) {
        doCommandMemoryDigit(command);
    } else {
        isKnown = doCommandMemoryDirect(command);
    }
    return isKnown;
}

// Recalls the register if there is nothing to store.
void DYXCalculator::storeOrRecall(Store operation, unsigned number) {
    double& memory = now_.mem.at(number);
    if (const StoreOperation* row = findByStore(operation)) {
        memory = row->newValue(memory, now_.stack.x());
    } else {
        now_.stack.pushOntoStack();
        now_.stack.x() = memory;
    }
}

void DYXCalculator::doCommandMemoryDigit(const Comand& command) {
    updateRegister();
    const unsigned number = registerNumber(command.action);
    if (number < kRegisterKeys) {
        storeOrRecall(now_.modifiers.store, number);
    }
    now_.modifiers.store = Store::nothing;
    now_.inputState = InputState::lifting;
}

// The forms that name their operation, whatever is armed. They don't reach register 0.
bool DYXCalculator::doCommandMemoryDirect(const Comand& command) {
    const char prefix = characterOf(command.action, 0);
    const auto* const row =
        std::find_if(kStoreOperations.begin(), kStoreOperations.end(),
                     [prefix](const StoreOperation& each) { return each.directPrefix == prefix; });
    const bool stores = row != kStoreOperations.end();
    if (!stores && prefix != kDirectRecallPrefix) {
        return false;
    }
    updateRegister();
    const unsigned number = registerNumber(command.action);
    if (number > 0 && number < kRegisterKeys) {
        storeOrRecall(stores ? row->store : Store::nothing, number);
    }
    now_.modifiers.store = Store::nothing;
    now_.inputState = InputState::lifting;
    return number < kRegisterKeys;
}

}  // namespace talvex
