#include <QApplication>
#include <QSessionManager>
#include <QTimer>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "command_line.h"
#include "qt/CalculatorWindow.h"
#include "qt/HelpWindow.h"
#include "qt/QtPlatform.h"
#include "qt/notification.h"
#include "qt/window_icon.h"
#include "termination_signals.h"
#include "ui/DYXWindowController.h"

namespace {

// Without a screen the toolkit explains itself at length and aborts; one sentence will do.
void tellOfMissingScreen(QtMsgType type, const QMessageLogContext& /*context*/,
                         const QString& /*message*/) {
    if (type == QtFatalMsg) {
        std::fputs("talvex: there is no screen to open a window on\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
}

// The program comes to the front, and ends.
void connectApplication(const QApplication& application, talvex::DYXWindowController& controller,
                        QObject& window) {
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &window,
                     [&controller](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive) {
                             controller.applicationWillBecomeActive();
                         }
                     });
    const auto terminate = [&controller] { controller.applicationWillTerminate(); };
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &window, terminate);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window, terminate,
                     Qt::DirectConnection);
}

}  // namespace

int main(int argc, char** argv) {
    // For the program's own use.
    if (argc == 3 && std::string_view(argv[1]) == "--notify") {
        return talvex::showNotification(argv[2]);
    }
    if (const auto status = talvex::answerCommandLine({argv, static_cast<std::size_t>(argc)})) {
        return *status;
    }
    // A drawer needs to know where the window stands, which only X11 says.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
    qInstallMessageHandler(tellOfMissingScreen);
    const QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quondel.Talvex"));
    // The toolkit switches the C library to the user's locale; numbers stay blind to it.
    std::setlocale(LC_NUMERIC, "C");
    talvex::QtPlatform platform;
    talvex::DYXWindowController controller(platform);
    talvex::Scale scale;
    talvex::HelpPresenter help(controller, scale);
    talvex::CalculatorWindow window(controller, scale);
    platform.setShowAlert([&window] { window.showAlert(); });
    const talvex::TerminationSignals terminationSignals;
    connectApplication(application, controller, window);
    window.show();
    talvex::giveIconAfterFirstFrame(*window.windowHandle());
    if (controller.views().help.window.isVisible()) {
        // Once the calculator is there.
        QTimer::singleShot(0, &window, [&help, &window] { help.showBehind(window); });
    }
    return QApplication::exec();
}
