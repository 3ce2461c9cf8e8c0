#include "io/FileFormats.h"
#include "model/TomoDocument.h"

#include <fstream>
#include <iterator>
#include <set>

#include <gmock/gmock.h>

using namespace talvesk;
using ::testing::HasSubstr;

namespace {

std::string joinedLines(const std::vector<Message>& lines) {
  std::string text;
  for (const Message& line : lines) text += (text.empty() ? "" : ";;") + line.english();
  return text;
}

/// The words with which two formats would get into each other's way.
template <typename Formats>
void expectNoDoubles(const Formats& formats, std::set<std::string> taken) {
  for (const auto& format : formats) {
    EXPECT_TRUE(taken.insert(format.id).second) << format.id;
    for (const char* suffix : format.suffixes) {
      EXPECT_EQ(suffix[0], '.');
      EXPECT_TRUE(taken.insert(suffix).second) << suffix;
    }
    EXPECT_NE(format.filter.english().find("(%1)"), std::string::npos) << format.id;
  }
}

}  // namespace

TEST(FileFormats, listAllFormatsFirstInDialogsThenEach) {
  EXPECT_EQ(joinedLines(shotFileFilters()),
            "Seismic files (*.sg2 *.dat *.seg2 *.sgy *.segy *.su);;SEG2 format (*.sg2 *.dat "
            "*.seg2);;SEGY format (*.sgy *.segy);;SU format (*.su);;All Files (*)");
  EXPECT_EQ(joinedLines(travelTimeFileFilters()),
            "Travel times (*.otte *.txt *.xyz *.XYZ *.csv *.CSV *.sgt);;Open Travel Time Exchange "
            "format (*.otte);;T-x curves (*.txt);;Sectioned pick table (*.xyz *.XYZ);;Pick table "
            "(*.csv *.CSV);;Unified data format (*.sgt);;All Files (*)");
  EXPECT_EQ(
      joinedLines(writtenTravelTimeFilters()),
      "Open Travel Time Exchange format (*.otte);;Unified data format (*.sgt);;All Files (*)");
  EXPECT_EQ(joinedLines(filtersOf(exchangeFormat())),
            "Open Travel Time Exchange format (*.otte);;All Files (*)");
  EXPECT_EQ(joinedLines(filtersOf(projectFormat())), "Talvesk projects (*.tvsk);;All Files (*)");
}

TEST(FileFormats, listEverySuffixOnceInSentences) {
  EXPECT_EQ(shotSuffixes(), ".sg2, .dat, .seg2, .sgy, .segy, .su");
  EXPECT_EQ(travelTimeSuffixes(), ".otte, .txt, .xyz, .csv, .sgt");
}

TEST(FileFormats, haveNoSuffixInCommon) {
  expectNoDoubles(shotFormats(), {".tvsk"});
  expectNoDoubles(travelTimeFormats(), {".tvsk"});
  for (const ShotFormat& format : shotFormats()) {
    EXPECT_EQ(shotFormatNamed(format.id), &format);
    for (const char* suffix : format.suffixes) EXPECT_FALSE(looksLikeTravelTimes(suffix));
  }
  EXPECT_EQ(shotFormatNamed("otte"), nullptr);
}

TEST(FileFormats, tellWhatAFileIsMeantToBeByItsName) {
  EXPECT_TRUE(looksLikeTravelTimes("a.OTTE"));  // for the reader to refuse with its reason
  EXPECT_EQ(travelTimeFormatOf("a.OTTE"), nullptr);
  EXPECT_FALSE(looksLikeTravelTimes("folder.otte/a"));
  EXPECT_STREQ(writtenFormatOf("line.SGT").id, "sgt");
  for (const char* path : {"line.otte", "line.csv", "line", "a.sgt/line"}) {
    EXPECT_STREQ(writtenFormatOf(path).id, "otte") << path;
  }
  EXPECT_TRUE(hasSuffixOf(projectFormat(), "line.TVSK"));
  EXPECT_FALSE(hasSuffixOf(projectFormat(), ".tvsk"));
  EXPECT_FALSE(hasSuffixOf(projectFormat(), "tvsk"));
}

/// Texts do not follow from the table, so that a new format would be forgotten there.
TEST(FileFormats, areNamedWhereverTheProgramTellsWhatItReads) {
  const auto textOf = [](const std::string& path) {
    std::ifstream stream(std::string(TALVESK_SOURCES) + path);
    return std::string{std::istreambuf_iterator<char>(stream), {}};
  };
  const auto expectSuffixes = [&](const FileFormat& format) {
    for (const std::string suffix : format.suffixes) {
      EXPECT_THAT(textOf("docs/file-formats.md"), HasSubstr('`' + suffix + '`'));
    }
    EXPECT_THAT(textOf("resources/guide/en/formats.html"),
                HasSubstr(std::string("<code>") + format.suffixes.front() + "</code>"));
  };
  for (const ShotFormat& format : shotFormats()) {
    expectSuffixes(format);
    for (const char* path : {"README.md", "cmake/Packaging.cmake", "resources/man/talvesk.1",
                             "resources/desktop/example.talvesk.Talvesk.metainfo.xml",
                             "docs/file-formats.md", "resources/guide/en/formats.html",
                             "src/app/StartOptions.cpp", "src/app/forms/Talvesk_MainWindows.ui"}) {
      EXPECT_THAT(textOf(path), HasSubstr(format.name)) << path;
    }
  }
  for (const TravelTimeFormat& format : travelTimeFormats()) expectSuffixes(format);
  expectSuffixes(projectFormat());
}
