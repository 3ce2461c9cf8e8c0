#include "base/StandardStreams.h"

#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace talvesk {

void occupyClosedStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) >= 0) continue;
    // It gets the least number that is free, and the lesser ones are taken by now.
    const int opened = ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    if (opened > STDERR_FILENO) ::close(opened);
  }
}

bool outputIsTerminal() {
  return ::isatty(STDOUT_FILENO) != 0;
}

bool errorsAreOnTerminal() {
  return ::isatty(STDERR_FILENO) != 0;
}

void outliveReaders() {
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace talvesk
