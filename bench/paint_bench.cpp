// What is painted anew when a digit is typed, and how smoothly a drawer slides. Runs on the
// platform that QT_QPA_PLATFORM names, or on none that can be seen.

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "qt/CalculatorWindow.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

// Counts the widgets that are painted.
class PaintCounter final : public QObject {
  public:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            const auto* const widget = qobject_cast<QWidget*>(object);
            names.push_back(widget != nullptr ? widget->accessibleName().toStdString() : "");
        } else if (event->type() == QEvent::UpdateRequest) {
            frames.push_back(static_cast<double>(clock_.nsecsElapsed()) / 1e6);
        }
        return false;
    }
    void start() {
        names.clear();
        frames.clear();
        clock_.start();
    }

    std::vector<std::string> names;
    std::vector<double> frames;  // milliseconds

  private:
    QElapsedTimer clock_;
};

void run(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void countPaints(PaintCounter& counter, DYXWindowController& controller, char16_t key) {
    counter.start();
    controller.keyDown({.type = NSKeyDown, .charactersIgnoringModifiers = {key}});
    run(50);
    std::string painted;
    for (const std::string& name : counter.names) {
        painted += (painted.empty() ? "" : ", ") + ("\"" + name + "\"");
    }
    std::printf("key %-3c %2zu widgets painted: %s\n", key == u'\r' ? '<' : static_cast<char>(key),
                counter.names.size(), painted.c_str());
}

double processorMilliseconds() { return 1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

void slide(PaintCounter& counter, DYXWindowController& controller, DrawerName name,
           const char* title) {
    NSDrawer& drawer = controller.drawers()[name].record;
    for (int time = 0; time < 4; ++time) {  // the first time the keys are made
        const double processor = processorMilliseconds();
        counter.start();
        controller.drawers().toggleDrawer(name);
        run(260);
        std::vector<double> gaps;
        for (std::size_t frame = 1; frame < counter.frames.size(); ++frame) {
            gaps.push_back(counter.frames[frame] - counter.frames[frame - 1]);
        }
        if (gaps.empty()) {
            continue;
        }
        std::sort(gaps.begin(), gaps.end());
        std::printf(
            "%-10s %-7s %2zu frames, median %4.1f ms apart, worst %4.1f ms; %4.2f ms of "
            "processor each\n",
            title, drawer.isOpenOrOpening() ? "opens" : "closes", counter.frames.size(),
            gaps[gaps.size() / 2], gaps.back(),
            (processorMilliseconds() - processor) / static_cast<double>(counter.frames.size()));
    }
}

}  // namespace
}  // namespace talvex

int main(int argc, char** argv) {
    using namespace talvex;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    HeadlessPlatform platform;
    DYXWindowController controller(platform);
    controller.geometry().takeShowYZTRegistersFrom();
    Scale scale;
    CalculatorWindow window(controller, scale);
    window.show();
    run(300);
    PaintCounter counter;
    application.installEventFilter(&counter);
    for (const char16_t key : {u'1', u'2', u'\r', u'3', u'+', u'4', u'Z'}) {
        countPaints(counter, controller, key);
    }
    slide(counter, controller, DrawerName::memory, "memory");
    slide(counter, controller, DrawerName::constants, "constants");
    slide(counter, controller, DrawerName::functions, "functions");
    slide(counter, controller, DrawerName::conversion, "units");
    return 0;
}
