#include "base/FileReplacement.h"
#include "base/FileStamp.h"
#include "support/FileLimit.h"
#include "support/TestFolder.h"

#include <csignal>
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;

namespace fs = std::filesystem;

Status replace(const std::string& path, const std::string& text) {
  FileReplacement file;
  if (Status status = file.begin(path); !status.ok()) return status;
  if (!file.write(text.data(), text.size())) return Status::failure("cannot be written");
  return file.commit();
}

fs::perms permissionsOf(const std::string& path) {
  return fs::status(path).permissions();
}

TEST(FileReplacement, putsTheNewFileInThePlaceOfTheOldOne) {
  const TestFolder folder;
  const std::string path = folder.put("a", "old");
  {
    FileReplacement file;
    ASSERT_TRUE(file.begin(path).ok());
    ASSERT_TRUE(file.write("nEw", 3) && file.seek(1) && file.write("e", 1));
    EXPECT_EQ(file.position(), 2);
    EXPECT_EQ(TestFolder::get(path), "old");
    ASSERT_TRUE(file.commit().ok());
  }
  EXPECT_EQ(TestFolder::get(path), "new");
  EXPECT_EQ(folder.entries(), 1);
  ASSERT_TRUE(replace(folder.file("b"), "first").ok());
  EXPECT_EQ(TestFolder::get(folder.file("b")), "first");
}

TEST(FileReplacement, leavesTheOldFileUntilItIsCommitted) {
  const TestFolder folder;
  const std::string path = folder.put("a", "old");
  {
    FileReplacement file;
    ASSERT_TRUE(file.begin(path).ok());
    ASSERT_TRUE(file.write("new", 3));
  }
  EXPECT_EQ(TestFolder::get(path), "old");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(FileReplacement, keepsPermissionsAndShowsNobodyMoreMeanwhile) {
  const TestFolder folder;
  const std::string path = folder.put("a", "old");
  for (const auto mode : {fs::perms{0600}, fs::perms{0640}, fs::perms{0664}, fs::perms{0755}}) {
    fs::permissions(path, mode);
    FileReplacement file;
    ASSERT_TRUE(file.begin(path).ok());
    for (const auto& entry : fs::directory_iterator(folder.path())) {
      EXPECT_EQ(entry.status().permissions() & ~mode, fs::perms::none) << entry.path();
    }
    ASSERT_TRUE(file.commit().ok());
    EXPECT_EQ(permissionsOf(path), mode);
  }
  const mode_t before = ::umask(027);
  ASSERT_TRUE(replace(folder.file("new"), "new").ok());
  ::umask(before);
  EXPECT_EQ(permissionsOf(folder.file("new")), fs::perms{0640}) << "as any new file";
}

TEST(FileReplacement, followsChainsOfLinks) {
  const TestFolder folder;
  fs::create_directory(folder.file("far"));
  fs::create_symlink("far/two", folder.file("one"));
  fs::create_symlink(folder.file("real"), folder.file("far/two"));
  folder.put("real", "old");
  ASSERT_TRUE(replace(folder.file("one"), "new").ok());
  EXPECT_EQ(TestFolder::get(folder.file("real")), "new");
  EXPECT_TRUE(fs::is_symlink(folder.file("one")) && fs::is_symlink(folder.file("far/two")));
  fs::create_symlink("loop", folder.file("loop"));
  EXPECT_FALSE(replace(folder.file("loop/x"), "new").ok());
}

TEST(FileReplacement, refusesWhatIsNoFileOfTheUser) {
  const TestFolder folder;
  EXPECT_THAT(checkReplaceable(folder.path()).message(), HasSubstr("it is a folder"));
  EXPECT_THAT(checkReplaceable("/dev/null").message(), HasSubstr("it is not a regular file"));
  EXPECT_TRUE(checkReplaceable(folder.file("none")).ok());
  EXPECT_THAT(replace(folder.file("none/a"), "x").message(), HasSubstr("No such file"));
}

TEST(FileReplacement, refusesAFileThatIsProtected) {
  const TestFolder folder;
  const std::string path = folder.put("a", "old");
  fs::permissions(folder.path(), fs::perms{0755});
  fs::permissions(path, fs::perms{0444});
  const auto ask = [&path] {
    constexpr uid_t kNobody = 65534;  // from root nothing is protected
    if (::geteuid() == 0 && ::setuid(kNobody) != 0) std::_Exit(2);
    const std::string answer = checkReplaceable(path).message();
    std::_Exit(answer.find("protected against writing") != std::string::npos ? 0 : 1);
  };
  EXPECT_EXIT(ask(), ::testing::ExitedWithCode(0), "");
}

TEST(FileReplacement, deletesWhatTheDeadLeftAndNothingElse) {
  const TestFolder folder;
  const std::string path = folder.put("a", "old");
  folder.put(".talvesk-notes", "of the user");
  FileReplacement alive;
  ASSERT_TRUE(alive.begin(path).ok());
  const pid_t child = ::fork();
  if (child == 0) {
    FileReplacement dying;
    if (dying.begin(path).ok()) ::kill(::getpid(), SIGKILL);
    ::_exit(0);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(folder.entries(), 4);
  clearReplacements(path);
  EXPECT_EQ(folder.entries(), 3) << "the file, the user's, and that which is being written";
  EXPECT_TRUE(alive.commit().ok());
}

TEST(FileReplacement, tellsWhenTheDiskIsFull) {
  const TestFolder folder;
  const FileLimit full(100);
  FileReplacement file;
  ASSERT_TRUE(file.begin(folder.file("a")).ok());
  EXPECT_FALSE(file.write(std::string(200, 'x').data(), 200));
}

TEST(FileStamp, isAnotherOneWhenTheFileIs) {
  const TestFolder folder;
  const std::string path = folder.put("a", "one");
  const auto first = stampOf(path);
  ASSERT_TRUE(first);
  EXPECT_EQ(stampOf(path), first);
  const auto time = fs::last_write_time(path);
  folder.put("a", "three");
  fs::last_write_time(path, time);
  EXPECT_NE(stampOf(path), first) << "other bytes";
  folder.put("a", "two");
  fs::last_write_time(path, time + std::chrono::milliseconds(1));
  EXPECT_NE(stampOf(path), first) << "another time";
  EXPECT_FALSE(stampOf(folder.file("none")));
}

}  // namespace
}  // namespace talvesk
