// Prints every title that the program asks its table for, one on a line.

#include <QApplication>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

#include "display/display_modes.h"
#include "numeric/DYXnan.h"
#include "platform/HeadlessPlatform.h"
#include "qt/CalculatorWindow.h"
#include "qt/HelpWindow.h"
#include "qt/conversions.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

void show(DYXWindowController& controller, double number) {
    controller.setInputState(InputState::replacing);
    controller.stack().x() = number;
    controller.updateDisplay();
}

// All words that a line can show.
void showWords(DYXWindowController& controller) {
    constexpr double kLarge = 1e99;
    for (int code = 0; code <= std::numeric_limits<signed char>::max(); ++code) {
        const double error = DYXnan(static_cast<char>(code));
        if (!DYXnanString(error).starts_with(u"NaN")) {
            show(controller, error);
        }
    }
    for (const int mode : {mode::FRC, mode::HEX}) {
        controller.takeInputModeFrom({.title = {}, .tag = mode, .action = {}});
        for (const double number : {kLarge, 0.5, -0.5, -kLarge, M_PI}) {
            show(controller, number);
        }
    }
    controller.takeInputModeFrom({.title = {}, .tag = mode::FIX, .action = {}});
    controller.doCommand(commandFromString(u"dataN001"));
    controller.doCommand(commandFromString(u"dataEEX "));
}

void pasteInVain(DYXWindowController& controller, HeadlessPlatform& platform) {
    platform.pasteboardAnswersAtOnce = false;
    controller.paste();
    platform.answerPasteboardRequest({.outcome = PasteboardOutcome::late, .text = {}});
}

}  // namespace
}  // namespace talvex

int main(int argc, char** argv) {
    using namespace talvex;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    HeadlessPlatform platform;
    DYXWindowController controller(platform);
    const CalculatorWindow window(controller);
    const HelpWidget help(controller);
    showWords(controller);
    pasteInVain(controller, platform);
    for (const int mode : {8, 0}) {  // the letter keys have titles of their own in HEX
        controller.takeInputModeFrom({.title = {}, .tag = mode, .action = {}});
    }
    for (auto change :
         {&DYXWindowController::takeShowYZTRegistersFrom,
          &DYXWindowController::takeShowStatusLineFrom, &DYXWindowController::takeShowKeyPadFrom,
          &DYXWindowController::takeToggleHelpWindowFrom}) {
        validateMenu(controller.views().menu);
        (controller.*change)();
    }
    controller.takeLockOutputAndInputFrom(NSMenuItem{.title = {}, .action = {}});
    validateMenu(controller.views().menu);
    controller.saveDocument();  // fails without a home folder, and says so
    for (const std::u16string& title : platform.titlesAskedFor) {
        std::puts(qUtf8Printable(toQString(title)));
    }
    return 0;
}
