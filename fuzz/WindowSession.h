#pragma once

#include <QGuiApplication>

#include "qt/CalculatorWindow.h"
#include "qt/HelpWindow.h"
#include "qt/QtPlatform.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// The program from its start to its end, within this process.
class WindowSession {
  public:
    WindowSession() {
        QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &window,
                         [this](Qt::ApplicationState state) {
                             if (state == Qt::ApplicationActive) {
                                 controller.applicationWillBecomeActive();
                             }
                         });
        window.show();
        if (controller.views().help.window.isVisible()) {
            help.showBehind(window);
        }
    }
    WindowSession(const WindowSession&) = delete;
    WindowSession& operator=(const WindowSession&) = delete;
    ~WindowSession() { controller.applicationWillTerminate(); }

    QtPlatform platform;
    DYXWindowController controller{platform};
    Scale scale;
    HelpPresenter help{controller, scale};
    CalculatorWindow window{controller, scale};
};

}  // namespace talvex
