#include "support/SectionDocument.h"
#include "view/LabelPlace.h"
#include "view/SectionMeasure.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::sectionDocument;

/// 400 m/s in the first row, 100 m/s more in each below it.
double layered(std::uint32_t row, std::uint32_t) {
  return 400.0 + 100.0 * row;
}

SectionScene sceneOf(const TomoDocument& document, const SectionViewSettings& view) {
  SectionScene scene;
  EXPECT_TRUE(buildSectionScene(document, view, ColorPaletteList().current(), {}, scene).ok());
  return scene;
}

TEST(SectionAnnotations, markAVelocityWhateverTheSectionShows) {
  TomoDocument document = sectionDocument(10, 30, 0.0, layered);
  document.annotations.edit().isolines = {{"water table", 850.0}, {"rock", 9000.0}};
  SectionViewSettings view;
  for (const SectionQuantity quantity :
       {SectionQuantity::kVelocity, SectionQuantity::kVerticalGradient}) {
    view.quantity = quantity;
    const SectionScene scene = sceneOf(document, view);
    ASSERT_EQ(scene.annotations.isolines.size(), 2U);
    const DrawnIsoline& table = scene.annotations.isolines[0];
    ASSERT_EQ(table.lines.size(), 1U);
    // Means of corners: 850 m/s lies between rows 4 and 5, 5 m below the surface at 100 m.
    for (const Point2D& p : table.lines[0].points) EXPECT_NEAR(p.z, 95.0, 1e-9);
    EXPECT_TRUE(scene.annotations.isolines[1].lines.empty()) << "so fast nothing is";
  }
  view.profile = false;
  EXPECT_TRUE(sceneOf(document, view).annotations.isolines.empty()) << "of a section not shown";
}

TEST(SectionAnnotations, goWithTheSwitchOfTheViewAndTellWhatIsOutOfSight) {
  TomoDocument document = sectionDocument(10, 30, 0.0, layered);
  Annotation inside{AnnotationKind::kText, "clay pit", {{110.0, 95.0}}};
  Annotation crossing{AnnotationKind::kLine, "", {{0.0, 95.0}, {400.0, 95.0}}};
  Annotation below{AnnotationKind::kPolygon, "", {{105.0, 50.0}, {115.0, 50.0}, {110.0, 40.0}}};
  document.annotations.edit().items = {inside, crossing, below};
  SectionViewSettings view;
  const SectionScene scene = sceneOf(document, view);
  EXPECT_EQ(scene.annotations.items.size(), 3U);
  EXPECT_EQ(scene.annotations.outside, 1U);
  view.annotations = false;
  EXPECT_TRUE(sceneOf(document, view).annotations.empty());
}

TEST(SectionAnnotations, haveTheirTextsWhereTheyAre) {
  const std::vector<Point2D> horseshoe = {{0, 0}, {10, 0}, {10, 8}, {7, 8}, {7, 2},
                                          {3, 2}, {3, 8},  {1, 8},  {0, 8}};
  const Annotation area{AnnotationKind::kPolygon, "pit", horseshoe};
  EXPECT_EQ(labelPlace(area).x, 1.5) << "in its left arm, not in the gap between both";
  EXPECT_EQ(labelPlace(area).z, 4.0);
  const auto seen = labelPlace(horseshoe, {2.5, -1.0}, {20.0, 20.0});
  ASSERT_TRUE(seen.has_value());
  EXPECT_EQ(seen->x, 8.5) << "of the left arm less is seen than of the right one";
  const Annotation line{AnnotationKind::kLine, "fault", {{0, 0}, {0, 0}, {6, 0}, {6, -2}}};
  EXPECT_EQ(labelPlace(line).x, 4.0) << "halfway, not at a middle corner";
  EXPECT_EQ(labelPlace(line).z, 0.0);
  const Annotation spot{AnnotationKind::kLine, "", {{5, 5}, {5, 5}}};
  EXPECT_EQ(labelPlace(spot).x, 5.0);
}

