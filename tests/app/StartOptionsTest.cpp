#include "app/Languages.h"
#include "app/Messages.h"
#include "app/StartOptions.h"

#include <vector>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using Action = StartOptions::Action;

TEST(StartOptions, tellFilesFromOptions) {
  struct Line {
    QStringList arguments;
    Action action;
    QStringList files;
  };
  const std::vector<Line> lines = {
      {{}, Action::kOpenWindow, {}},
      {{"a.dat", "b c.sgy"}, Action::kOpenWindow, {"a.dat", "b c.sgy"}},
      {{"a.dat", "--", "--help", "-x"}, Action::kOpenWindow, {"a.dat", "--help", "-x"}},
      {{"-"}, Action::kOpenWindow, {"-"}},
      {{"a.dat", "--version"}, Action::kPrintAndLeave, {}},
      {{"-h"}, Action::kPrintAndLeave, {}},
      {{"--hlep", "a.dat"}, Action::kRefuse, {}},
  };
  for (const auto& [arguments, action, files] : lines) {
    const StartOptions options = parseStartOptions(arguments);
    SCOPED_TRACE(arguments.join(' ').toStdString());
    EXPECT_EQ(options.action, action);
    EXPECT_EQ(options.files, files);
    EXPECT_EQ(options.text.isEmpty(), action == Action::kOpenWindow);
  }
  EXPECT_EQ(parseStartOptions({"-V"}).text, QStringLiteral("Talvesk 2022.0\n"));
  EXPECT_TRUE(parseStartOptions({"--hlep"}).text.contains("--hlep"));
}

TEST(LocaleCode, standsBetweenTheFirstLineAndTheLastDot) {
  EXPECT_EQ(localeCodeOf("talvesk_it.qm"), QStringLiteral("it"));
  EXPECT_EQ(localeCodeOf("talvesk_pt_BR.qm"), QStringLiteral("pt_BR"));
  EXPECT_EQ(localeCodeOf("talvesk_en.old.qm"), QStringLiteral("en.old"));
}

TEST(ShortList, countsWhatItLeavesOut) {
  EXPECT_EQ(shortList({"a", "b"}, 2), QStringLiteral("a\nb"));
  EXPECT_EQ(shortList({"a", "b", "c", "d"}, 2), QStringLiteral("a\nb\nand 2 more"));
}

}  // namespace
}  // namespace talvesk
