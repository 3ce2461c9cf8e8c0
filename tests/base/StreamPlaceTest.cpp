#include "base/AtomicFile.h"
#include "base/StreamPlace.h"
#include "support/TestFolder.h"

#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::TestFolder;

TEST(StreamPlace, isAPipeADeviceOrAnOpenStreamByItsName) {
  const TestFolder folder;
  const std::string file = folder.put("file", "x");
  const std::string pipe = folder.file("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {file, folder.path(), folder.file("nothing"), std::string("-"),
                                  std::string("/dev/fd/x"), std::string("/dev/fd/1/2")}) {
    EXPECT_FALSE(isStreamPlace(path)) << path;
  }
  for (const std::string& path : {pipe, std::string("/dev/null"), std::string("/dev/stdout"),
                                  std::string("/dev/stderr"), std::string("/proc/self/fd/1")}) {
    EXPECT_TRUE(isStreamPlace(path)) << path;
  }
  EXPECT_TRUE(isStandardOutput("/dev/stdout") && isStandardOutput("/dev/fd/1"));
  EXPECT_FALSE(isStandardOutput("/dev/stderr") || isStandardOutput("/dev/null"));
  EXPECT_TRUE(isDevice("/dev/null"));
  EXPECT_FALSE(isDevice(pipe) || isDevice("/dev/stdout"));
  EXPECT_TRUE(isNamedPipe(pipe));
}

TEST(StreamPlace, isWrittenToAndStaysWhatItIs) {
  const TestFolder folder;
  const std::string pipe = folder.file("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THAT(writeFileAtomically(pipe, "x").message(), HasSubstr("nobody reads from it"));
  const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  ::fcntl(reader, F_SETFL, 0);
  const std::string bytes(300000, 'b');  // more than a pipe holds
  std::string read;
  std::thread reading([&] {
    char part[4096];
    while (read.size() < bytes.size()) {
      const ssize_t got = ::read(reader, part, sizeof part);
      if (got > 0) read.append(part, static_cast<std::size_t>(got));
      if (got < 0) break;
    }
  });
  const Status written = writeFileAtomically(pipe, bytes);
  reading.join();
  ::close(reader);
  EXPECT_TRUE(written.ok()) << written.message();
  EXPECT_EQ(read, bytes);
  EXPECT_TRUE(isNamedPipe(pipe));
  EXPECT_TRUE(writeFileAtomically("/dev/null", bytes).ok());
  EXPECT_THAT(writeFileAtomically("/dev/full", "x").message(), HasSubstr("/dev/full: No space"));
  EXPECT_TRUE(isDevice("/dev/null") && isDevice("/dev/full"));
}

TEST(StreamPlace, goesOnBehindWhatARedirectedStreamHolds) {
  const TestFolder folder;
  const std::string path = folder.put("log", "first, ");
  const int file = ::open(path.c_str(), O_WRONLY | O_APPEND);
  ASSERT_GE(file, 0);
  EXPECT_TRUE(writeFileAtomically("/dev/fd/" + std::to_string(file), "second").ok());
  ::close(file);
  EXPECT_EQ(TestFolder::get(path), "first, second");
  EXPECT_EQ(folder.entries(), 1);
}

}  // namespace
}  // namespace talvesk
