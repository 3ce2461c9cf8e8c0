#include "figures/SectionPaper.h"
#include "model/TomographyOutcome.h"
#include "support/SectionDocument.h"
#include "view/SectionScene.h"

#include <QImage>
#include <QPainter>
#include <cmath>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::Contains;
using ::testing::Not;
using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t column) {
  return 400.0 + 110.0 * row + 5.0 * column;
}

/// A hilly section with everything that a sheet can show, under a dress.
class SectionPaperOf : public ::testing::Test {
 protected:
  SectionPaperOf() {
    TomoDocument document = sectionDocument(14, 60, 3.0, layered);
    document.title = "Line 7";
    document.result.edit().rays = {{0, 5, 10}};
    SectionSceneOptions options;
    options.rays = true;
    options.equallySpacedContours = 5;
    options.refractors = {
        {"", {{{105.0, 95.0}, {150.0, 96.0}}}},
        {"Refractor 2 (picks have changed since)", {{{105.0, 90.0}, {150.0, 91.0}}}}};
    EXPECT_TRUE(buildSectionScene(document, options, scene).ok());
    dress.font.setPixelSize(12);
    dress.title = "Line 7";
    dress.gridLines = true;
  }

  SectionPaper paper() { return {scene, SectionExtent(scene), colors, dress}; }
  SectionCamera fitted(const SectionPaper& sheet, const QSizeF& size, double exaggeration,
                       double turn = 0.0, double tilt = 0.0) {
    SectionCamera camera;
    camera.exaggeration = exaggeration;
    camera.turn = turn;
    camera.tilt = tilt;
    sheet.fit(camera, sheet.plotRect(size, exaggeration).size());
    return camera;
  }
  std::vector<PlacedText> textsOf(const SectionPaper& sheet, const QSize& size,
                                  const SectionCamera& camera) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    return sheet.paint(painter, size, camera);
  }
  static std::vector<std::string> words(const std::vector<PlacedText>& texts) {
    std::vector<std::string> found;
    for (const PlacedText& placed : texts) found.push_back(placed.text.toStdString());
    return found;
  }

  SectionScene scene;
  ColorTable colors{ColorPaletteList().current(), {300.0, 2300.0}};
  SectionDress dress;
};

TEST_F(SectionPaperOf, showsWhatIsKnownOfTheGround) {
  const auto shown = [this] {
    const SectionPaper sheet = paper();
    const QSize size(1100, 700);
    return words(textsOf(sheet, size, fitted(sheet, size, 1.0)));
  };
  EXPECT_THAT(shown(), Not(Contains("Boreholes")));
  scene.known.boreholes = {{"B1", 120.0, -2.5, {{98.0, 95.0, 450.0}, {95.0, 90.0, 1600.0}}}};
  scene.known.depths = {{"P1", {135.0, 94.0}, 1.0, 1200.0}};
  scene.known.bodies = {{"wall", 3200.0, {{142.0, 97.0}, {150.0, 97.0}, {150.0, 92.0}}}};
  const std::vector<std::string> found = shown();
  for (const char* word : {"Boreholes", "Known depths", "Fixed bodies", "450", "1600",
                           "B1 (-2.5 m beside the line)", "P1: 1200 m/s", "wall: 3200 m/s"}) {
    EXPECT_THAT(found, Contains(word));
  }
}

/// Every text is on the sheet, and none on another.
void expectApart(const std::vector<PlacedText>& texts, const QSize& size,
                 const std::string& where) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_TRUE(QRectF(QPointF(), size).contains(texts[i].outline.boundingRect()))
        << where << ": " << texts[i].text.toStdString();
    for (std::size_t k = 0; k < i; ++k) {
      EXPECT_FALSE(texts[i].outline.intersects(texts[k].outline))
          << where << ": " << texts[i].text.toStdString() << " on " << texts[k].text.toStdString();
    }
  }
}

const QSize kSizes[] = {{420, 560}, {700, 400}, {1100, 700}, {1600, 1000}};
const struct {
  double turn, tilt;
} kTurns[] = {{0, 0}, {36, 0}, {0, -50}, {36, 24}, {-48, 40}, {60, -56}, {-75, -75}};

TEST_F(SectionPaperOf, wordsStayOnTheSheetAndDoNotTouch) {
  const SectionPaper sheet = paper();
  for (const QSize& size : kSizes) {
    for (const auto& view : kTurns) {
      for (const double exaggeration : {1.0, 5.0}) {
        SectionCamera camera = fitted(sheet, size, exaggeration, view.turn, view.tilt);
        for (const double zoom : {1.0, 4.0}) {
          camera.metresPerPixel /= zoom;
          const std::vector<PlacedText> texts = textsOf(sheet, size, camera);
          const std::string where = std::to_string(size.width()) + " turned " +
                                    std::to_string(view.turn) + ", " + std::to_string(view.tilt) +
                                    " zoomed " + std::to_string(zoom);
          expectApart(texts, size, where);
          const std::vector<std::string> found = words(texts);
          // Seen all but edge-on, the axes give way to each other.
          if (std::abs(view.turn) < 75.0) {
            EXPECT_THAT(found, Contains("Distance [m]")) << where;
            EXPECT_THAT(found, Contains("Elevation [m]")) << where;
          }
          for (const char* word :
               {"Line 7", "Velocity [m/s]", "Geophones", "Shots", "Contours", "Rays", "Refractor 1",
                "Refractor 2 (picks have changed since)"}) {
            EXPECT_THAT(found, Contains(word)) << where;
          }
        }
      }
    }
  }
}

