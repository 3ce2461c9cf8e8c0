#include "export/DxfColor.h"
#include "export/DxfDocument.h"
#include "export/SectionDxf.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"
#include "view/SectionViewSettings.h"

#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <sstream>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

struct Entity {
  std::string kind;
  std::vector<std::pair<int, std::string>> groups;

  std::string text(int code) const {
    for (const auto& [at, value] : groups) {
      if (at == code) return value;
    }
    return {};
  }
  double number(int code) const { return std::stod(text(code)); }
};

/// A drawing by its pairs of group code and value, each entity with its groups.
struct Drawing {
  std::vector<Entity> entities;       ///< of the section of that name, vertices among them
  std::map<std::string, int> layers;  ///< of the table, with their colours
  bool complete = false;              ///< every section ends, and the file with its last group

  explicit Drawing(const std::string& path) {
    std::istringstream in(TestFolder::get(path));
    std::string code;
    std::string value;
    std::string section;
    int depth = 0;
    Entity current;
    while (std::getline(in, code) && std::getline(in, value)) {
      const int group = std::stoi(code);
      if (group != 0) {
        current.groups.emplace_back(group, value);
        continue;
      }
      take(current, section);
      current = {value, {}};
      depth += value == "SECTION" ? 1 : value == "ENDSEC" ? -1 : 0;
      complete = value == "EOF" && depth == 0;
    }
  }

  std::vector<Entity> of(const std::string& kind, const std::string& layer = {}) const {
    std::vector<Entity> found;
    for (const Entity& entity : entities) {
      if (entity.kind == kind && (layer.empty() || entity.text(8) == layer))
        found.push_back(entity);
    }
    return found;
  }

 private:
  void take(const Entity& entity, std::string& section) {
    if (entity.kind == "SECTION") section = entity.text(2);
    if (entity.kind == "LAYER") layers[entity.text(2)] = static_cast<int>(entity.number(62));
    if (section == "ENTITIES" && entity.kind != "SECTION" && entity.kind != "ENDSEC") {
      entities.push_back(entity);
    }
  }
};

