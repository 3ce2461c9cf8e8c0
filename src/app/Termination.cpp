#include "app/Termination.h"

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace talvesk {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

volatile std::sig_atomic_t writeEnd = -1;

// Only what a signal handler may do. A full pipe has enough to say already.
extern "C" void onTermination(int signal) {
  const int before = errno;
  const auto byte = static_cast<unsigned char>(signal);
  const ssize_t written = ::write(writeEnd, &byte, 1);
  static_cast<void>(written);
  errno = before;
}

bool isIgnored(int signal) {
  struct sigaction now = {};
  return ::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

}  // namespace

Termination::Termination(QObject* parent) : QObject(parent) {
  if (::pipe2(mPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;  // the signals end the program as ever
  mNotifier = new QSocketNotifier(mPipe[0], QSocketNotifier::Read, this);
  connect(mNotifier, &QSocketNotifier::activated, this, &Termination::pass);
  writeEnd = mPipe[1];
  for (const int signal : kSignals) {
    if (isIgnored(signal)) continue;
    struct sigaction action = {};
    action.sa_handler = onTermination;
    // Some ends come as two signals of one kind, which must not cost what the first one began.
    action.sa_flags = signal == SIGINT ? static_cast<int>(SA_RESTART | SA_RESETHAND) : SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
  }
}

Termination::~Termination() {
  if (mNotifier == nullptr) return;
  for (const int signal : kSignals) {
    if (!isIgnored(signal)) ::signal(signal, SIG_DFL);
  }
  delete mNotifier;
  ::close(mPipe[0]);
  ::close(mPipe[1]);
}

void Termination::pass() {
  unsigned char signal = 0;
  while (::read(mPipe[0], &signal, 1) == 1) emit requested(signal);
}

}  // namespace talvesk
