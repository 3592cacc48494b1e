// Prints every title that the program asks its table for, one on a line.

#include <QApplication>
#include <cstdio>

#include "platform/HeadlessPlatform.h"
#include "qt/CalculatorWindow.h"
#include "qt/HelpWindow.h"
#include "qt/conversions.h"
#include "ui/DYXWindowController.h"

int main(int argc, char** argv) {
    using namespace talvex;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    HeadlessPlatform platform;
    DYXWindowController controller(platform);
    const CalculatorWindow window(controller);
    const HelpWidget help(controller);
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
    for (const std::u16string& title : platform.titlesAskedFor) {
        std::puts(qUtf8Printable(toQString(title)));
    }
    return 0;
}
