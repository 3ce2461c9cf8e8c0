#include "io/PaletteFile.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;

ColorPalette mine() {
  ColorPalette palette;
  palette.name = "Mine <&> \"yours\"";
  palette.n_colors = 12;
  palette.min_db = 300.25;
  palette.max_db = 4200.5;
  palette.color_gradient.assign(
      {{1, 1, 1, 1}, {0, 0, 0, 0}, {0.33, 1.0, 245 / 255.0, 0.4F}, {0.5, 0, 0, 0.4F}});
  return palette;
}

void replace(std::string& text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  ASSERT_NE(at, std::string::npos) << what << " in " << text;
  text.replace(at, what.size(), by);
}

TEST(PaletteFile, holdsItsElementsAtTopLevelInTheirOrder) {
  ColorPalette palette;
  palette.name = "Two";
  palette.color_gradient.assign({{1, 0.33, 0, 1}, {0, 0, 0, 0.2F}});
  EXPECT_EQ(formatPalette(palette), R"(<?xml version="1.0" encoding="utf-8"?>
<cereal>
	<name xml:space="preserve">Two</name>
	<n_colors>64</n_colors>
	<is_editable>true</is_editable>
	<min_db>250</min_db>
	<max_db>3500</max_db>
	<color_gradient>
		<color size="dynamic">
			<value0>
				<mr>0</mr>
				<mg>0</mg>
				<mb>0</mb>
				<mval>0.20000000298023224</mval>
			</value0>
			<value1>
				<mr>1</mr>
				<mg>0.33000000000000002</mg>
				<mb>0</mb>
				<mval>1</mval>
			</value1>
		</color>
	</color_gradient>
</cereal>

)");
}

TEST(PaletteFile, comesBackAsItWasWithItsStopsInOrderWhateverTheLocale) {
  const testing::TestFolder folder;
  const std::string path = folder.file("mine.xml");
  const testing::CommaStreams streams;
  const testing::CommaNumbers numbers;
  ASSERT_TRUE(savePalette(path, mine()).ok());
  ColorPalette read;
  ASSERT_TRUE(loadPalette(path, read).ok());
  EXPECT_EQ(read.name, mine().name);
  EXPECT_EQ(read.n_colors, 12);
  EXPECT_EQ(read.min_db, 300.25);
  EXPECT_EQ(read.max_db, 4200.5);
  const auto& points = read.color_gradient.points();
  ASSERT_EQ(points.size(), 4U);
  EXPECT_EQ(points[0].mval, 0.0);
  EXPECT_EQ(points[1].mval, static_cast<double>(0.4F));
  EXPECT_EQ(points[1].mr, 0.33) << "stops at one place keep their order";
  EXPECT_EQ(points[2].mr, 0.5);
  EXPECT_EQ(points[3].mval, 1.0);
}

TEST(PaletteFile, takesItsNameFromTheFileWhenItHasNone) {
  const testing::TestFolder folder;
  ColorPalette palette = mine();
  palette.name.clear();
  const std::string path = folder.put("dark.blue.xml", formatPalette(palette));
  ASSERT_TRUE(loadPalette(path, palette).ok());
  EXPECT_EQ(palette.name, "dark.blue");
}

TEST(PaletteFile, tellsFailuresInTheWordsThatUsersKnow) {
  const testing::TestFolder folder;
  ColorPalette palette = mine();
  {
    const testing::ConsoleCapture console;
    const std::string path = folder.file("nowhere/mine.xml");
    EXPECT_THAT(savePalette(path, palette).message(), HasSubstr(path));
    EXPECT_EQ(console.error(), "[ERROR] Error in opening palette " + path +
                                   ".\n[ERROR] TomoDocument cannot be saved on disk.\n");
  }
  for (const std::string& path : {folder.file("none.xml"), folder.put("bad.xml", "<cereal>")}) {
    const testing::ConsoleCapture console;
    EXPECT_FALSE(loadPalette(path, palette).ok());
    EXPECT_EQ(console.error(), "[ERROR] Error in loading palette" + path +
                                   ".\n[ERROR] TomoDocument cannot be read from disk.\n");
    EXPECT_EQ(palette.name, mine().name) << "a failure changes nothing";
  }
}

std::string nested(std::size_t levels) {
  std::string text;
  for (std::size_t i = 0; i < levels; ++i) text += "<a>";
  for (std::size_t i = 0; i < levels; ++i) text += "</a>";
  return "<cereal>" + text + "</cereal>";
}

