#pragma once

#include <QSocketNotifier>
#include <array>

namespace talvex {

// Turns the signals TERM, INT and HUP into an ordinary end of the program, so that it saves its
// state. One object for the whole program.
class TerminationSignals {
  public:
    TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

  private:
    std::array<int, 2> pipe_;
    QSocketNotifier notifier_;
};

}  // namespace talvex
