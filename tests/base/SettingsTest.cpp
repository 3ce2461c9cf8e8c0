#include "base/Settings.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <tuple>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using ::testing::HasSubstr;
using testing::TestFolder;

const std::string kUnknown = "Unknown settings set to default.\n";
const std::string kOf2019 =
    "First time running version 2019.1. Some setting where not in.\n" + kUnknown;
const std::string kOf2020 =
    "First time running version 2020.0. Some setting where not in. \n" + kUnknown;
const std::string kOf2020_2 =
    "First time running version 2020.2. Some setting where not in. \n" + kUnknown;

auto values(const Settings& s) {
  return std::make_tuple(s.language, s.fillWiggle, s.zoomIn, s.cutHorizontal, s.showFiltered,
                         s.showAllTraces, s.twoColors, s.savePngHColorbar, s.undoMegabytes,
                         s.errorBars, s.showComputedTimes, s.showNeighbour, s.showReciprocalTimes,
                         s.samplesOnDisk, s.feet);
}

std::string xml(const std::string& content) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<cereal>" + content + "</cereal>\n";
}

const std::string kGroupOf2019 =
    "<zoomIn>true</zoomIn><cutHorizontal>false</cutHorizontal><fillWiggle>false</fillWiggle>"
    "<showFiltered>false</showFiltered>";

