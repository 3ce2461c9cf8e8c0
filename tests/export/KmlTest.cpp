#include "export/KmlDocument.h"
#include "export/LinePlacement.h"
#include "export/SectionKml.h"
#include "export/SeismicLineKml.h"
#include "model/Annotations.h"
#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr ValueRange kRange{500.0, 700.0};

/// Eight metres of geophones in a row from survey x = 100 m on, over three rows of ten cells of 1
/// m.
TomoDocument placed(double relief = 0.0) {
  TomoDocument document = sectionDocument(
      3, 10, relief, [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
  document.title = "Valley";
  document.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
  document.map.edit().geoCoord_isSet = true;
  return document;
}

/// Leaves of an XML file with the path of their elements below the document, in order.
struct Leaves {
  std::vector<std::pair<std::string, std::string>> all;
  std::string error;

  explicit Leaves(const std::string& path) {
    const std::string bytes = TestFolder::get(path);
    QXmlStreamReader xml(QByteArray::fromStdString(bytes));
    QStringList stack;
    QString text;
    bool leaf = false;
    while (!xml.atEnd()) {
      switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
          EXPECT_EQ(xml.namespaceUri(), QLatin1String("http://www.opengis.net/kml/2.2"));
          stack << xml.name().toString();
          text.clear();
          leaf = true;
          break;
        case QXmlStreamReader::Characters:
          text += xml.text();
          break;
        case QXmlStreamReader::EndElement:
          if (leaf) all.emplace_back(stack.join('/').toStdString(), text.toStdString());
          leaf = false;
          stack.removeLast();
          break;
        default:
          break;
      }
    }
    if (xml.hasError()) error = xml.errorString().toStdString();
  }

  std::vector<std::string> of(const std::string& element) const {
    std::vector<std::string> values;
    for (const auto& [path, text] : all) {
      if (path == element) values.push_back(text);
    }
    return values;
  }
};

const std::string kMark = "kml/Document/Placemark";

TEST(SeismicLineKml, marksEveryGeophoneAndShotInTenDigits) {
  const ConsoleCapture console;
  const CommaNumbers commas;
  const CommaStreams streams;
  const TestFolder folder;
  const std::string path = folder.file("line.kml");
  TomoDocument document = placed();
  document.line.edit().goephonesStringSet.push_back({{116.0, 0.0}, {108.0, 0.0}});
  ASSERT_TRUE(writeSeismicLineKml(path, document).ok());
  EXPECT_THAT(TestFolder::get(path),
              ::testing::StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
  EXPECT_EQ(console.error(), "PROJ\n") << "one transformation per export";

  const Leaves leaves(path);
  EXPECT_EQ(leaves.error, "");
  EXPECT_THAT(leaves.of("kml/Document/name"), ElementsAre("Shots and Receivers"));
  EXPECT_THAT(leaves.of("kml/Document/description"), ElementsAre("Content"));
  EXPECT_THAT(leaves.of(kMark + "/name"),
              ElementsAre("G-0-0", "G-0-1", "G-0-2", "G-0-3", "G-0-4", "G-1-0", "G-1-1", "S-0"));
  EXPECT_THAT(leaves.of(kMark + "/Style/IconStyle/scale"), ::testing::Each("0.8"));
  EXPECT_THAT(leaves.of(kMark + "/Point/altitudeMode"), ::testing::Each("relativeToGround"));
  const auto icons = leaves.of(kMark + "/Style/IconStyle/Icon/href");
  const std::string icon = "https://earth.google.com/earth/document/icon?color=";
  EXPECT_EQ(icons.front(), icon + "d32f2f&id=2000&scale=4");
  EXPECT_EQ(icons.back(), icon + "779900&id=2000&scale=4");

  // Metres from the first geophone; the line rises 0.6 m east and 0.8 m north with each of them.
  const double distances[] = {0.0, 2.0, 4.0, 6.0, 8.0, 16.0, 8.0, 1.0};
  const auto coordinates = leaves.of(kMark + "/Point/coordinates");
  ASSERT_EQ(coordinates.size(), 8U);
  const GeoTransformer transformer(32632);
  for (std::size_t i = 0; i < 8; ++i) {
    LonLat place;
    ASSERT_TRUE(transformer.transform(652000.0 + 0.6 * distances[i], 5074000.0 + 0.8 * distances[i],
                                      place));
    EXPECT_EQ(coordinates[i], QString::number(place.longitude, 'g', 10).toStdString() + "," +
                                  QString::number(place.latitude, 'g', 10).toStdString() + ",0.0+");
  }
  EXPECT_EQ(coordinates[0], "10.95607815,45.80281645,0.0+");
}

TEST(SeismicLineKml, leavesOutWhatHasNoPosition) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  document.line.edit().goephonesStringSet[0][1].x = kNan;
  document.ttArray.edit()[0].shotPos2d.x = 1e300;
  ASSERT_TRUE(writeSeismicLineKml(folder.file("line.kml"), document).ok());
  EXPECT_THAT(Leaves(folder.file("line.kml")).of(kMark + "/name"),
              ElementsAre("G-0-0", "G-0-2", "G-0-3", "G-0-4"));
  EXPECT_THAT(console.error(), HasSubstr("G-0-1 has no position and is left out\n"));
  EXPECT_THAT(console.error(), HasSubstr("S-0 has no position and is left out\n"));
}

TEST(SectionKml, standsTheDrawnCellsOnTheLineLikeAWall) {
  const ConsoleCapture console;
  const CommaStreams streams;
  const TestFolder folder;
  const std::string path = folder.file("section.kml");
  TomoDocument document = placed();
  document.title = "Valley <3> & \"more\" \x01";
  for (std::uint32_t column = 0; column < 10; ++column)
    document.model.edit().editGrid().setDraw(20 + column, false);
  document.model.edit().editGrid().setDraw(19, false);
  ASSERT_TRUE(writeSectionKml(path, document, ColorPaletteList().current(), kRange).ok());
  EXPECT_EQ(console.out(), "Exporting tomographic data on KML file: " + path + "\n");

  const Leaves leaves(path);
  EXPECT_EQ(leaves.error, "");
  const std::string title = "Valley <3> & \"more\" \xEF\xBF\xBD";
  EXPECT_THAT(leaves.of("kml/Document/name"), ElementsAre(title + " Profile"));
  EXPECT_THAT(leaves.of("kml/Document/description"), ElementsAre(title));
  const std::string poly = kMark + "/Style/PolyStyle/";
  EXPECT_THAT(leaves.of(poly + "colorMode"), ::testing::Each("normal"));
  EXPECT_THAT(leaves.of(poly + "fill"), ::testing::Each("1"));
  EXPECT_THAT(leaves.of(poly + "outline"), ::testing::Each("0"));
  EXPECT_THAT(leaves.of(kMark + "/Polygon/altitudeMode"), ::testing::Each("relativeToGround"));
  const auto rings = leaves.of(kMark + "/Polygon/outerBoundaryIs/LinearRing/coordinates");
  ASSERT_EQ(rings.size(), 19U);
  ASSERT_EQ(leaves.of(poly + "color").size(), 19U);
  EXPECT_EQ(leaves.of(poly + "color").front(), "ff430034") << "the first stop, blue first";
  EXPECT_EQ(leaves.of(poly + "color").back(), "ff7b8019") << "the stop in the middle";

  const GeoTransformer transformer(32632);
  for (int cell = 0; cell < 19; ++cell) {
    SCOPED_TRACE(cell);
    const QStringList vertices =
        QString::fromStdString(rings[static_cast<std::size_t>(cell)]).split('\n');
    ASSERT_EQ(vertices.size(), 7) << "five between the line breaks at both ends";
    // The grid begins a metre before the first geophone; the second row is the lowest one drawn.
    const double left = cell % 10 - 1.0;
    const double lower = cell < 10 ? 1.0 : 0.0;
    const double expected[5][2] = {{left, lower},
                                   {left + 1.0, lower},
                                   {left + 1.0, lower + 1.0},
                                   {left, lower + 1.0},
                                   {left, lower}};
    for (int i = 0; i < 5; ++i) {
      const QStringList numbers = vertices[i + 1].split(',');
      ASSERT_EQ(numbers.size(), 3);
      LonLat place;
      ASSERT_TRUE(transformer.transform(652000.0 + 0.6 * expected[i][0],
                                        5074000.0 + 0.8 * expected[i][0], place));
      EXPECT_NEAR(numbers[0].toDouble(), place.longitude, 6e-9);
      EXPECT_NEAR(numbers[1].toDouble(), place.latitude, 6e-9);
      EXPECT_NEAR(numbers[2].toDouble(), expected[i][1], 1e-6);
    }
  }
}

TEST(SectionKml, hasTheMarkedIsolinesUnderTheirNames) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  const std::vector<double> velocities = document.model->grid->velocities();
  const auto [least, most] = std::minmax_element(velocities.begin(), velocities.end());
  document.annotations.edit().isolines = {{"water <table>", 0.5 * (*least + *most), 0x1122ff, 2.5},
                                          {"bedrock", 19000.0}};
  const std::string path = folder.file("section.kml");
  ASSERT_TRUE(writeSectionKml(path, document, ColorPaletteList().current(), kRange).ok());
  const Leaves leaves(path);
  EXPECT_EQ(leaves.error, "");
  EXPECT_THAT(leaves.of(kMark + "/name"), ::testing::Each("water <table>"));
  EXPECT_FALSE(leaves.of(kMark + "/name").empty());
  EXPECT_THAT(leaves.of(kMark + "/Style/LineStyle/color"), ::testing::Each("ffff2211"));
  EXPECT_THAT(leaves.of(kMark + "/Style/LineStyle/width"), ::testing::Each("2.5"));
}

