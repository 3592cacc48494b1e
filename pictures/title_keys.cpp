// Prints every title that the program asks its table for, one on a line.

#include <QApplication>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

#include "core/DYXCalculator.h"
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
    CalculatorState state;
    state.stack.x() = number;
    controller.calculator().setState(state);
    controller.calculator().updateDisplay();
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
        controller.choose(settingRow<&Settings::inputDisplayMode>(), mode);
        for (const double number : {kLarge, 0.5, -0.5, -kLarge, M_PI}) {
            show(controller, number);
        }
    }
    controller.choose(settingRow<&Settings::inputDisplayMode>(), mode::FIX);
    controller.doCommand(digitCommand('1'));
    controller.doCommand(command("data", "EEX "));
}

void pasteInVain(DYXWindowController& controller, HeadlessPlatform& platform) {
    platform.pasteboardAnswersAtOnce = false;
    controller.clipboard().paste();
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
    Scale scale;
    const CalculatorWindow window(controller, scale);
    const HelpWidget help(controller, scale);
    showWords(controller);
    pasteInVain(controller, platform);
    for (const int mode : {8, 0}) {  // the letter keys have titles of their own in HEX
        controller.choose(settingRow<&Settings::inputDisplayMode>(), mode);
    }
    for (auto change :
         {&WindowGeometry::takeShowYZTRegistersFrom, &WindowGeometry::takeShowStatusLineFrom,
          &WindowGeometry::takeShowKeyPadFrom}) {
        validateMenu(controller.views().menu);
        (controller.geometry().*change)();
    }
    validateMenu(controller.views().menu);
    controller.help().takeToggleHelpWindowFrom();
    controller.choose(settingRow<&Settings::unlockInputAndOutputModes>(), 1);
    validateMenu(controller.views().menu);
    controller.saveDocument();  // fails without a home folder, and says so
    for (const std::u16string& title : platform.titlesAskedFor) {
        std::puts(qUtf8Printable(toQString(title)));
    }
    return 0;
}
