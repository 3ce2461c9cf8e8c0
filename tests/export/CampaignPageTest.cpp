#include "export/campaign/CampaignPage.h"
#include "model/GeographicsCoord.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "support/SectionDocument.h"

#include <QString>
#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// Three rows of ten cells of a metre, level; rays have crossed all but the last row and column.
TomoDocument invertedLine() {
  TomoDocument line = testing::sectionDocument(
      3, 10, 0.0, [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
  TomographyOutcome& outcome = line.result.edit();
  outcome.has_tomographic_info = true;
  outcome.timesOfSection = true;
  for (std::uint32_t cell = 0; cell < 30; ++cell) {
    outcome.hitCounts.push_back(cell < 20 && cell % 10 != 9 ? 1 : 0);
  }
  TravelTime& record = line.ttArray.edit()[0];
  record.ttCalcolati.edit().assign(record.ttMisurati.size(), 0.011);
  return line;
}

std::string pageOf(const std::vector<CampaignLine>& lines, const CampaignTexts& texts = {}) {
  return campaignPage(lines, texts).toStdString();
}

TEST(CampaignLine, tellsWhatRaysHaveCrossedAndHowTheSectionFits) {
  const CampaignLine line = campaignLineOf(invertedLine(), "North");
  EXPECT_NEAR(line.length, 9.0, 1e-9);
  EXPECT_NEAR(line.depth, 2.0, 1e-9);
  EXPECT_NEAR(line.covered, 18.0 / 30.0, 1e-9);
  EXPECT_NEAR(1e3 * line.misfit.rmse, 1.0, 1e-9);
  EXPECT_EQ(line.misfit.count, 5);
  EXPECT_EQ(line.geophones, 5U);
  EXPECT_FALSE(line.ends);
}

TEST(CampaignLine, hasItsSectionInSmallWithTheSurfaceAtTheTop) {
  const SmallSection small = campaignLineOf(invertedLine(), "North").section;
  ASSERT_EQ(small.velocities.size(), SmallSection::kColumns * SmallSection::kRows);
  EXPECT_EQ(small.velocities.front(), 500.0F);
  EXPECT_EQ(small.velocities[SmallSection::kColumns * SmallSection::kRows / 2], 600.0F);
  EXPECT_EQ(small.velocities.back(), 700.0F);
}

TEST(CampaignLine, tellsNoMisfitOfTimesThatAreNotThoseOfItsSection) {
  TomoDocument document = invertedLine();
  document.result.edit().timesOfSection = false;
  const std::string page = pageOf({campaignLineOf(document, "North")});
  EXPECT_THAT(page, HasSubstr("The misfit of the section is not known"));
  EXPECT_THAT(page, Not(HasSubstr(">1.00<")));
}

TEST(CampaignPage, namesEveryLineAndWhyOneFailed) {
  const std::string page =
      pageOf({campaignLineOf(invertedLine(), "North"), failedLine("South", "torn & <gone>")});
  EXPECT_THAT(page, HasSubstr("Lines: 2; with a section: 1; failed: 1"));
  EXPECT_THAT(page, HasSubstr("<td class=\"number\" data-value=\"1\">1.00</td>"));
  EXPECT_THAT(page, HasSubstr("<strong>Failed:</strong> torn &amp; &lt;gone&gt;"));
  EXPECT_THAT(page, Not(HasSubstr("Map of the lines")));
}

TEST(CampaignPage, escapesNamesAndEncodesLinksThatCannotLeaveItsFolder) {
  CampaignLine line = campaignLineOf(invertedLine(), "\"><script>alert(1)</script>");
  line.files = {"../x:y?#%41 \"<.html", "javascript:alert(1).tvsk"};
  CampaignTexts texts;
  texts.title = "<b>";
  const std::string page = pageOf({line}, texts);
  EXPECT_THAT(page, HasSubstr("<title>&lt;b&gt;</title>"));
  EXPECT_THAT(page, HasSubstr("<a href=\"..%2Fx%3Ay%3F%23%2541%20%22%3C.html\">&quot;&gt;&lt;"));
  EXPECT_THAT(page, HasSubstr("<a href=\"javascript%3Aalert%281%29.tvsk\""));
  EXPECT_THAT(page, Not(HasSubstr("<script>alert")));
}

TEST(CampaignPage, drawsAMapOfTheLinesWhosePlaceIsKnown) {
  const testing::ConsoleCapture quiet;
  TomoDocument placed = invertedLine();
  placed.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
  placed.map.edit().geoCoord_isSet = true;
  const std::string page =
      pageOf({campaignLineOf(invertedLine(), "A"), campaignLineOf(placed, "B")});
  EXPECT_THAT(page, HasSubstr("<a href=\"#line-2\"><title>B</title>"));
  EXPECT_THAT(page, Not(HasSubstr("<a href=\"#line-1\">")));
  EXPECT_THAT(page, HasSubstr("Lines whose position is not known: 1"));
}

TEST(CampaignPage, writesNumbersAsItsLanguageDoes) {
  CampaignTexts texts;
  texts.language = QStringLiteral("de");
  const std::string page = pageOf({campaignLineOf(invertedLine(), "North")}, texts);
  EXPECT_THAT(page, HasSubstr("<html lang=\"de\">"));
  EXPECT_THAT(page, HasSubstr("data-value=\"1\">1,00</td>"));
}

TEST(CampaignFileNames, areHarmlessAndEachAnotherOne) {
  EXPECT_THAT(campaignFileNames({"Line 1", "line 1", "../../etc/x", "", "...", "con", "-rf", "a:b",
                                 "index", "\xc3\x84rger"},
                                {"index"}),
              ElementsAre("Line 1", "line 1-2", "_.._etc_x", "line", "line-2", "con_", "rf", "a_b",
                          "index-2", "\xc3\x84rger"));
  const std::string name = campaignFileNames({std::string(5000, 'x')}).front();
  EXPECT_LT(name.size(), 200U);
}

}  // namespace
}  // namespace talvesk
