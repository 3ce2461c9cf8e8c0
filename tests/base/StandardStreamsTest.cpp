#include "base/StandardStreams.h"

#include <cstdlib>
#include <initializer_list>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace talvesk {
namespace {

/// The descriptor of a file that is opened after some streams were closed; ends the process.
[[noreturn]] void openWithout(std::initializer_list<int> streams) {
  for (const int stream : streams) ::close(stream);
  occupyClosedStreams();
  const int file = ::open("/dev/zero", O_RDWR);
  const bool isSilent = ::write(STDOUT_FILENO, "x", 1) == -1;
  std::_Exit(file > STDERR_FILENO && isSilent ? 0 : 1);
}

TEST(StandardStreams, giveNoneOfTheirNumbersToFilesWhereALauncherClosedThem) {
  EXPECT_EXIT(openWithout({1}), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(openWithout({1, 2}), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(openWithout({0, 1, 2}), ::testing::ExitedWithCode(0), "");
}

TEST(StandardStreams, doNotEndAProgramWhenTheirReaderIsGone) {
  const auto printToNobody = [] {
    int ends[2];
    if (::pipe(ends) != 0) std::_Exit(2);
    ::close(ends[0]);
    outliveReaders();
    std::_Exit(::write(ends[1], "x", 1) == -1 ? 0 : 1);
  };
  EXPECT_EXIT(printToNobody(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace talvesk