/// Three rows of ten cells of 1 m below geophones from survey x = 100 m on, 100 m/s more in every
/// row.
TomoDocument placed() {
  TomoDocument document = sectionDocument(
      3, 10, 2.0, [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
  document.title = "Valley";
  document.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
  document.map.edit().geoCoord_isSet = true;
  return document;
}

DrawingOptions twoLines() {
  DrawingOptions options;
  options.isovalues = {550.0, 612.5};
  options.refractors = {
      {"first", {{{101.0, 97.0}, {103.0, 96.5}}, {{105.0, 96.0}, {107.0, 96.0}}}}};
  return options;
}

TEST(SectionDxf, drawsTheSectionInNamedLayersOfItsTable) {
  const ConsoleCapture console;
  const TestFolder folder;
  const TomoDocument document = placed();
  {
    const CommaStreams streams;
    const CommaNumbers numbers;
    ASSERT_TRUE(
        writeSectionDxf(folder.file("s.dxf"), document, twoLines(), DrawingPlace::kSection).ok());
  }
  const Drawing drawing(folder.file("s.dxf"));
  EXPECT_TRUE(drawing.complete);

  std::set<std::string> used;
  for (const Entity& entity : drawing.entities) used.insert(entity.text(8));
  std::set<std::string> known;
  for (const auto& [name, color] : drawing.layers) known.insert(name);
  EXPECT_EQ(used, known);
  EXPECT_THAT(known, UnorderedElementsAre("TITLE", "SURFACE", "ISOLINE_550", "ISOLINE_612_5",
                                          "REFRACTOR_1", "GEOPHONES", "SHOTS"));
  EXPECT_NE(drawing.layers.at("ISOLINE_550"), drawing.layers.at("ISOLINE_612_5"));

  EXPECT_EQ(drawing.of("POLYLINE", "REFRACTOR_1").size(), 2U) << "a piece each";
  const auto refractor = drawing.of("VERTEX", "REFRACTOR_1");
  ASSERT_EQ(refractor.size(), 4U);
  EXPECT_EQ(refractor[1].number(10), 103.0);
  EXPECT_EQ(refractor[1].number(20), 96.5);
  EXPECT_EQ(refractor[1].number(30), 0.0);
  const auto geophones = drawing.of("POINT", "GEOPHONES");
  const auto& string = document.line->goephonesStringSet[0];
  ASSERT_EQ(geophones.size(), string.size());
  for (std::size_t i = 0; i < string.size(); ++i) {
    EXPECT_NEAR(geophones[i].number(10), string[i].x, 6e-5);
    EXPECT_NEAR(geophones[i].number(20), string[i].z, 6e-5);
  }
  EXPECT_EQ(drawing.of("SEQEND").size(), drawing.of("POLYLINE").size());
  EXPECT_EQ(drawing.of("TEXT", "TITLE").front().text(1), "Valley");
  EXPECT_EQ(drawing.of("TEXT", "ISOLINE_612_5").front().text(1), "612.5 m/s");
}

TEST(SectionDxf, standsUprightOnTheMap) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeSectionDxf(folder.file("s.dxf"), placed(), twoLines(), DrawingPlace::kMap).ok());
  const Drawing drawing(folder.file("s.dxf"));
  for (const Entity& line : drawing.of("POLYLINE")) {
    EXPECT_EQ(static_cast<int>(line.number(70)) & 8, 8) << "a line through space";
  }
  // Three metres along a line that runs 0.6 to the east and 0.8 to the north.
  const Entity corner = drawing.of("VERTEX", "REFRACTOR_1")[1];
  EXPECT_NEAR(corner.number(10), 652000.0 + 0.6 * 3.0, 1e-4);
  EXPECT_NEAR(corner.number(20), 5074000.0 + 0.8 * 3.0, 1e-4);
  EXPECT_NEAR(corner.number(30), 96.5, 1e-4);

  // The name stands in a plane whose axes follow from its normal N: Z x N, then up.
  const Entity name = drawing.of("TEXT", "REFRACTOR_1").front();
  const double nx = name.number(210);
  const double ny = name.number(220);
  EXPECT_EQ(name.number(230), 0.0);
  EXPECT_NEAR(-ny, 0.6, 1e-9) << "reads along the line";
  EXPECT_NEAR(nx, 0.8, 1e-9);
  EXPECT_NEAR(name.number(10) * -ny + name.number(30) * nx, 652000.6, 1e-3);
  EXPECT_NEAR(name.number(10) * nx + name.number(30) * ny, 5074000.8, 1e-3);
  EXPECT_NEAR(name.number(20), 97.0, 1e-4);
}

TomoDocument annotated() {
  TomoDocument document = placed();
  Annotations& drawn = document.annotations.edit();
  drawn.isolines = {{"Grundwasser", 600.0, 0x0000ff, 2.0}, {"", 9000.0}};
  drawn.items = {
      {AnnotationKind::kText, "old quarry", {{104.0, 98.0}}, Lithology::kNone, 0xff0000, 1.5, 18.0},
      {AnnotationKind::kLine, "fault", {{102.0, 97.0}, {102.0, 99.0}}},
      {AnnotationKind::kPolygon, "", {{103, 99}, {106, 99}, {105, 97}}, Lithology::kGravel},
      {AnnotationKind::kPolygon, "pit", {{103, 97}, {106, 97}, {105, 96}}}};
  return document;
}