TEST(Settings, comeBackAsTheyWereSaved) {
  const TestFolder folder;
  const ConsoleCapture console;
  Settings saved(folder.file("settings.xml"));
  saved.language = "it <&> \xC3\xA8";
  saved.fillWiggle = saved.cutHorizontal = saved.showFiltered = false;
  saved.zoomIn = saved.showAllTraces = saved.twoColors = saved.savePngHColorbar = true;
  saved.undoMegabytes = 128;
  saved.samplesOnDisk = 2;
  saved.feet = true;
  saved.errorBars = false;
  saved.showComputedTimes = saved.showNeighbour = saved.showReciprocalTimes = true;
  ASSERT_TRUE(saved.save().ok());
  Settings loaded(saved.path());
  EXPECT_TRUE(loaded.load());
  EXPECT_EQ(values(loaded), values(saved));
  EXPECT_EQ(console.out() + console.error(), "");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(Settings, takeMemoryForUndoThatCanBe) {
  const TestFolder folder;
  const ConsoleCapture console;
  for (const auto& [text, megabytes] : {std::pair{"64", 64},
                                        {"16", 16},
                                        {"15", 512},
                                        {"-1", 512},
                                        {"99999999999", 512},
                                        {"much", 512},
                                        {"", 512}}) {
    Settings settings(folder.put("settings.xml",
                                 xml(std::string("<undoMegabytes>") + text + "</undoMegabytes>")));
    EXPECT_TRUE(settings.load()) << text;
    EXPECT_EQ(settings.undoMegabytes, megabytes) << text;
  }
}

TEST(Settings, knowThreeAnswersToWhereSamplesAre) {
  const TestFolder folder;
  for (const auto& [text, when] :
       std::vector<std::pair<const char*, int>>{{"1", 1}, {"3", 0}, {"-1", 0}, {"disk", 0}}) {
    Settings settings(folder.put("settings.xml",
                                 xml(std::string("<samplesOnDisk>") + text + "</samplesOnDisk>")));
    EXPECT_TRUE(settings.load()) << text;
    EXPECT_EQ(settings.samplesOnDisk, when) << text;
  }
}

TEST(Settings, areWrittenInTheOrderOfTheFile) {
  const TestFolder folder;
  const Settings settings(folder.file("settings.xml"));
  ASSERT_TRUE(settings.save().ok());
  const std::string text = TestFolder::get(settings.path());
  std::size_t last = text.find("<cereal>");
  ASSERT_NE(last, std::string::npos);
  for (const char* element :
       {"<language>en<", "<zoomIn>false<", "<cutHorizontal>true<", "<fillWiggle>true<",
        "<showFiltered>true<", "<showAllTraces>false<", "<savePngHColorbar>false<",
        "<twoColors>false<", "<undoMegabytes>512<", "<errorBars>true<", "<showComputedTimes>false<",
        "<showNeighbour>false<", "<showReciprocalTimes>false<", "<samplesOnDisk>0<",
        "<feet>false<"}) {
    const std::size_t at = text.find(element);
    ASSERT_NE(at, std::string::npos) << element << " in\n" << text;
    EXPECT_GT(at, last) << element;
    last = at;
  }
}

TEST(Settings, ofTheLanguageOnlyKeepTheDefaultsAndTellEveryStage) {
  const TestFolder folder;
  const ConsoleCapture console;
  Settings settings(folder.put("settings.xml", xml("<language>it</language>")));
  EXPECT_TRUE(settings.load());
  Settings expected("");
  expected.language = "it";
  EXPECT_EQ(values(settings), values(expected));
  EXPECT_EQ(console.error(), kOf2019);
  EXPECT_EQ(console.out(), kOf2020 + kOf2020 + kOf2020_2);
}

struct OldFile {
  std::string content;
  bool showAllTraces;
  std::string error;
  std::string out;
};

class SettingsOfOlderVersions : public ::testing::TestWithParam<OldFile> {};

TEST_P(SettingsOfOlderVersions, keepWhatTheyHold) {
  const TestFolder folder;
  const ConsoleCapture console;
  const std::string content = "<language>fr</language>" + kGroupOf2019 + GetParam().content;
  Settings settings(folder.put("settings.xml", xml(content)));
  settings.twoColors = settings.savePngHColorbar = settings.showAllTraces = true;
  EXPECT_TRUE(settings.load());
  EXPECT_EQ(values(settings),
            std::make_tuple(std::string("fr"), false, true, false, false, GetParam().showAllTraces,
                            false, false, 512, true, false, false, false, 0, false));
  EXPECT_EQ(console.error(), GetParam().error);
  EXPECT_EQ(console.out(), GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, SettingsOfOlderVersions,
    ::testing::Values(
        OldFile{"", false, kOf2019, kOf2020 + kOf2020 + kOf2020_2},
        OldFile{"<showAllTraces>true</showAllTraces>", true, "", kOf2020 + kOf2020_2},
        OldFile{"<showAllTraces>maybe</showAllTraces>", false, kOf2019,
                kOf2020 + kOf2020 + kOf2020_2},
        OldFile{"<savePngHColorbar>false</savePngHColorbar><showAllTraces>true</showAllTraces>",
                true, "", kOf2020_2}));

TEST(Settings, areReadByNameInAnyOrder) {
  const TestFolder folder;
  const ConsoleCapture console;
  Settings settings(folder.put(
      "settings.xml", xml("<twoColors>true</twoColors><savePngHColorbar>true</savePngHColorbar>"
                          "<showAllTraces>true</showAllTraces>" +
                          kGroupOf2019 + "<language>de</language>")));
  EXPECT_TRUE(settings.load());
  EXPECT_EQ(values(settings),
            std::make_tuple(std::string("de"), false, true, false, false, true, true, true, 512,
                            true, false, false, false, 0, false));
  EXPECT_EQ(console.out() + console.error(), "");
}

TEST(Settings, thatCannotBeReadLeaveTheDefaults) {
  const TestFolder folder;
  std::string nested = "<cereal>";
  for (int i = 0; i < 20000; ++i) nested += "<a>";
  const std::string whole = xml("<language>it</language>" + kGroupOf2019);
  std::string binary;
  for (int i = 0; i < 4096; ++i) binary += static_cast<char>(i * 7919 >> 3);
  const std::pair<const char*, std::string> files[] = {
      {"empty", ""},
      {"binary", binary},
      {"zeros", std::string(1000, '\0')},
      {"truncated", whole.substr(0, whole.size() / 2)},
      {"other root", "<settings><language>it</language></settings>"},
      {"huge", whole + std::string(std::size_t{1} << 20, ' ')},
      {"deeply nested", nested},
      {"unclosed", "<cereal><language"},
      {"unclosed comment", "<cereal><!-- "},
  };
  for (const auto& [name, bytes] : files) {
    Settings settings(folder.put("settings.xml", bytes));
    EXPECT_FALSE(settings.load()) << name;
    EXPECT_EQ(values(settings), values(Settings(""))) << name;
  }
  EXPECT_FALSE(Settings(folder.file("missing")).load());
}

TEST(Settings, sayWhyTheyCannotBeSaved) {
  const TestFolder folder;
  const Status status = Settings(folder.file("no/such/folder/settings.xml")).save();
  EXPECT_FALSE(status.ok());
  EXPECT_THAT(status.message(), HasSubstr("settings.xml: "));
}

}  // namespace
}  // namespace talvesk
