#include "io/project/ProjectLock.h"
#include "support/TestFolder.h"

#include <QSysInfo>
#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;

class ProjectLocks : public ::testing::Test {
 protected:
  TestFolder folder;
  std::string project = folder.file("line.tvsk");
  std::string lockFile = folder.file(".line.tvsk.lock");
};

TEST_F(ProjectLocks, nameTheirHolderAndGoWithIt) {
  {
    const auto first = ProjectLock::take(project);
    ASSERT_NE(first.lock, nullptr);
    EXPECT_FALSE(first.holder);
    EXPECT_TRUE(first.lock->isOf(project));
    const auto second = ProjectLock::take(project);
    EXPECT_EQ(second.lock, nullptr);
    ASSERT_TRUE(second.holder);
    EXPECT_FALSE(second.holder->user.empty());
    EXPECT_EQ(second.holder->host, QSysInfo::machineHostName().toStdString());
    EXPECT_EQ(second.holder->process, std::to_string(::getpid()));
    EXPECT_EQ(second.holder->lockFile, lockFile);
    EXPECT_NE(ProjectLock::take(folder.file("other.tvsk")).lock, nullptr);
  }
  EXPECT_EQ(folder.entries(), 0);
}

TEST_F(ProjectLocks, areOnePerProjectWhateverPathLeadsThere) {
  folder.put("line.tvsk", "");
  std::filesystem::create_directory(folder.file("sub"));
  std::filesystem::create_symlink("../line.tvsk", folder.file("sub/link.tvsk"));
  const auto first = ProjectLock::take(folder.file("sub/link.tvsk"));
  ASSERT_NE(first.lock, nullptr);
  EXPECT_TRUE(first.lock->isOf(project));
  EXPECT_TRUE(ProjectLock::take(folder.file("sub/../line.tvsk")).holder);
}

TEST_F(ProjectLocks, ofDeadProcessesAreTakenOver) {
  const pid_t child = ::fork();
  if (child == 0) {
    const auto dying = ProjectLock::take(project);
    if (dying.lock != nullptr) ::kill(::getpid(), SIGKILL);
    ::_exit(0);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  ASSERT_TRUE(std::filesystem::exists(lockFile));
  EXPECT_NE(ProjectLock::take(project).lock, nullptr);
  EXPECT_EQ(folder.entries(), 0);
}

TEST_F(ProjectLocks, ofOtherComputersAreBelieved) {
  folder.put(".line.tvsk.lock", "anna\nelsewhere\n17\n");
  const auto outcome = ProjectLock::take(project);
  EXPECT_EQ(outcome.lock, nullptr);
  ASSERT_TRUE(outcome.holder);
  EXPECT_EQ(outcome.holder->user, "anna");
  EXPECT_EQ(outcome.holder->process, "17");
}

TEST_F(ProjectLocks, showNoMoreOfAStrangeFileThanFitsALine) {
  folder.put(".line.tvsk.lock", std::string(500, 'x') + "\nelse\x1b[2Jwhere\t\n");
  const auto outcome = ProjectLock::take(project);
  ASSERT_TRUE(outcome.holder);
  EXPECT_EQ(outcome.holder->user.size(), 80U);
  EXPECT_EQ(outcome.holder->host, "else [2Jwhere");
}

TEST_F(ProjectLocks, areNotNeeded) {
  EXPECT_FALSE(ProjectLock::take(folder.file("none/line.tvsk")).holder);
  std::filesystem::create_symlink("elsewhere", lockFile);
  const auto linked = ProjectLock::take(project);
  EXPECT_EQ(linked.lock, nullptr);
  EXPECT_FALSE(std::filesystem::exists(folder.file("elsewhere"))) << "written through a link";
}

}  // namespace
}  // namespace talvesk
