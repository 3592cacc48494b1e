// Category "memo": arming a store or a recall, and the register keys that complete it.

#include <array>

#include "core/DYXCalculator.h"

namespace talvex {
namespace {

// A way to store X in a register, reached by arming it ahead of a register key or directly.
struct StoreOperation {
    std::int32_t store;
    std::uint32_t armingAction;
    char directPrefix;
    double (*newValue)(double memory, double x);
};

constexpr auto kStoreOperations = std::to_array<StoreOperation>({
    {kPlainStore, fourCC("STO "), 'S', [](double /*memory*/, double x) { return x; }},
    {2, fourCC("STO+"), '+', [](double memory, double x) { return memory + x; }},
    {3, fourCC("STO-"), '-', [](double memory, double x) { return memory - x; }},
    {4, fourCC("STO*"), '*', [](double memory, double x) { return memory * x; }},
    {5, fourCC("STO/"), '/', [](double memory, double x) { return memory / x; }},
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

const StoreOperation* findByStore(std::int32_t store) {
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
        store_ = store_ == armed->store ? kNothingArmed : armed->store;
    } else if (command.action == fourCC("RCL ")) {
        recall_ = !recall_;
    } else if (command.action == fourCC("STOC")) {
        store_ = kNothingArmed;
        recall_ = false;
    } else if (command.action == fourCC("CLMM")) {
        mem_.fill(0.0);
    } else if (isRegisterKey(command.action)) {
        doCommandMemoryDigit(command);
    } else {
        isKnown = doCommandMemoryDirect(command);
    }
    updateModifiers();
    return isKnown;
}

// Operation 0 recalls the register, the others store X in it.
void DYXCalculator::operateOnRegister(std::int32_t operation, unsigned number) {
    double& memory = mem_.at(number);
    if (const StoreOperation* row = findByStore(operation)) {
        memory = row->newValue(memory, stack_.x());
    } else {
        stack_.pushOntoStack();
        stack_.x() = memory;
    }
}

void DYXCalculator::doCommandMemoryDigit(const Comand& command) {
    updateRegister();
    const unsigned number = registerNumber(command.action);
    if (number < kRegisterKeys) {
        operateOnRegister(store_, number);
    }
    store_ = kNothingArmed;
    inputState_ = InputState::lifting;
}

// The forms that name their operation, whatever is armed. They don't reach register 0.
bool DYXCalculator::doCommandMemoryDirect(const Comand& command) {
    const char prefix = characterOf(command.action, 0);
    std::int32_t operation = prefix == kDirectRecallPrefix ? kNothingArmed : -1;
    for (const StoreOperation& row : kStoreOperations) {
        operation = row.directPrefix == prefix ? row.store : operation;
    }
    if (operation < 0) {
        return false;
    }
    updateRegister();
    const unsigned number = registerNumber(command.action);
    if (number > 0 && number < kRegisterKeys) {
        operateOnRegister(operation, number);
    }
    store_ = kNothingArmed;
    inputState_ = InputState::lifting;
    return number < kRegisterKeys;
}

}  // namespace talvex
