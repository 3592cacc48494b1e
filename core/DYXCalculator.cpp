#include "core/DYXCalculator.h"

#include <algorithm>
#include <bit>

#include "display/display_modes.h"
#include "numeric/DYXRoundToDigits.h"

namespace talvex {
namespace {

// Which modifiers a press of a key leaves as they are; it clears the others.
struct KeptModifiers {
    Comand command;
    bool inverseAndHyperbolic = false;
    bool recall = false;
    bool store = false;
};

constexpr auto kKeptModifiers = std::to_array<KeptModifiers>({
    {.command = command("modi", "ARC "), .inverseAndHyperbolic = true},
    {.command = command("modi", "HYP "), .inverseAndHyperbolic = true},
    {.command = command("memo", "RCL "), .recall = true},
    {.command = command("memo", "STO "), .store = true},
    {.command = command("memo", "STO+"), .store = true},
    {.command = command("memo", "STO-"), .store = true},
    {.command = command("memo", "STO*"), .store = true},
    {.command = command("memo", "STO/"), .store = true},
});

KeptModifiers keptBy(const Comand& command) {
    for (const KeptModifiers& row : kKeptModifiers) {
        if (row.command.category == command.category && row.command.action == command.action) {
            return row;
        }
    }
    return {};
}

struct StackRow {
    std::uint32_t action;
    void (DYXStack::*move)();
};

constexpr auto kStackMoves = std::to_array<StackRow>({
    {fourCC("LSTX"), &DYXStack::recallLastX},
    {fourCC("ROLD"), &DYXStack::rollDown},
    {fourCC("ROLU"), &DYXStack::rollUp},
    {fourCC("X<>Y"), &DYXStack::swapXY},
});

}  // namespace

DYXCalculator::DYXCalculator(Platform& platform, const DisplayFields& fields)
    : platform_(platform),
      xDisplay_(std::make_unique<DYXInputDisplay>(platform, fields)),
      yDisplay_(xDisplay_->copy()),
      zDisplay_(yDisplay_->copy()),
      tDisplay_(zDisplay_->copy()),
      cDisplay_(tDisplay_->copy()) {
    yDisplay_->setLabelString(u"Y:");
    zDisplay_->setLabelString(u"Z:");
    tDisplay_->setLabelString(u"T:");
    cDisplay_->setLabelString(u"C:");
    const auto wording = [&platform](std::u16string_view word) {
        return platform.localizedString(word);
    };
    xDisplay_->setWording(wording);
    for (DYXOutputDisplay* const line :
         {yDisplay_.get(), zDisplay_.get(), tDisplay_.get(), cDisplay_.get()}) {
        line->setWording(wording);
    }
}

bool DYXCalculator::doCommand(const Comand& command) {
    struct Row {
        std::uint32_t category;
        bool (DYXCalculator::*handler)(const Comand&);
    };
    static constexpr auto kCategories = std::to_array<Row>({
        {fourCC("bina"), &DYXCalculator::doCommandBinary},
        {fourCC("cons"), &DYXCalculator::doCommandConstant},
        {fourCC("conv"), &DYXCalculator::doCommandConvert},
        {fourCC("data"), &DYXCalculator::doCommandDataEntry},
        {fourCC("memo"), &DYXCalculator::doCommandMemory},
        {fourCC("modi"), &DYXCalculator::doCommandModifier},
        {fourCC("null"), &DYXCalculator::doCommandNullinary},
        {fourCC("quad"), &DYXCalculator::doCommandQuadranary},
        {fourCC("stac"), &DYXCalculator::doCommandStack},
        {fourCC("trin"), &DYXCalculator::doCommandTrinary},
        {fourCC("unit"), &DYXCalculator::doCommandUnitary},
    });
    const auto* const row = std::find_if(
        kCategories.begin(), kCategories.end(),
        [&command](const Row& candidate) { return candidate.category == command.category; });
    const double oldX = now_.stack.x();
    const bool isKnown = row != kCategories.end() && (this->*row->handler)(command);
    roundMonetaryX();
    followUnitOfX(command, isKnown, oldX);
    updateDisplay();
    now_.lastCommand = command;
    return isKnown;
}

bool DYXCalculator::press(const Comand& command) {
    const bool isKnown = doCommand(command);
    clearUsedModifiers(command);
    return isKnown;
}

void DYXCalculator::clearUsedModifiers(const Comand& command) {
    const KeptModifiers kept = keptBy(command);
    Modifiers& modifiers = now_.modifiers;
    modifiers.inverse = modifiers.inverse && kept.inverseAndHyperbolic;
    modifiers.hyperbolic = modifiers.hyperbolic && kept.inverseAndHyperbolic;
    modifiers.recall = modifiers.recall && kept.recall;
    modifiers.store = kept.store ? modifiers.store : Store::nothing;
}

void DYXCalculator::roundMonetaryX() {
    if (xDisplay_->inputMode() == mode::MON) {
        now_.stack.x() = DYXRoundToDigits(now_.stack.x(), xDisplay_->digits());
    }
}

void DYXCalculator::followUnitOfX(const Comand& command, bool isKnown, double oldX) {
    const auto bits = [](double number) { return std::bit_cast<std::uint64_t>(number); };
    if (isKnown && command.category == fourCC("conv")) {
        now_.unitOfX = command;
    } else if (now_.inputState == InputState::entering || bits(oldX) != bits(now_.stack.x())) {
        now_.unitOfX = {};
    }
}

void DYXCalculator::updateRegister() {
    if (now_.inputState == InputState::entering) {
        now_.stack.x() = xDisplay_->doubleValue();
        roundMonetaryX();
    }
}

void DYXCalculator::updateDisplay() {
    if (now_.inputState == InputState::entering) {
        xDisplay_->update();
    } else {
        xDisplay_->setOutputTo(now_.stack.reg[0]);
    }
    yDisplay_->setOutputTo(now_.stack.reg[1]);
    zDisplay_->setOutputTo(now_.stack.reg[2]);
    tDisplay_->setOutputTo(now_.stack.reg[3]);
    if (didUpdateDisplay_) {
        didUpdateDisplay_();
    }
}

void DYXCalculator::syncDisplays() {
    for (DYXOutputDisplay* const line :
         {yDisplay_.get(), zDisplay_.get(), tDisplay_.get(), cDisplay_.get()}) {
        line->syncToDisplay(*xDisplay_);
    }
    LineSettings ungrouped = cDisplay_->settings();
    ungrouped.integerGroupingSeparator.clear();
    ungrouped.decimalGroupingSeparator.clear();
    cDisplay_->setSettings(std::move(ungrouped));
}

CalculatorState DYXCalculator::state() const {
    CalculatorState state = now_;
    state.entry = xDisplay_->entry();
    return state;
}

void DYXCalculator::setState(const CalculatorState& state) {
    now_ = state;
    xDisplay_->setEntry(state.entry);
}

DYXMathContext DYXCalculator::context() const {
    return {.angleMode = angleMode_,
            .inverse = now_.modifiers.inverse,
            .hyperbolic = now_.modifiers.hyperbolic,
            .useHPStylePowerAndLogs = useHPStylePowerAndLogs_};
}

void DYXCalculator::bringPasted(double number) {
    if (now_.inputState == InputState::entering) {
        now_.inputState = InputState::lifting;
    } else {
        now_.stack.pushOntoStack();
        now_.inputState = InputState::replacing;
    }
    now_.stack.x() = number;
    now_.unitOfX = {};
    updateDisplay();
}

void DYXCalculator::finishEntry() {
    if (now_.inputState == InputState::entering) {
        updateRegister();
        now_.stack.pushOntoStack();
        now_.inputState = InputState::lifting;
    }
}

void DYXCalculator::restore(const DYXStack& stack,
                            std::span<const double, kSavedRegisters> memory) {
    now_.stack = stack;
    now_.unitOfX = {};
    std::copy(memory.begin(), memory.end(), now_.mem.begin());
}

bool DYXCalculator::doCommandStack(const Comand& command) {
    const auto* const row = std::find_if(
        kStackMoves.begin(), kStackMoves.end(),
        [&command](const StackRow& candidate) { return candidate.action == command.action; });
    if (row == kStackMoves.end()) {
        return false;
    }
    updateRegister();
    (now_.stack.*row->move)();
    now_.inputState = InputState::lifting;
    return true;
}

}  // namespace talvex