TEST(PaletteFile, refusesWhatCannotBeAPaletteAndSaysWhy) {
  const struct {
    std::string what, by, reason;
  } facts[] = {
      {"<n_colors>12", "<n_colors>twelve", "n_colors"},
      {"<n_colors>12", "<n_colors>99999999999999", "n_colors"},
      {"<min_db>300.25", "<min_db>nan", "range"},
      {"<min_db>300.25", "<min_db>300,25", "min_db"},
      {"<max_db>4200.5", "<max_db>1e300", "range"},
      {"<mval>0<", "<mval>inf<", "finite"},
      {"<mval>0</mval>", "", "mval"},
      {"<value0>", "<!--", "ends within"},
      {"<value0>", "<value0 a='<'>", "malformed"},
      {"<value0>", "<value0 a=1>", "malformed"},
      {"</cereal>", "", "ends within"},
      {"</cereal>", "</cereal></cereal>", "not opened"},
      {"<cereal>", "<!DOCTYPE a [<!ENTITY b 'c'>]><cereal>", "document type"},
      {"Mine", std::string("Mi\0ne", 5), "no text"},
      {"Mine", std::string(300, 'x'), "too long"},
      {"Mine", std::string(2 << 20, 'x'), "too large"},
  };
  for (const auto& fact : facts) {
    std::string text = formatPalette(mine());
    replace(text, fact.what, fact.by);
    ColorPalette palette;
    const Status status = parsePalette(text, "bad.xml", palette);
    EXPECT_FALSE(status.ok()) << fact.by.substr(0, 40);
    EXPECT_THAT(status.message(), HasSubstr("bad.xml")) << fact.by.substr(0, 40);
    EXPECT_THAT(status.message(), HasSubstr(fact.reason)) << fact.by.substr(0, 40);
  }
  ColorPalette palette;
  for (const std::string& text : {std::string(), std::string("hello"), std::string("<a></a>"),
                                  nested(14), nested(20), nested(100000)}) {
    EXPECT_FALSE(parsePalette(text, "bad.xml", palette).ok()) << text.substr(0, 40);
  }
}

TEST(PaletteFile, repairsWhatIsMeantClearly) {
  const struct {
    const char *what, *by;
    int colors;
    double min, max;
  } facts[] = {
      {"<n_colors>12", "<n_colors>-7", 1, 300.25, 4200.5},
      {"<n_colors>12", "<n_colors>2000000000", ColorTable::kMaxColors, 300.25, 4200.5},
      {"<min_db>300.25", "<min_db>5000", 12, 4200.5, 5000},
      {"<min_db>300.25", "<min_db>4200.5", 12, 4196.2995, 4204.7005},
      {"<mval>0<", "<mval>-3<", 12, 300.25, 4200.5},
      {"<mval>0<", "<mval>0.125<", 12, 300.25, 4200.5},
      {"<mr>0<", "<mr>-1<", 12, 300.25, 4200.5},
  };
  for (const auto& fact : facts) {
    std::string text = formatPalette(mine());
    replace(text, fact.what, fact.by);
    ColorPalette palette;
    const Status status = parsePalette(text, "odd.xml", palette);
    ASSERT_TRUE(status.ok()) << fact.by << ": " << status.message();
    EXPECT_EQ(palette.n_colors, fact.colors) << fact.by;
    EXPECT_DOUBLE_EQ(palette.min_db, fact.min) << fact.by;
    EXPECT_DOUBLE_EQ(palette.max_db, fact.max) << fact.by;
    const auto& points = palette.color_gradient.points();
    EXPECT_EQ(points.front().mval, 0.0) << fact.by;
    EXPECT_EQ(points.front().mr, 0.0) << fact.by;
    EXPECT_EQ(points.back().mval, 1.0) << fact.by;
  }
}

TEST(PaletteFile, refusesAGradientWithoutAColourAndOneOfTooMany) {
  ColorPalette palette = mine();
  ColorPalette read;
  palette.color_gradient.clear();
  EXPECT_THAT(parsePalette(formatPalette(palette), "a.xml", read).message(),
              HasSubstr("no colours"));
  palette.color_gradient.assign(std::vector<GradientColorPoint>(257));
  EXPECT_THAT(parsePalette(formatPalette(palette), "a.xml", read).message(),
              HasSubstr("more than 256"));
  palette.color_gradient.assign(std::vector<GradientColorPoint>(1));
  ASSERT_TRUE(parsePalette(formatPalette(palette), "a.xml", read).ok());
  EXPECT_EQ(read.color_gradient.points().size(), 2U) << "one colour from end to end";
}

}  // namespace
}  // namespace talvesk
