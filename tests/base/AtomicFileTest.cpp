#include "base/AtomicFile.h"
#include "support/CommaLocale.h"
#include "support/FileLimit.h"
#include "support/TestFolder.h"

#include <filesystem>
#include <ostream>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::TestFolder;

TEST(AtomicFile, replacesAFileAndLeavesNothingBesideIt) {
  const TestFolder folder;
  const std::string path = folder.put("picks.txt", "what was there before");
  ASSERT_TRUE(writeFileAtomically(path, std::string_view("a\0b\r\n", 5)).ok());
  std::string bytes;
  ASSERT_TRUE(readWholeFile(path, bytes).ok());
  EXPECT_EQ(bytes, std::string("a\0b\r\n", 5));
  EXPECT_EQ(folder.entries(), 1);
}

TEST(AtomicFile, keepsTheOldFileWhenOnlyAPartOfTheNewOneFits) {
  const TestFolder folder;
  const std::string path = folder.put("picks.txt", "what was there before");
  for (const std::size_t size : {5000U, 100000U}) {  // one fits into the buffers of most systems
    Status status;
    {
      const testing::FileLimit full(4096);
      status = writeFileAtomically(path, std::string(size, 'x'));
    }
    EXPECT_THAT(status.message(), HasSubstr("picks.txt: File too large")) << size;
    EXPECT_EQ(TestFolder::get(path), "what was there before") << size;
    EXPECT_EQ(folder.entries(), 1) << size;
  }
}

TEST(AtomicFile, writesNothingUnderAnotherNameThanTheOneGiven) {
  const TestFolder folder;
  const std::string path = folder.put("latin \xe9.txt", "there");
  std::string bytes;
  EXPECT_THAT(readWholeFile(path, bytes).message(), HasSubstr("UTF-8"));
  EXPECT_THAT(writeFileAtomically(path, "x").message(), HasSubstr("UTF-8"));
  EXPECT_EQ(TestFolder::get(path), "there");
  const std::filesystem::directory_iterator files(folder.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(AtomicFile, namesTheFileThatCannotBeWritten) {
  const TestFolder folder;
  const std::string path = folder.file("no/such/folder/picks.txt");
  const Status status = writeFileAtomically(path, "x");
  EXPECT_FALSE(status.ok());
  EXPECT_THAT(status.message(), HasSubstr(path + ": "));
  EXPECT_EQ(folder.entries(), 0);
}

TEST(AtomicFile, doesNotReplaceAFolderOrAPipe) {
  const TestFolder folder;
  EXPECT_FALSE(writeFileAtomically(folder.path(), "x").ok());
  const std::string pipe = folder.file("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(writeFileAtomically(pipe, "x").ok());
  struct stat info {};
  ASSERT_EQ(stat(pipe.c_str(), &info), 0);
  EXPECT_TRUE(S_ISFIFO(info.st_mode));
}

TEST(AtomicFile, keepsTheOldFileWhenTheTextCannotBePutTogether) {
  const TestFolder folder;
  const std::string path = folder.put("picks.txt", "old");
  const auto broken = [](std::ostream& stream) { stream.setstate(std::ios::failbit); };
  EXPECT_FALSE(writeTextAtomically(path, broken).ok());
  EXPECT_EQ(TestFolder::get(path), "old");
}

TEST(AtomicFile, printsNumbersByNoLocaleOfTheUser) {
  const TestFolder folder;
  const testing::CommaStreams locale;
  const std::string path = folder.file("numbers.txt");
  ASSERT_TRUE(writeTextAtomically(path, [](std::ostream& s) { s << 1234.5 << ' ' << 10000; }).ok());
  EXPECT_EQ(TestFolder::get(path), "1234.5 10000");
}

TEST(ReadWholeFile, refusesWhatIsNoRegularFileWithoutWaiting) {
  const TestFolder folder;
  ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
  for (const std::string& path :
       {folder.path(), folder.file("missing"), folder.file("pipe"), std::string("/dev/zero")}) {
    std::string bytes = "kept";
    const Status status = readWholeFile(path, bytes);
    EXPECT_FALSE(status.ok()) << path;
    EXPECT_THAT(status.message(), HasSubstr(path));
    EXPECT_EQ(bytes, "kept");
  }
}

TEST(ReadWholeFile, takesAFileOfExactlyTheLimitAndNoLarger) {
  const TestFolder folder;
  const std::string path = folder.put("ten", "0123456789");
  std::string bytes;
  EXPECT_FALSE(readWholeFile(path, bytes, 9).ok());
  EXPECT_EQ(bytes, "");
  EXPECT_TRUE(readWholeFile(path, bytes, 10).ok());
  EXPECT_EQ(bytes, "0123456789");
  EXPECT_TRUE(readWholeFile(folder.put("none", ""), bytes, 0).ok());
  EXPECT_EQ(bytes, "");
}

TEST(ReadWholeFile, readsPastTheSizeThatTheSystemTells) {
  std::string bytes;  // system files say that they are empty
  ASSERT_TRUE(readWholeFile("/proc/self/status", bytes).ok());
  EXPECT_THAT(bytes, HasSubstr("Name:"));
  EXPECT_FALSE(readWholeFile("/proc/self/status", bytes, 20).ok());
}

}  // namespace
}  // namespace talvesk