TEST(SectionDxf, hasWhatTheUserHasDrawnInLayersOfItsKind) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeSectionDxf(folder.file("s.dxf"), annotated(), {}, DrawingPlace::kSection).ok());
  const Drawing drawing(folder.file("s.dxf"));
  EXPECT_FALSE(drawing.of("POLYLINE", "MARKED_ISOLINE_600").empty());
  EXPECT_EQ(drawing.of("TEXT", "MARKED_ISOLINE_600").front().text(1), "Grundwasser: 600 m/s");
  EXPECT_EQ(drawing.of("POLYLINE", "MARKED_ISOLINE_600").front().text(62), "170") << "its blue";
  EXPECT_EQ(drawing.layers.count("MARKED_ISOLINE_9000"), 0U) << "so fast nothing is";

  const Entity text = drawing.of("TEXT", "ANNOTATION_TEXT").front();
  EXPECT_EQ(text.text(1), "old quarry");
  EXPECT_EQ(text.text(62), "10") << "red";
  EXPECT_EQ(text.text(72), "4") << "in its middle";
  EXPECT_EQ(text.number(11), 104.0);
  EXPECT_EQ(text.number(21), 98.0);
  const Entity fault = drawing.of("TEXT", "ANNOTATION_LINE").front();
  EXPECT_NEAR(fault.number(40) * 2.0, text.number(40), 2e-4) << "of 9 and of 18 points";
  EXPECT_EQ(fault.number(21), 98.0) << "halfway";
  const auto gravel = drawing.of("POLYLINE", "GROUND_GRAVEL");
  ASSERT_EQ(gravel.size(), 1U);
  EXPECT_EQ(gravel[0].text(70), "1") << "closed";
  EXPECT_EQ(drawing.of("VERTEX", "GROUND_GRAVEL").size(), 3U);
  EXPECT_TRUE(drawing.of("TEXT", "GROUND_GRAVEL").empty());
  EXPECT_EQ(drawing.of("TEXT", "ANNOTATION_AREA").front().text(1), "pit");
}

/// Before there is a grid only the isolines have nothing to run through.
TEST(SectionDxf, hasWhatTheUserHasDrawnWithoutAGridToo) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = annotated();
  document.model.edit().grid = {};
  for (const DrawingPlace place : {DrawingPlace::kSection, DrawingPlace::kMap}) {
    ASSERT_TRUE(writeSectionDxf(folder.file("s.dxf"), document, twoLines(), place).ok());
    const Drawing drawing(folder.file("s.dxf"));
    EXPECT_EQ(drawing.of("POLYLINE", "REFRACTOR_1").size(), 2U);
    EXPECT_EQ(drawing.of("TEXT", "ANNOTATION_TEXT").size(), 1U);
    EXPECT_EQ(drawing.of("VERTEX", "ANNOTATION_LINE").size(), 2U);
    EXPECT_EQ(drawing.of("VERTEX", "GROUND_GRAVEL").size(), 3U);
    EXPECT_EQ(drawing.of("TEXT", "ANNOTATION_AREA").size(), 1U);
    EXPECT_EQ(drawing.layers.count("MARKED_ISOLINE_600"), 0U);
  }
}

TEST(SectionDxf, standsAnnotationsOnTheMapToo) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeSectionDxf(folder.file("s.dxf"), annotated(), {}, DrawingPlace::kMap).ok());
  const Drawing drawing(folder.file("s.dxf"));
  const Entity corner = drawing.of("VERTEX", "ANNOTATION_LINE")[0];
  EXPECT_NEAR(corner.number(10), 652000.0 + 0.6 * 2.0, 1e-4);
  EXPECT_NEAR(corner.number(30), 97.0, 1e-4);
  // Its middle in the plane of the text: along the line, up, and out of the plane.
  const Entity text = drawing.of("TEXT", "ANNOTATION_TEXT").front();
  const double nx = text.number(210);
  const double ny = text.number(220);
  EXPECT_NEAR(text.number(11) * -ny + text.number(31) * nx, 652000.0 + 0.6 * 4.0, 1e-3);
  EXPECT_NEAR(text.number(11) * nx + text.number(31) * ny, 5074000.0 + 0.8 * 4.0, 1e-3);
  EXPECT_NEAR(text.number(21), 98.0, 1e-4);
}

