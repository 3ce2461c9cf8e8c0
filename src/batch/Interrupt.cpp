#include "batch/Interrupt.h"

#include <csignal>

#include <unistd.h>

namespace talvesk {
namespace {

volatile std::sig_atomic_t requested = 0;
volatile std::sig_atomic_t announced = 0;

// Only what a signal handler may do: write(2) and a flag.
extern "C" void onInterrupt(int) {
  static const char kText[] =
      "\nStopping after this external iteration. Ctrl-C again ends the program at once.\n";
  requested = 1;
  if (announced == 0) return;
  const ssize_t written = write(STDERR_FILENO, kText, sizeof kText - 1);
  static_cast<void>(written);
}

}  // namespace

void listenForInterrupt(bool announce) {
  announced = announce ? 1 : 0;
  struct sigaction action = {};
  action.sa_handler = onInterrupt;
  action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
  sigemptyset(&action.sa_mask);
  sigaction(SIGINT, &action, nullptr);
}

bool interruptRequested() {
  return requested != 0;
}

}  // namespace talvesk
