#include "model/MapLine.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "support/TestProjects.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;

class CourseOfAProject : public ProjectTest {
 protected:
  void SetUp() override {
    const geographicsCoord ends = {32632, 652000.0, 652010.5, 5074000.0, 5074020.0};
    project.document.map = MapPosition{ends, true};
    project.document.line.edit().course = {ends,
                                           {{0.0, {652000.0, 5074000.0}},
                                            {10.0 / 3.0, {652010.0, 5074001.0}},
                                            {30.0, {652010.5, 5074020.0}}}};
  }
  LoadedProject back;
};

TEST_F(CourseOfAProject, comesBackAsItWas) {
  ASSERT_EQ(save(), 0) << writer.message();
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_TRUE(back.document.line->course == project.document.line->course);
  EXPECT_EQ(courseOf(back.document).size(), 3U);
  project.document.map.edit().geoCoord.mEastFstGeoph += 1.0;
  ASSERT_EQ(save(), 0) << writer.message();
  EXPECT_THAT(entriesOf(archive()), Not(Contains(Key("course.xml"))));
}

TEST_F(CourseOfAProject, isLeftOutWhereItIsNoneOrTheLineHasMoved) {
  ASSERT_EQ(save(), 0) << writer.message();
  const auto sound = entriesOf(archive());
  const std::tuple<const char*, const char*, const char*> changes[] = {
      {"course.xml", "<distance>30<", "<distance>3<"},
      {"course.xml", "<easting>652010<", "<easting>nan<"},
      {"course.xml", "<northing>5074001<", "<height>5074001<"},
      // A program that does not know the member has set other coordinates.
      {"tomodoc.xml", "<mNorthLstGeoph>5074020<", "<mNorthLstGeoph>5074021<"},
      {"tomodoc.xml", "<CRS>32632<", "<CRS>32633<"}};
  for (const auto& [member, before, after] : changes) {
    auto entries = sound;
    entries[member] = with(entries.at(member), before, after);
    LoadedProject other;
    ASSERT_EQ(load(pack("other.tvsk", entries), other), 0) << after;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("lies straight on the map"))) << after;
    EXPECT_TRUE(other.document.map->geoCoord_isSet);
    EXPECT_THAT(courseOf(other.document), IsEmpty()) << after;
  }
}

}  // namespace
}  // namespace talvesk