TEST_F(SectionPaperOf, aTurnedSectionIsAllInThePlot) {
  const SectionPaper sheet = paper();
  const SectionExtent extent(scene);
  for (const QSize& size : kSizes) {
    for (const auto& view : kTurns) {
      const QRectF plot(QPointF(), sheet.plotRect(size, 3.0).size());
      const SectionCamera camera = fitted(sheet, size, 3.0, view.turn, view.tilt);
      for (const double x : {extent.low.x, extent.high.x}) {
        for (const double z : {extent.low.z, extent.high.z}) {
          EXPECT_TRUE(plot.contains(camera.toPicture(plot.size()).map(QPointF(x, z))))
              << size.width() << " turned " << view.turn << ", " << view.tilt << ": " << x << ", "
              << z;
        }
      }
    }
  }
}

TEST_F(SectionPaperOf, axesOfATurnedSectionKeepTheirNumbersWhenItsEndsAreOutOfView) {
  const SectionPaper sheet = paper();
  const QSize size(1100, 700);
  SectionCamera camera = fitted(sheet, size, 2.0, 36.0, 24.0);
  camera.metresPerPixel /= 4.0;
  const QRect plot = sheet.plotRect(size, 2.0);
  int below = 0;
  int beside = 0;
  for (const PlacedText& placed : textsOf(sheet, size, camera)) {
    bool isNumber = false;
    placed.text.toDouble(&isNumber);
    if (!isNumber) continue;
    const QPointF middle = placed.outline.boundingRect().center();
    if (middle.y() > plot.bottom()) ++below;
    if (middle.x() < plot.left()) ++beside;
  }
  EXPECT_GE(below, 3);
  EXPECT_GE(beside, 3);
}

TEST_F(SectionPaperOf, numbersAreTheLocales) {
  scene.range = {0.0, 1.0};
  colors = ColorTable(ColorPaletteList().current(), scene.range);
  const QSize size(1100, 700);
  EXPECT_THAT(words(textsOf(paper(), size, fitted(paper(), size, 1.0))), Contains("0.5"));
  dress.locale = QLocale(QLocale::German, QLocale::Germany);
  EXPECT_THAT(words(textsOf(paper(), size, fitted(paper(), size, 1.0))), Contains("0,5"));
  colors = ColorTable(ColorPaletteList().current(), {0.0, 4000.0});
  EXPECT_THAT(words(textsOf(paper(), size, fitted(paper(), size, 1.0))), Contains("3000"));
}

TEST_F(SectionPaperOf, aSmallWindowShowsTheSectionAndSaysThatItIsExaggerated) {
  dress.mayShrink = true;
  const QSize size(260, 150);
  const std::vector<PlacedText> texts = textsOf(paper(), size, fitted(paper(), size, 2.0));
  expectApart(texts, size, "small");
  const std::vector<std::string> found = words(texts);
  EXPECT_THAT(found, Contains("Vertical exaggeration 2.0"));
  for (const char* word : {"Geophones", "Line 7", "Velocity [m/s]"}) {
    EXPECT_THAT(found, Not(Contains(word)));
  }
  EXPECT_GT(paper().plotRect(size, 2.0).height(), 70);
}

/// Twenty isolines may be marked, with names of 200 bytes.
TEST_F(SectionPaperOf, aWindowKeepsItsSectionWhateverTheLegendSays) {
  for (int i = 0; i < 20; ++i) {
    const MarkedIsoline mark{std::string(190, 'n') + " " + std::to_string(i), 5000.0 + i};
    scene.annotations.isolines.push_back({mark, {}});
  }
  dress.mayShrink = true;
  const QSize size(1340, 526);
  EXPECT_GT(paper().plotRect(size, 1.0).height(), 200);
  const std::vector<PlacedText> texts = textsOf(paper(), size, fitted(paper(), size, 1.0));
  EXPECT_THAT(words(texts), Contains(::testing::EndsWith(" 19: 5019 m/s (not reached)")));
  dress.mayShrink = false;
  scene.annotations.isolines.resize(1);
  const std::vector<std::string> whole =
      words(textsOf(paper(), QSize(4000, 900), fitted(paper(), QSize(4000, 900), 1.0)));
  EXPECT_THAT(whole, Contains(std::string(190, 'n') + " 0: 5000 m/s (not reached)"));
}

TEST_F(SectionPaperOf, textsOfAnnotationsLeaveTheAxesTheirNumbers) {
  const QSize size(1100, 700);
  const std::vector<std::string> before = words(textsOf(paper(), size, fitted(paper(), size, 1.0)));
  for (const double x : {102.0, 130.0, 158.0}) {
    Annotation note{AnnotationKind::kText, std::string(200, 'W'), {{x, 96.0}}};
    note.textSize = 48.0;
    scene.annotations.items = {note};
    const std::vector<std::string> found =
        words(textsOf(paper(), size, fitted(paper(), size, 1.0)));
    for (const char* word : {"Elevation [m]", "Distance [m]"}) EXPECT_THAT(found, Contains(word));
    EXPECT_GE(found.size(), before.size()) << "no number has gone";
  }
}

}  // namespace
}  // namespace talvesk