TEST(SectionKml, leavesNoGapsBetweenRowsUnderHills) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(
      writeSectionKml(folder.file("s.kml"), placed(3.0), ColorPaletteList().current(), kRange)
          .ok());
  const auto rings =
      Leaves(folder.file("s.kml")).of(kMark + "/Polygon/outerBoundaryIs/LinearRing/coordinates");
  ASSERT_EQ(rings.size(), 30U);
  double least = 1e9;
  std::vector<double> lower;
  std::vector<double> upper;
  for (const std::string& ring : rings) {
    const QStringList vertices = QString::fromStdString(ring).split('\n');
    lower.push_back(vertices[1].section(',', 2).toDouble());
    upper.push_back(vertices[3].section(',', 2).toDouble());
    least = std::min(least, lower.back());
  }
  EXPECT_EQ(least, 0.0);
  for (std::size_t i = 0; i < 20; ++i) EXPECT_EQ(lower[i], upper[i + 10]) << i;
}

TEST(SectionKml, colorsByWalkingTheStops) {
  ColorGradient bent;
  bent.add({0.0, 0.0, 0.0, 0.0});
  bent.add({1.0, 0.0, 0.0, 0.25});
  bent.add({1.0, 0.0, 0.0, 0.25});
  bent.add({0.0, 0.0, 1.0, 1.0});
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    double fraction;
    const char* color;
  } cases[] = {{-1.0, "ff000000"},     {0.0, "ff000000"},      {0.125, "ff000080"},
               {0.25, "ff0000ff"},     {0.5, "ff5500aa"},      {1.0, "ffff0000"},
               {1.5, "ffff0000"},      {infinity, "ffff0000"}, {kNan, "ff000000"},
               {-infinity, "ff000000"}};
  for (const auto& c : cases) EXPECT_EQ(kmlColor(bent, c.fraction), c.color) << c.fraction;
}

