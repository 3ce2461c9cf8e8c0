#include "base/Log.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <regex>
#include <sstream>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using testing::TestFolder;

const std::string kStamp = R"(\[\d{4}-\d{2}-\d{2}\.\d{2}:\d{2}:\d{2}\] )";

bool isStamped(const std::string& text, const std::string& rest) {
  return std::regex_match(text, std::regex(kStamp + rest + "\n"));
}

TEST(Log, writesTheErrorMarkToTheFileOnly) {
  const TestFolder folder;
  const ConsoleCapture console;
  Log log(folder.file("run.log"));
  log.write("disk is full", 1);
  EXPECT_EQ(console.out(), "");
  EXPECT_PRED2(isStamped, console.error(), "disk is full");
  EXPECT_PRED2(isStamped, TestFolder::get(log.path()), "ERROR : disk is full");
}

TEST(Log, takesEveryOtherLevelAsInformation) {
  for (const int level : {0, 2, -1}) {
    const TestFolder folder;
    const ConsoleCapture console;
    Log log(folder.file("run.log"));
    log.write("Setting Grid ...", level);
    EXPECT_EQ(console.error(), "");
    EXPECT_PRED2(isStamped, console.out(), R"(Setting Grid \.\.\.)");
    EXPECT_EQ(TestFolder::get(log.path()), console.out());
  }
}

TEST(Log, startsAFreshFileWithTheFirstMessageAndKeepsTheLater) {
  const TestFolder folder;
  const ConsoleCapture console;
  Log log(folder.put("run.log", "lines of the last run\n"));
  EXPECT_EQ(TestFolder::get(log.path()), "lines of the last run\n");
  log.write("Application Start");
  log.write("second");
  EXPECT_PRED2(isStamped, TestFolder::get(log.path()), "Application Start\n" + kStamp + "second");
}

TEST(Log, ofTwoWindowsHasNoHolesAndLosesNoLine) {
  const TestFolder folder;
  const ConsoleCapture console;
  Log first(folder.file("run.log"));
  Log second(first.path());
  first.write("emptied by the second window");
  second.write("second");
  first.write("first");
  EXPECT_PRED2(isStamped, TestFolder::get(first.path()), "second\n" + kStamp + "first");
}

TEST(Log, complainsAndGoesOnWhenTheFileCannotBeOpened) {
  const TestFolder folder;
  const ConsoleCapture console;
  Log log(folder.file("no/such/folder/run.log"));
  log.write("hello");
  EXPECT_EQ(console.error(), "Impossible to open log filehello\n");
  EXPECT_PRED2(isStamped, console.out(), "hello");
}

TEST(Log, withoutAFileReachesTheConsoleOnly) {
  const ConsoleCapture console;
  Log log;
  log.write("hello");
  EXPECT_EQ(console.error(), "");
  EXPECT_PRED2(isStamped, console.out(), "hello");
}

TEST(Log, recordsWhatTheConsoleIsToldForIt) {
  const TestFolder folder;
  const ConsoleCapture console;
  Log log(folder.file("run.log"));
  {
    const RecordedConsole recorded(log);
    console::log(" TAB: 0.035");
    console::logError("[ERROR] Error in opening grid.xml.");
    console::out() << "no line of the log\n";
  }
  console::log("after its time");
  EXPECT_EQ(console.out(), " TAB: 0.035\nno line of the log\nafter its time\n") << "as they are";
  EXPECT_EQ(console.error(), "[ERROR] Error in opening grid.xml.\n");
  EXPECT_PRED2(isStamped, TestFolder::get(log.path()),
               " TAB: 0\\.035\n" + kStamp + R"(ERROR : \[ERROR\] Error in opening grid\.xml\.)");
}

TEST(Log, keepsLinesOfSeveralThreadsWhole) {
  const TestFolder folder;
  const ConsoleCapture console;
  Log log(folder.file("run.log"));
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&log] {
      for (int k = 0; k < 200; ++k) log.write("one line of many");
    });
  }
  for (std::thread& thread : threads) thread.join();
  std::istringstream lines(TestFolder::get(log.path()));
  int whole = 0;
  for (std::string line; std::getline(lines, line); ++whole) {
    ASSERT_PRED2(isStamped, line + "\n", "one line of many");
  }
  EXPECT_EQ(whole, 800);
}

}  // namespace
}  // namespace talvesk
