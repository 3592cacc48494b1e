// Uses the whole window at random for a while, and looks now and then whether what should hold of a
// window at rest does. Usage: window_use SECONDS [SEED]. Needs no screen; QT_QPA_PLATFORM=xcb makes
// it use that of DISPLAY.

#include <unistd.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <algorithm>
#include <array>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

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

class Run {
  public:
    explicit Run(std::uint64_t seed) : user_(seed) {}

    void act() {
        ++number_;
        const Action& action = user_.decide();
        std::printf("%s; ", action.name);
        work(action.name, [&] { action.run(user_); });
        checkInvariants(user_.session->controller);
        lookOn(action.name, user_.pause());
    }

    // Waits for everything to come to rest as it should; a window that doesn't is left behind.
    void rest(const PrivateHome& home) {
        std::printf("%ld\n", number_);
        user_.letGo();
        constexpr int kLongest = 2000;
        QElapsedTimer timer;
        timer.start();
        std::vector<const char*> broken;
        do {
            lookOn("rest", 1);
            broken = brokenInvariants(*user_.session);
        } while (!broken.empty() && timer.elapsed() < kLongest);
        for (const char* const text : broken) {
            std::printf("after action %ld it isn't true that %s\n", number_, text);
        }
        if (!broken.empty()) {
            ++faults_;
            std::filesystem::remove(home.file());
            user_.restart();
        }
    }

    // Whether all held.
    [[nodiscard]] bool report() const {
        std::printf("%ld actions, %d stalls, %d faults\n", number_, stalls_, faults_);
        return faults_ == 0;
    }

  private:
    // Says when the window is deaf for long: for the processor's time of an action, or of a turn of
    // the event loop after it.
    template <class Work>
    void work(const char* action, Work work) {
        const double start = processorMilliseconds();
        work();
        const double time = processorMilliseconds() - start;
        constexpr double kStall = 100.0;
        if (time > kStall) {
            ++stalls_;
            std::printf("\naction %ld, %s: %.0f ms\n", number_, action, time);
        }
    }

    void lookOn(const char* action, int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds) {
            work(action, [] { QApplication::processEvents(); });
            QThread::msleep(1);
        }
    }

    RandomUser user_;
    long number_ = 0;
    int stalls_ = 0;
    int faults_ = 0;
};

// What the user does on purpose is nothing to speak of.
void printMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                  const QString& message) {
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
extern "C" const char* __asan_default_options() { return "handle_abort=1"; }

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
    // Whatever waits for ever ends here, and its stack is printed.
    std::signal(SIGALRM, [](int /*signal*/) { std::abort(); });
    constexpr long kMostForASecond = 5;
    alarm(static_cast<unsigned>(kMostForASecond * seconds));
    const PrivateHome home;
    qputenv("HOME", home.folder().c_str());
    qputenv("XDG_RUNTIME_DIR", home.folder().c_str());
    qputenv("PATH", "");  // no other program is there to open a link
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(printMessage);
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
        run.rest(home);
    }
    return run.report() ? 0 : 1;
}