TEST(SectionKml, endsOfTheRangeAreTheEndsOfEveryBuiltInPalette) {
  const ColorPaletteList palettes;
  for (const ColorPalette& palette : palettes.palettes()) {
    const auto hex = [](const GradientColorPoint& p) {
      char text[9];
      std::snprintf(text, sizeof text, "ff%02lx%02lx%02lx", std::lround(p.mb * 255.0),
                    std::lround(p.mg * 255.0), std::lround(p.mr * 255.0));
      return std::string(text);
    };
    const auto& stops = palette.color_gradient.points();
    EXPECT_EQ(kmlColor(palette.color_gradient, 0.0), hex(stops.front())) << palette.name;
    EXPECT_EQ(kmlColor(palette.color_gradient, 1.0), hex(stops.back())) << palette.name;
  }
}

TEST(SectionKml, colorsUnknownVelocitiesLikeTheFastestAndLeavesOutWhatIsNoNumber) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  document.model.edit().editGrid().setSlowness(0, 0.0);
  document.model.edit().editGrid().setSlowness(1, kNan);
  ASSERT_TRUE(
      writeSectionKml(folder.file("s.kml"), document, ColorPaletteList().current(), kRange).ok());
  const auto colors = Leaves(folder.file("s.kml")).of(kMark + "/Style/PolyStyle/color");
  ASSERT_EQ(colors.size(), 29U);
  EXPECT_EQ(colors[0], "ff00e7fd");
  EXPECT_EQ(colors[1], "ff430034");
}

