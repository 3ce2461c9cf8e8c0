#include "export/CertaintyTable.h"
#include "support/CertainDocument.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(CertaintyTable, tellsEveryDrawnCellAndNoSpreadWithoutRays) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = certainDocument(2, 6);
  document.model.edit().editGrid().setDraw(0, false);
  ASSERT_TRUE(writeCertaintyTable(folder.file("c.csv"), document).ok());
  EXPECT_EQ(TestFolder::get(folder.file("c.csv")),
            "distance_m,elevation_m,depth_m,velocity_m_s,median_m_s,p16_m_s,p84_m_s,spread_percent,"
            "members_with_rays,ln_deviation\n"
            "100.5,99.5,0.5,400,400,380,420,5,24,0.05\n"
            "101.5,99.5,0.5,400,400,380,420,5,24,0.05\n"
            "102.5,99.5,0.5,400,400,280,520,30,24,0.3\n"
            "103.5,99.5,0.5,400,400,280,520,,0,0.3\n"
            "104.5,99.5,0.5,400,400,280,520,,0,0.3\n"
            "99.5,98.5,1.5,500,500,475,525,5,24,0.05\n"
            "100.5,98.5,1.5,500,500,475,525,5,24,0.05\n"
            "101.5,98.5,1.5,500,500,475,525,5,24,0.05\n"
            "102.5,98.5,1.5,500,500,350,650,30,24,0.3\n"
            "103.5,98.5,1.5,500,500,350,650,,0,0.3\n"
            "104.5,98.5,1.5,500,500,350,650,,0,0.3\n");
}

TEST(CertaintyTable, tellsWhereVelocitiesAreReachedAlongTheLine) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = certainDocument(2, 3);
  const double none = std::numeric_limits<double>::quiet_NaN();
  document.result.edit().certainty->bands = {
      {450.0, {{1.0, 1.25, none}, {0.5, 1.0, 1.75}, {1.5, none, none}}}};
  ASSERT_TRUE(writeDepthTable(folder.file("d.csv"), document).ok());
  EXPECT_EQ(TestFolder::get(folder.file("d.csv")),
            "distance_m,elevation_m,velocity_m_s,median_m,p16_m,p84_m\n"
            "99.5,100,450,1,0.5,1.5\n"
            "100.5,100,450,1.25,1,\n"
            "101.5,100,450,,1.75,\n");
}

TEST(CertaintyTable, isNotWrittenWhereNothingIsKnown) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = certainDocument();
  document.result.edit().certainty.reset();
  EXPECT_THAT(writeCertaintyTable(folder.file("c.csv"), document).message(),
              HasSubstr("how sure the section is is not known"));
  EXPECT_FALSE(writeCertaintyTable(folder.file("c.csv"), TomoDocument()).ok());
  EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace talvesk
