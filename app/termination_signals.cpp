#include "termination_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <csignal>

namespace talvex {
namespace {

// A handler may do next to nothing; it wakes the event loop through this end of a pipe.
volatile std::sig_atomic_t wakingEnd = -1;

void wake(int /*signal*/) {
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(wakingEnd, &byte, 1);
}

std::array<int, 2> openPipe() {
    std::array<int, 2> ends{-1, -1};
    return ::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) == 0 ? ends : std::array<int, 2>{-1, -1};
}

}  // namespace

TerminationSignals::TerminationSignals()
    : pipe_(openPipe()), notifier_(pipe_[0], QSocketNotifier::Read) {
    if (pipe_[0] < 0) {
        return;
    }
    wakingEnd = pipe_[1];
    QObject::connect(&notifier_, &QSocketNotifier::activated, [this] {
        char byte = 0;
        [[maybe_unused]] const ssize_t count = ::read(pipe_[0], &byte, 1);
        QCoreApplication::exit(0);
    });
    struct sigaction action {};
    action.sa_handler = wake;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        ::sigaction(signal, &action, nullptr);
    }
}

}  // namespace talvex
