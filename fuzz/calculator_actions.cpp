#include "calculator_actions.h"

#include <cmath>

#include "core/DYXCalculator.h"
#include "core/function_tables.h"
#include "platform/NSEvent.h"

namespace talvex {
namespace {

constexpr std::size_t kLongestText = 4500;
constexpr std::uint8_t kTextCommand = 1;
constexpr std::uint8_t kLongestCommand = 14;

// A command that does something more often than four random letters do.
Comand likelyCommand(FuzzInput& input) {
    const auto keys = keyPadRows();
    const auto hotKeys = hotKeyRows();
    const std::size_t choice = input.take<std::uint16_t>() % (keys.size() + hotKeys.size());
    return choice < keys.size() ? keys[choice].command : hotKeys[choice - keys.size()].command;
}

std::u16string randomText(FuzzInput& input) {
    std::u16string text(input.take<std::uint8_t>() % kLongestCommand, u' ');
    for (char16_t& character : text) {
        character = input.take<char16_t>();
    }
    return text;
}

void appendItems(const NSMenu& menu, std::vector<const NSMenuItem*>& items) {
    for (const NSMenuItem& item : menu.items) {
        if (item.action) {
            items.push_back(&item);
        }
        appendItems(item.submenu, items);
    }
}

void chooseFromMenu(DYXWindowController& calculator, HeadlessPlatform& /*platform*/,
                    FuzzInput& input) {
    NSMenu& menu = calculator.views().menu;
    validateMenu(menu);
    std::vector<const NSMenuItem*> items;
    appendItems(menu, items);
    const NSMenuItem& item = *items[input.take<std::uint8_t>() % items.size()];
    if (item.enabled) {
        item.action(item);
    }
}

void setAnything(DYXWindowController& calculator, HeadlessPlatform& /*platform*/,
                 FuzzInput& input) {
    const auto value = input.take<std::int32_t>();
    calculator.choose(kSettings.at(input.take<std::uint8_t>() % kSettings.size()), value);
}

void putNumber(DYXWindowController& controller, HeadlessPlatform& /*platform*/, FuzzInput& input) {
    DYXCalculator& calculator = controller.calculator();
    CalculatorState state = calculator.state();
    state.stack.reg.at(input.take<std::uint8_t>() % 4) = input.takeNumber();
    calculator.setState(state);
    calculator.updateDisplay();
}

void changeLocale(DYXWindowController& calculator, HeadlessPlatform& platform, FuzzInput& input) {
    const auto kind = input.take<std::uint8_t>();
    const char16_t any = kind % 2 == 0 ? u',' : input.take<char16_t>();
    platform.format.decimalSeparator.assign(1, kind % 3 == 0 ? u'.' : any);
    platform.format.groupingSize = kind % 7;
    calculator.applicationWillBecomeActive();
}

using Action = void (*)(DYXWindowController&, HeadlessPlatform&, FuzzInput&);

void runAnyCode(DYXWindowController& calculator, HeadlessPlatform& /*platform*/, FuzzInput& input) {
    calculator.doCommand(
        {input.take<std::uint32_t>(), input.take<std::uint32_t>(), input.take<std::uint32_t>()});
}

void runText(DYXWindowController& calculator, HeadlessPlatform& /*platform*/, FuzzInput& input) {
    calculator.doCommand(commandFromString(randomText(input)));
}

void runLikely(DYXWindowController& calculator, HeadlessPlatform& /*platform*/, FuzzInput& input) {
    calculator.doCommand(likelyCommand(input));
}

void holdModifiers(DYXWindowController& calculator, HeadlessPlatform& /*platform*/,
                   FuzzInput& input) {
    calculator.flagsChanged({.type = NSFlagsChanged, .modifierFlags = input.take<std::uint32_t>()});
}

void paste(DYXWindowController& calculator, HeadlessPlatform& platform, FuzzInput& input) {
    platform.pasteboard = randomText(input);
    calculator.clipboard().paste();
}

void typeKey(DYXWindowController& calculator, HeadlessPlatform& /*platform*/, FuzzInput& input) {
    calculator.keyDown(
        {.type = NSKeyDown, .charactersIgnoringModifiers = {input.take<char16_t>()}});
}

void clickKey(DYXWindowController& calculator, HeadlessPlatform& /*platform*/, FuzzInput& input) {
    const std::vector<Key> keys = calculator.views().allKeys();
    keys[input.take<std::uint16_t>() % keys.size()].button->performClick();
}

// What the first byte of an action chooses; the second stands for `kTextCommand`.
constexpr auto kActions = std::to_array<Action>(
    {runAnyCode, runText, holdModifiers, chooseFromMenu, chooseFromMenu, setAnything, putNumber,
     paste, changeLocale, typeKey, typeKey, clickKey, clickKey, runLikely, runLikely, runLikely});
static_assert(kActions.at(kTextCommand) == runText);

// Only the X line has all slots.
void checkLine(const DYXOutputDisplay& line) {
    const auto check = [](const TextSlot& slot, std::size_t longest) {
        require(!slot || slot->stringValue().size() <= longest);
    };
    check(line.mantissaField(), kLongestText);
    check(line.mantissaSignField(), 1);
    check(line.exponentField(), 3);
    check(line.exponentSignField(), 1);
    check(line.statusField(), kLongestText);
}

}  // namespace

void appendCommand(std::string& bytes, std::u16string_view command) {
    bytes += static_cast<char>(kTextCommand);
    bytes += static_cast<char>(command.size());
    for (const char16_t character : command) {
        bytes += static_cast<char>(character & 0xFF);
        bytes += static_cast<char>(character >> 8);
    }
}

void act(DYXWindowController& calculator, HeadlessPlatform& platform, FuzzInput& input) {
    kActions.at(input.take<std::uint8_t>() % kActions.size())(calculator, platform, input);
}

void checkInvariants(DYXWindowController& calculator) {
    const CalculatorState state = calculator.calculator().state();
    require(state.inputState >= InputState::entering && state.inputState <= InputState::lifting);
    require(state.modifiers.store >= Store::nothing && state.modifiers.store <= Store::divide);
    require(state.entry.text.size() <= 32);
    require(state.entry.hasFraction || state.entry.denominatorDigits == 0);
    require(state == calculator.calculator().state());
    for (const DYXOutputDisplay* line : calculator.lines()) {
        checkLine(*line);
        require(line == calculator.lines().front() ||
                !line->mantissaField()->stringValue().empty());
    }
    for (const DrawerName name : kDrawerNames) {
        const NSSize& size = calculator.drawers()[name].record.contentSize();
        require(std::isfinite(size.width * size.height) && size.width >= 0 && size.height >= 0);
    }
}

}  // namespace talvex