TEST(DxfColor, isTheNearestOfTheIndex) {
  const std::pair<std::uint32_t, int> kColors[] = {
      {0x000000, 7},   {0xffffff, 255}, {0xff0000, 10}, {0xffff00, 50},  {0x00ff00, 90},
      {0x0000ff, 170}, {0xff00ff, 210}, {0xff7f7f, 11}, {0x808080, 253}, {0x4c0000, 16}};
  for (const auto& [rgb, index] : kColors)
    EXPECT_EQ(nearestDxfColor(rgb), index) << std::hex << rgb;
}

TEST(SectionDxf, isWrittenBeforeThereIsAGrid) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  document.model.edit().grid.reset();
  document.line.edit().goephonesStringSet[0][1].x = std::numeric_limits<double>::quiet_NaN();
  ASSERT_TRUE(
      writeSectionDxf(folder.file("s.dxf"), document, twoLines(), DrawingPlace::kSection).ok());
  const Drawing drawing(folder.file("s.dxf"));
  EXPECT_EQ(drawing.of("POLYLINE", "REFRACTOR_1").size(), 2U);
  EXPECT_EQ(drawing.of("POINT", "GEOPHONES").size(),
            document.line->goephonesStringSet[0].size() - 1);
  EXPECT_THAT(TestFolder::get(folder.file("s.dxf")), ::testing::Not(HasSubstr("nan")));
}

TEST(SectionDxf, isRefusedWithReasonAndLeavesNoFile) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("s.dxf");
  TomoDocument nowhere = placed();
  nowhere.map.edit().geoCoord_isSet = false;
  EXPECT_THAT(writeSectionDxf(path, nowhere, {}, DrawingPlace::kMap).message(),
              HasSubstr("no place on the map"));
  EXPECT_THAT(writeSectionDxf(path, TomoDocument(), {}, DrawingPlace::kSection).message(),
              HasSubstr("no geophones"));
  DrawingOptions many;
  many.isovalues.assign(SectionSceneOptions::kMaxContours + 1, 600.0);
  EXPECT_FALSE(writeSectionDxf(path, placed(), many, DrawingPlace::kSection).ok());
  EXPECT_EQ(folder.entries(), 0);
}

TEST(DxfDocument, keepsTextsOneLineOfAscii) {
  const std::pair<const char*, const char*> kTexts[] = {{"Valley 2", "Valley 2"},
                                                        {"two\r\nlines\ttab", "two  lines tab"},
                                                        {"Köln Ω", "K\\U+00F6ln \\U+03A9"},
                                                        {"50 % wet", "50 % wet"},
                                                        {"100%%d", "100%%%%%%d"},
                                                        {"a^b", "a^ b"},
                                                        {"C:\\User\\M", "C:\\U+005CUser\\U+005CM"},
                                                        {"\xF0\x9F\x98\x80", "\\U+D83D\\U+DE00"}};
  for (const auto& [text, written] : kTexts) EXPECT_EQ(dxfText(text), written) << text;
}

TEST(ProposedIsovalues, areTheContoursInViewElseRoundOnes) {
  const TomoDocument document = placed();
  ColorPaletteList palettes;
  SectionViewSettings settings;
  settings.quantity = SectionQuantity::kVerticalGradient;
  EXPECT_THAT(proposedIsovalues(document, settings, palettes.current()),
              ::testing::AllOf(::testing::Contains(500.0), ::testing::Contains(700.0)))
      << "round values over what is drawn";
  settings.contours.onProfile = true;
  settings.contours.customized = true;
  settings.contours.customValues = {520.0, 640.0};
  EXPECT_THAT(proposedIsovalues(document, settings, palettes.current()), ElementsAre(520.0, 640.0));
  EXPECT_TRUE(proposedIsovalues(TomoDocument(), settings, palettes.current()).empty());
}

}  // namespace
}  // namespace talvesk
