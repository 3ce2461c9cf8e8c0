#include "base/AtomicFile.h"
#include "io/StyleFile.h"
#include "model/TomoDocument.h"
#include "support/TestFolder.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::TestFolder;

SectionStyle example() {
  SectionStyle style;
  style.palette = ColorPaletteList()[3];
  style.palette.min_db = 321.5;
  style.palette.max_db = 4567.0;
  style.section.quantity = SectionQuantity::kLaplacian;
  style.section.verticalExaggeration = 2.5;
  style.section.smooth = true;
  style.section.contours.customized = true;
  style.section.contours.customValues = {800.0, 1500.0};
  style.isolines = {{"water table", 1500.0, 0x123456, 2.5}};
  return style;
}

class StyleFile : public ::testing::Test {
 protected:
  std::string text() {
    std::string bytes;
    EXPECT_TRUE(readWholeFile(path, bytes).ok());
    return bytes;
  }
  Status readWith(const std::string& before, const std::string& after) {
    std::string changed = sound;
    const auto at = changed.find(before);
    EXPECT_NE(at, std::string::npos) << before;
    changed.replace(at, before.size(), after);
    EXPECT_TRUE(writeFileAtomically(path, changed).ok());
    return readStyle(path, back);
  }
  TestFolder folder;
  std::string path = folder.file("a.tvstyle");
  std::string sound;
  SectionStyle back;
};

TEST_F(StyleFile, comesBackAsItWasAndLiesOnAnotherSurvey) {
  const SectionStyle style = example();
  ASSERT_TRUE(writeStyle(path, style).ok());
  ASSERT_TRUE(readStyle(path, back).ok());
  EXPECT_EQ(back.palette.color_gradient, style.palette.color_gradient);
  EXPECT_EQ(back.palette.min_db, 321.5);
  EXPECT_TRUE(back.section == style.section);
  EXPECT_EQ(back.isolines, style.isolines);

  TomoDocument document;
  document.annotations.edit().isolines = {{"old", 900.0}};
  document.annotations.edit().items = {{AnnotationKind::kText, "stays", {{1, 2}}}};
  ColorPaletteList palettes;
  SectionViewSettings section;
  const std::size_t before = palettes.size();
  applyStyle(back, document, palettes, section);
  EXPECT_EQ(palettes.size(), before) << "it has that palette already";
  EXPECT_EQ(palettes.currentIndex(), 3U);
  EXPECT_EQ(palettes.current().max_db, 4567.0);
  EXPECT_TRUE(section.lockRange) << "an inversion does not stretch it";
  EXPECT_EQ(section.verticalExaggeration, 2.5);
  EXPECT_EQ(section.quantity, SectionQuantity::kVelocity) << "what is shown stays";
  EXPECT_EQ(document.annotations->isolines, style.isolines);
  EXPECT_EQ(document.annotations->items.size(), 1U);
}

TEST_F(StyleFile, keepsAnotherPaletteOfItsName) {
  SectionStyle style = example();
  style.palette.color_gradient = ColorPaletteList()[4].color_gradient;
  TomoDocument document;
  ColorPaletteList palettes;
  SectionViewSettings section;
  const ColorGradient own = palettes[3].color_gradient;
  applyStyle(style, document, palettes, section);
  EXPECT_EQ(palettes[3].color_gradient, own);
  EXPECT_EQ(palettes.current().name, style.palette.name + " (2)");
  const std::size_t once = palettes.size();
  applyStyle({palettes.current(), section, {}}, document, palettes, section);
  EXPECT_EQ(palettes.size(), once) << "twice is no more";
}

TEST_F(StyleFile, isRefusedWhereItCannotBeDrawn) {
  ASSERT_TRUE(writeStyle(path, example()).ok());
  sound = text();
  const std::pair<const char*, const char*> changes[] = {
      {"<style_version>1<", "<style_version>2<"},
      {"<min_db>321.5<", "<min_db>nan<"},
      {"<verticalExaggeration>2.5<", "<verticalExaggeration>0<"},
      {"<velocity>1500<", "<velocity>-5<"},
      {"<quantity>2<", "<quantity>77<"},
      {"</cereal>", ""},
      {"<section_view>", "<section_vie>"}};
  for (const auto& [before, after] : changes) {
    const Status status = readWith(before, after);
    EXPECT_FALSE(status.ok()) << after;
    EXPECT_THAT(status.message(), HasSubstr("a.tvstyle")) << after;
    EXPECT_TRUE(back.palette.color_gradient.empty()) << "unchanged";
  }
  EXPECT_FALSE(readStyle(folder.file("none.tvstyle"), back).ok());
}

}  // namespace
}  // namespace talvesk
