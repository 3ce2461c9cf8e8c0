#include "model/KnownGround.h"
#include "model/TomographyOutcome.h"
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

class KnownGroundOfAProject : public ProjectTest {
 protected:
  void SetUp() override {
    KnownGround& known = project.document.known.edit();
    known.boreholes = {{"B <1>", 2.5, -1.5, {{0, 1.0 / 3.0, 400, 20}, {1, 5, 1500, 0}}}};
    known.depths = {{"P1", 3, 4.2, 0.3, 1, 0, 400, 1500}};
    known.bodies = {{"wall", 3500, {{1, 0}, {2, 0}, {2, 3}}}};
  }
  LoadedProject back;
};

TEST_F(KnownGroundOfAProject, comesBackAsItWas) {
  ASSERT_EQ(save(), 0) << writer.message();
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_EQ(*back.document.known, *project.document.known);
  project.document.known = {};
  ASSERT_EQ(save(), 0) << writer.message();
  EXPECT_THAT(entriesOf(archive()), Not(Contains(Key("known.xml"))));
}

TEST_F(KnownGroundOfAProject, isLeftOutWithALineWhereItCannotBe) {
  ASSERT_EQ(save(), 0) << writer.message();
  const auto sound = entriesOf(archive());
  const std::pair<const char*, const char*> changes[] = {{"<velocity>400<", "<velocity>-400<"},
                                                         {"<velocity>1500<", "<velocity>nan<"},
                                                         {"<x>2.5<", "<x>1e300<"},
                                                         {"<refractor>1<", "<refractor>-7<"},
                                                         {"<bottom>5<", "<bottom>0.5<"},
                                                         {">wall<", "><"},
                                                         {"<velocity>400<", "<speed>400<"}};
  for (const auto& [before, after] : changes) {
    auto entries = sound;
    entries["known.xml"] = with(entries.at("known.xml"), before, after);
    LoadedProject other;
    ASSERT_EQ(load(pack("other.tvsk", entries), other), 0) << after;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("what was known of its ground is lost")))
        << after;
    EXPECT_TRUE(other.document.known->empty()) << after;
  }
}

}  // namespace
}  // namespace talvesk