/// Everything that makes both exports impossible; the file of before stays.
TEST(Kml, isNotWrittenWithoutAPlaceOnTheGlobe) {
  const TestFolder folder;
  const auto broken = [](const auto& change) {
    TomoDocument document = placed();
    change(document);
    return document;
  };
  using D = TomoDocument;
  const struct {
    D document;
    std::string message;
  } cases[] = {
      {broken([](D& d) { d.map.edit().geoCoord_isSet = false; }),
       noGeographicCoordinates().english()},
      {broken([](D& d) { d.line.edit().goephonesStringSet.clear(); }), "no geophones"},
      {broken([](D& d) { d.map.edit().geoCoord.CRS = 4326; }), "not a projected system"},
      {broken([](D& d) { d.map.edit().geoCoord.mEastFstGeoph = kNan; }), "not numbers"},
      {broken([](D& d) { d.map.edit().geoCoord.mNorthLstGeoph = HUGE_VAL; }), "not numbers"},
      {broken([](D& d) {
         d.map.edit().geoCoord = {32632, 5e5, 5e5, 5e6, 5e6};
       }),
       "same coordinates"},
      {broken([](D& d) { d.map.edit().geoCoord.mEastFstGeoph = 1e30; }),
       "outside of EPSG:32632 (WGS 84"},
  };
  const std::string path = folder.put("old.kml", "old");
  const ColorPaletteList palettes;
  for (const auto& c : cases) {
    for (const bool section : {false, true}) {
      const ConsoleCapture console;
      const Status status = section ? writeSectionKml(path, c.document, palettes.current(), kRange)
                                    : writeSeismicLineKml(path, c.document);
      EXPECT_THAT(status.message(), HasSubstr(c.message));
      EXPECT_THAT(console.error(), HasSubstr(status.message() + "\n"));
      EXPECT_EQ(TestFolder::get(path), "old");
    }
  }
  EXPECT_EQ(folder.entries(), 1);
}

TEST(Kml, keepsEastingAndNorthingWhereTheSystemCannotBeBuilt) {
  const TestFolder folder;
  const std::string path = folder.file("plain.kml");
  TomoDocument document = placed();
  document.map.edit().geoCoord = {99999, 5e5, 5e5 + 100.0, 5e6, 5e6};
  const ColorPaletteList palettes;
  for (const bool section : {false, true}) {
    const ConsoleCapture console;
    ASSERT_TRUE((section ? writeSectionKml(path, document, palettes.current(), kRange)
                         : writeSeismicLineKml(path, document))
                    .ok());
    EXPECT_THAT(TestFolder::get(path), HasSubstr("500000,5000000,"));
    EXPECT_THAT(console.error(), HasSubstr(path + " has easting and northing in place of"));
  }
}

TEST(SectionKml, isNotWrittenWithoutColorsOrCells) {
  const ConsoleCapture console;
  const TestFolder folder;
  const std::string path = folder.file("s.kml");
  const ColorPalette palette = ColorPaletteList().current();
  for (const ValueRange range :
       {ValueRange{500.0, 500.0}, ValueRange{600.0, 500.0}, ValueRange{500.0, kNan}}) {
    EXPECT_THAT(writeSectionKml(path, placed(), palette, range).message(), HasSubstr("range"));
  }
  EXPECT_THAT(writeSectionKml(path, placed(), {}, kRange).message(), HasSubstr("no colours"));
  TomoDocument document = placed();
  for (std::uint32_t cell = 0; cell < 30; ++cell)
    document.model.edit().editGrid().setDraw(cell, false);
  EXPECT_THAT(writeSectionKml(path, document, palette, kRange).message(), HasSubstr("no cell"));
  document.model.edit().grid.reset();
  EXPECT_THAT(writeSectionKml(path, document, palette, kRange).message(), HasSubstr("no grid"));
  EXPECT_THAT(writeSectionKml(folder.file("no/s.kml"), placed(), palette, kRange).message(),
              HasSubstr("no/s.kml"));
  EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace talvesk
