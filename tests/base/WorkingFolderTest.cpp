#include "base/History.h"
#include "base/WorkingFolder.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using testing::TestFolder;

TEST(WorkingFolder, isCreatedOneLevelDeep) {
  const TestFolder home;
  const WorkingFolder folder = WorkingFolder::below(home.path());
  EXPECT_EQ(folder.path, home.path() + "/Talvesk_TMP/");
  EXPECT_EQ(folder.log, folder.path + "Talvesk_log.log");
  EXPECT_EQ(folder.settings, folder.path + "Talvesk_settings.xml");
  EXPECT_EQ(folder.history, folder.path + "Talvesk_history.txt");
  EXPECT_TRUE(folder.create());
  EXPECT_TRUE(folder.create()) << "it exists already";
  EXPECT_EQ(home.entries(), 1);

  EXPECT_FALSE(WorkingFolder::below(home.file("missing")).create());
  home.put("Talvesk_file", "");
  EXPECT_FALSE(WorkingFolder::below(home.file("Talvesk_file")).create());
}

TEST(WorkingFolder, liesInTheHomeOfTheUserWhereNoVariableTellsIt) {
  const QByteArray before = qgetenv("HOME");
  qunsetenv("HOME");
  const std::string path = WorkingFolder::ofUser().path;
  qputenv("HOME", before);
  EXPECT_EQ(path, std::string(::getpwuid(::geteuid())->pw_dir) + "/Talvesk_TMP/");
}

TEST(History, remembersTheLastFolder) {
  const TestFolder folder;
  const ConsoleCapture console;
  const History history(folder.file("history.txt"));
  history.saveHistory("/data/a rather long name/line 7");
  history.saveHistory(
      "/data/valle dell\xE2\x80\x99"
      "Adige");
  EXPECT_EQ(history.readHistory(),
            "/data/valle dell\xE2\x80\x99"
            "Adige");
  EXPECT_EQ(TestFolder::get(folder.file("history.txt")), history.readHistory());
  EXPECT_EQ(console.error(), "");
}

TEST(History, isTheFirstLineOfTheFile) {
  const TestFolder folder;
  const ConsoleCapture console;
  EXPECT_EQ(History(folder.put("empty", "")).readHistory(), "");
  EXPECT_EQ(History(folder.put("two", "/first\n/second\n")).readHistory(), "/first");
  EXPECT_EQ(History(folder.put("dos", "C:/first\r\n")).readHistory(), "C:/first");
  EXPECT_EQ(console.error(), "");
}

TEST(History, fallsBackToTheHomeDirectory) {
  const TestFolder folder;
  for (const std::string& path : {folder.file("missing"), folder.path()}) {
    const ConsoleCapture console;
    EXPECT_EQ(History(path).readHistory(), QDir::homePath().toStdString());
    EXPECT_EQ(console.error(), "ERROR while trying to read history file.\n");
  }
}

TEST(History, tellsThatItCannotBeSaved) {
  const TestFolder folder;
  const ConsoleCapture console;
  History(folder.file("no/such/folder/history.txt")).saveHistory("/data");
  EXPECT_EQ(console.error(), "ERROR while trying to save history file.\n");
}

}  // namespace
}  // namespace talvesk
