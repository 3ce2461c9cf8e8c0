#include "model/Annotations.h"
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

class AnnotationsOfAProject : public ProjectTest {
 protected:
  void SetUp() override {
    Annotations& drawn = project.document.annotations.edit();
    drawn.isolines = {{"water <table>", 1500.0, 0x0050ff, 2.5}};
    drawn.items = {{AnnotationKind::kText, "Kies & Sand \xC3\xBC", {{12.5, 1.0 / 3.0}}},
                   {AnnotationKind::kPolygon,
                    "",
                    {{1, 2}, {3, 2}, {3, -4}},
                    Lithology::kGravel,
                    0x7a4a10,
                    3.0,
                    12.0}};
  }
  LoadedProject back;
};

TEST_F(AnnotationsOfAProject, comeBackAsTheyWere) {
  project.section.annotations = false;
  ASSERT_EQ(save(), 0) << writer.message();
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.repairs(), IsEmpty());
  EXPECT_EQ(*back.document.annotations, *project.document.annotations);
  EXPECT_FALSE(back.section.annotations);
  project.document.annotations = {};
  ASSERT_EQ(save(), 0) << writer.message();
  EXPECT_THAT(entriesOf(archive()), Not(Contains(Key("annotations.xml"))));
}

TEST_F(AnnotationsOfAProject, areLeftOutWithALineWhereTheyCannotBe) {
  ASSERT_EQ(save(), 0) << writer.message();
  const auto sound = entriesOf(archive());
  const std::pair<const char*, const char*> changes[] = {{"<kind>2<", "<kind>3<"},
                                                         {"<kind>2<", "<kind>-2147483648<"},
                                                         {"<pattern>2<", "<pattern>99<"},
                                                         {"<x>12.5<", "<x>nan<"},
                                                         {"<x>12.5<", "<x>1e300<"},
                                                         {"<width>3<", "<width>-1<"},
                                                         {"<text_size>12<", "<text_size>inf<"},
                                                         {"<velocity>1500<", "<velocity>0<"},
                                                         {"<color>20735<", "<color>-1<"},
                                                         {"<isolines", "<lines"}};
  for (const auto& [before, after] : changes) {
    auto entries = sound;
    entries["annotations.xml"] = with(entries.at("annotations.xml"), before, after);
    LoadedProject other;
    ASSERT_EQ(load(pack("other.tvsk", entries), other), 0) << after;
    EXPECT_THAT(reader.repairs(), ElementsAre(HasSubstr("what was drawn on its section are lost")))
        << after;
    EXPECT_TRUE(other.document.annotations->empty()) << after;
  }
}

/// Outlines that were digitised elsewhere have many corners.
TEST_F(AnnotationsOfAProject, comeBackWithAsManyCornersAsAllTogetherMayHave) {
  for (const std::size_t corners : {std::size_t{501}, Annotations::kMostPoints - 1}) {
    Annotation& area = project.document.annotations.edit().items[1];
    area.points.clear();
    for (std::size_t i = 0; i < corners; ++i) {
      area.points.push_back({0.1 * static_cast<double>(i), i % 2 == 0 ? -1.0 : -2.0});
    }
    ASSERT_EQ(save(), 0) << writer.message();
    LoadedProject other;
    ASSERT_EQ(load(archive(), other), 0) << reader.message();
    EXPECT_THAT(reader.repairs(), IsEmpty());
    EXPECT_EQ(*other.document.annotations, *project.document.annotations);
  }
}

TEST_F(AnnotationsOfAProject, loseWhatNoSheetCanHold) {
  ASSERT_EQ(save(), 0) << writer.message();
  auto entries = entriesOf(archive());
  entries["annotations.xml"] =
      with(entries["annotations.xml"], "Kies &amp; Sand", "Kies\n" + std::string(500, 'k'));
  ASSERT_EQ(load(pack("other.tvsk", entries), back), 0) << reader.message();
  const std::string& text = back.document.annotations->items.at(0).text;
  EXPECT_EQ(text.substr(0, 7), "Kies kk");
  EXPECT_EQ(text.size(), Annotations::kLongestText);
}

}  // namespace
}  // namespace talvesk
