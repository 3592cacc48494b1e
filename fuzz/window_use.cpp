// Uses the whole window at random for a while, and looks now and then whether what should hold of a
// window at rest does. Usage: window_use SECONDS [SEED]. Needs no screen; QT_QPA_PLATFORM=xcb makes
// it use that of DISPLAY.

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <algorithm>
#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>

#include "PrivateHome.h"
#include "RandomUser.h"
#include "calculator_actions.h"
#include "window_invariants.h"

namespace talvex {
namespace {

double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

// How long the window is deaf: the processor's time for an action, and for a turn of the event
// loop after it.
class Stalls {
  public:
    template <class Work>
    void measure(long number, std::string_view action, Work work) {
        const double start = processorMilliseconds();
        work();
        const double time = processorMilliseconds() - start;
        double& worst = worst_[action];
        worst = std::max(worst, time);
        constexpr double kStall = 100.0;
        if (time > kStall) {
            ++count_;
            std::printf("\naction %ld, %s: %.0f ms\n", number, action.data(), time);
        }
    }

    void print() const {
        for (const auto& [action, time] : worst_) {
            std::printf("%8.1f ms at worst: %s\n", time, action.data());
        }
        std::printf("%d stalls\n", count_);
    }

  private:
    std::map<std::string_view, double> worst_;
    int count_ = 0;
};

class Run {
  public:
    explicit Run(std::uint64_t seed) : user_(seed) {}

    void act() {
        ++number_;
        action_ = user_.decide();
        std::printf("%s; ", action_.data());
        stalls_.measure(number_, action_, [this] { user_.act(); });
        checkInvariants(user_.session().controller);
        lookOn(user_.pause());
    }

    // Answers whether everything comes to rest as it should; a window that doesn't is left behind.
    bool comesToRest() {
        std::printf("%ld\n", number_);
        user_.letGo();
        constexpr int kLongest = 2000;
        QElapsedTimer timer;
        timer.start();
        std::vector<const char*> broken;
        do {
            lookOn(1);
            broken = brokenInvariants(user_.session());
        } while (!broken.empty() && timer.elapsed() < kLongest);
        for (const char* const text : broken) {
            ++broken_[text];
            std::printf("after action %ld it isn't true that %s\n", number_, text);
        }
        return broken.empty();
    }

    void restart() { user_.restart(); }

    // Whether all held.
    [[nodiscard]] bool report() const {
        stalls_.print();
        for (const auto& [text, count] : broken_) {
            std::printf("%8d times untrue: %s\n", count, text.data());
        }
        std::printf("%ld actions\n", number_);
        return broken_.empty();
    }

  private:
    void lookOn(int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds) {
            stalls_.measure(number_, action_, [] { QApplication::processEvents(); });
            QThread::msleep(1);
        }
    }

    RandomUser user_;
    Stalls stalls_;
    std::string_view action_ = "start";
    long number_ = 0;
    std::map<std::string_view, int> broken_;
};

// What the user does on purpose is nothing to be told of.
void tell(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
    constexpr std::array<const char*, 4> kKnown{"This plugin does not support",
                                                "occurs outside target window", "openUrl()",
                                                "No document for"};
    if (std::none_of(kKnown.begin(), kKnown.end(),
                     [&](const char* known) { return message.contains(QLatin1String(known)); })) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

}  // namespace
}  // namespace talvex

// What libdbus has for its connection to the session it keeps to the end of the process.
extern "C" const char* __lsan_default_suppressions() { return "leak:libdbus-1.so"; }

int main(int argc, char** argv) {
    using namespace talvex;
    const long seconds = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 0;
    if (seconds <= 0) {
        std::fprintf(stderr, "usage: %s SECONDS [SEED]\n", argv[0]);
        return 2;  // a test that runs nothing mustn't pass
    }
    const std::uint64_t seed =
        argc > 2 ? std::strtoull(argv[2], nullptr, 10) : std::random_device()();
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::printf("seed %llu\n", static_cast<unsigned long long>(seed));
    const PrivateHome home;
    qputenv("HOME", home.folder().c_str());
    qputenv("XDG_RUNTIME_DIR", home.folder().c_str());
    qputenv("PATH", "");  // no other program is there to open a link
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(tell);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    std::setlocale(LC_NUMERIC, "C");
    Run run(seed);
    QElapsedTimer timer;
    timer.start();
    constexpr int kBetweenChecks = 40;
    while (timer.elapsed() < 1000 * seconds) {
        for (int count = 0; count < kBetweenChecks; ++count) {
            run.act();
        }
        if (!run.comesToRest()) {
            std::filesystem::remove(home.file());
            run.restart();
        }
    }
    return run.report() ? 0 : 1;
}