TEST(SectionAnnotations, haveNoTextWhereTheAreaIsOutOfSight) {
  const std::vector<Point2D> angle = {{0, 82}, {90, 82}, {90, 84}, {4, 84}, {4, 100}, {0, 100}};
  EXPECT_FALSE(labelPlace(angle, {40.0, 86.0}, {50.0, 96.0})) << "between its legs";
  EXPECT_FALSE(labelPlace(angle, {95.0, 80.0}, {99.0, 90.0})) << "beside it";
  // The middle height of what is seen lies above the lying leg.
  const auto place = labelPlace(angle, {40.0, 80.0}, {50.0, 96.0});
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(place->x, 45.0);
  EXPECT_GT(place->z, 82.0);
  EXPECT_LT(place->z, 84.0);
  const auto flat = labelPlace({{2, 5}, {8, 5}, {4, 5}}, {0.0, 0.0}, {10.0, 10.0});
  ASSERT_TRUE(flat.has_value()) << "an area without height keeps its name";
  EXPECT_EQ(flat->x, 5.0);
}

TEST(Annotations, sayWhatCannotBe) {
  const double kNone = std::numeric_limits<double>::quiet_NaN();
  const Annotation text{AnnotationKind::kText, "here", {{1.0, 2.0}}};
  const Annotation area{AnnotationKind::kPolygon, "", {{0, 0}, {1, 0}, {1, 1}}, Lithology::kSand};
  EXPECT_TRUE(faultOf(text).empty());
  EXPECT_TRUE(faultOf(area).empty());
  using Change = void (*)(Annotation&);
  const struct {
    const char* what;
    const Annotation& of;
    Change change;
  } kFaults[] = {
      {"a text that says nothing", text, [](Annotation& a) { a.text.clear(); }},
      {"a text at two places", text,
       [](Annotation& a) {
         a.points.push_back({3, 4});
       }},
      {"a text nowhere", text, [](Annotation& a) { a.points.clear(); }},
      {"an endless text", text, [](Annotation& a) { a.text.assign(201, 'x'); }},
      {"a text of another size", text, [](Annotation& a) { a.textSize = 1e6; }},
      {"an area with two corners", area, [](Annotation& a) { a.points.pop_back(); }},
      {"a place off the earth", area, [](Annotation& a) { a.points[0].z = 1e300; }},
      {"another kind", area, [](Annotation& a) { a.kind = static_cast<AnnotationKind>(7); }},
      {"another pattern", area, [](Annotation& a) { a.pattern = static_cast<Lithology>(-1); }},
      {"a colour beyond white", area, [](Annotation& a) { a.color = 0x1000000; }},
      {"a line without width", area, [](Annotation& a) { a.width = 0.0; }}};
  for (const auto& fault : kFaults) {
    Annotation changed = fault.of;
    fault.change(changed);
    EXPECT_FALSE(faultOf(changed).empty()) << fault.what;
  }
  Annotation nowhere = text;
  nowhere.points[0].x = kNone;
  EXPECT_FALSE(faultOf(nowhere).empty());
  EXPECT_FALSE(faultOf(MarkedIsoline{"", kNone}).empty());
  Annotations many;
  many.items.assign(Annotations::kMostItems + 1, text);
  EXPECT_FALSE(faultOf(many).empty());
}

TEST(SectionMeasure, isThatOfTheGround) {
  const SectionMeasure up = measureSection({10.0, 100.0}, {13.0, 104.0});
  EXPECT_DOUBLE_EQ(up.distance, 5.0);
  EXPECT_DOUBLE_EQ(up.horizontal, 3.0);
  EXPECT_DOUBLE_EQ(up.vertical, 4.0);
  EXPECT_NEAR(up.slope, 53.1301, 1e-4);
  // To the left and down: the slope is that of the way, not of a turn.
  const SectionMeasure down = measureSection({10.0, 100.0}, {0.0, 90.0});
  EXPECT_DOUBLE_EQ(down.horizontal, 10.0);
  EXPECT_DOUBLE_EQ(down.slope, -45.0);
  EXPECT_EQ(measureSection({1.0, 1.0}, {1.0, 1.0}).slope, 0.0);
}

}  // namespace
}  // namespace talvesk
