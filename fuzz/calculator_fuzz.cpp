// Any series of commands, keys, clicks and choices leaves a calculator that still holds together.

#include <cstdint>

#include "core/function_tables.h"
#include "fuzz_input.h"
#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

void checkInvariants(DYXWindowController& calculator) {
    constexpr std::size_t kLongestText = 2200;
    const auto state = static_cast<int>(calculator.inputState());
    require(state >= 0 && state <= 2);
    require(calculator.store() >= 0 && calculator.store() <= 5);
    const DYXInputDisplay& entry = calculator.xDisplay();
    require(entry.length() >= 0 && entry.length() <= 32);
    require(entry.exp() <= 0 && entry.frc() <= 0);
    for (const DYXOutputDisplay* line :
         {static_cast<const DYXOutputDisplay*>(&entry),
          static_cast<const DYXOutputDisplay*>(&calculator.yDisplay())}) {
        require(line->mantissaField()->stringValue().size() <= kLongestText);
        require(line->exponentField()->stringValue().size() <= 3);
    }
}

// A command that does something more often than four random letters do.
Comand likelyCommand(FuzzInput& bytes) {
    const auto keys = keyPadRows();
    const auto hotKeys = hotKeyRows();
    const std::size_t choice = bytes.take<std::uint16_t>() % (keys.size() + hotKeys.size());
    return choice < keys.size() ? commandFromString(keys[choice].command)
                                : hotKeys[choice - keys.size()].command;
}

std::u16string randomText(FuzzInput& bytes) {
    std::u16string text(bytes.take<std::uint8_t>() % 14, u' ');
    for (char16_t& character : text) {
        character = bytes.take<char16_t>();
    }
    return text;
}

void act(DYXWindowController& calculator, FuzzInput& bytes) {
    switch (bytes.take<std::uint8_t>() % 16) {
        case 0:
            calculator.doCommand({bytes.take<std::uint32_t>(), bytes.take<std::uint32_t>(),
                                  bytes.take<std::uint32_t>()});
            break;
        case 1:
            calculator.doCommand(commandFromString(randomText(bytes)));
            break;
        case 2:
            calculator.flagsChanged(
                {.type = NSFlagsChanged, .modifierFlags = bytes.take<std::uint32_t>()});
            break;
        case 3:
            calculator.takeInputModeFrom(
                NSMenuItem{.title = {}, .tag = bytes.take<std::int8_t>() % 15, .action = {}});
            break;
        case 4:
            calculator.takeOutputModeFrom(
                NSMenuItem{.title = {}, .tag = bytes.take<std::int32_t>(), .action = {}});
            break;
        case 5:
            calculator.views().keyPad.lockButton().performClick();
            break;
        case 6:
            calculator.takeAngleModeFrom(
                NSMenuItem{.title = {}, .tag = bytes.take<std::int32_t>(), .action = {}});
            break;
        case 7:
            calculator.stack().x() = bytes.take<double>();
            break;
        case 8:
            calculator.xDisplay().setDigits(bytes.take<std::uint32_t>());
            calculator.syncDisplays();
            break;
        case 9:
        case 10:
            calculator.keyDown(
                {.type = NSKeyDown, .charactersIgnoringModifiers = {bytes.take<char16_t>()}});
            break;
        case 11:
        case 12: {
            const std::vector<Key> keys = calculator.views().allKeys();
            keys[bytes.take<std::uint16_t>() % keys.size()].button->performClick();
            break;
        }
        default:
            calculator.doCommand(likelyCommand(bytes));
    }
}

}  // namespace
}  // namespace talvex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    talvex::HeadlessPlatform platform;
    talvex::DYXWindowController calculator(platform);
    talvex::FuzzInput bytes({data, size});
    while (!bytes.isAtEnd()) {
        talvex::act(calculator, bytes);
        talvex::checkInvariants(calculator);
    }
    return 0;
}
