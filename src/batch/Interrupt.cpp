#include "batch/Interrupt.h"

#include <csignal>
#include <cstddef>

#include <unistd.h>

namespace talvesk {
namespace {

volatile std::sig_atomic_t requested = 0;
volatile std::sig_atomic_t announced = 0;
volatile std::sig_atomic_t atOnce = 0;

template <std::size_t N>
void answer(const char (&text)[N]) {
  const ssize_t written = write(STDERR_FILENO, text, N - 1);
  static_cast<void>(written);
}

// Only what a signal handler may do: write(2) and a flag.
extern "C" void onInterrupt(int) {
  requested = 1;
  if (announced == 0) return;
  if (atOnce != 0) {
    answer(
        "\nStopping; what has been found so far is kept. Ctrl-C again ends the program at once.\n");
  } else {
    answer("\nStopping after this external iteration. Ctrl-C again ends the program at once.\n");
  }
}

}  // namespace

void listenForInterrupt(Interruptible work, bool announce) {
  announced = announce ? 1 : 0;
  atOnce = work == Interruptible::kAtOnce ? 1 : 0;
  if (requested != 0) return;  // the next one ends the program
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
