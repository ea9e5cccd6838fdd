#pragma once

/// @file
/// Keeps files whole when a program is interrupted.

#include <csignal>

namespace qorvex::apps {

/// While it exists, interrupts (Ctrl-C) and requests to terminate wait, so that a file is written
/// completely. For the main thread while no other runs, and not for output that may be endless.
class InterruptHold {
 public:
  InterruptHold() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, &before_);
  }
  ~InterruptHold() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  InterruptHold(const InterruptHold&) = delete;
  InterruptHold& operator=(const InterruptHold&) = delete;

 private:
  sigset_t before_{};
};

}  // namespace qorvex::apps
