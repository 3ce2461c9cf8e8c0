#include "figures/SectionFigure.h"
#include "figures/SectionPlot.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/CommaLocale.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"
#include "view/SectionScene.h"

#include <QByteArray>
#include <QImage>
#include <QLocale>
#include <cmath>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using testing::sectionDocument;
using ::testing::StartsWith;
using testing::TestFolder;

const SectionFigureOptions kDefaults;

double patchwork(std::uint32_t row, std::uint32_t column) {
  return 400.0 + 150.0 * row + 37.0 * ((column * 7 + row * 3) % 11);
}

struct Picture {
  std::string bytes;
  SectionFigureLayout layout;

  QImage image() const {
    return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                            static_cast<int>(bytes.size()));
  }
};

Picture pictureOf(const TomoDocument& document, const SectionFigureOptions& options,
                  FigureFormat format = FigureFormat::kPng) {
  Picture picture;
  QByteArray bytes;
  const Status status = renderSectionFigure(document, options, format, bytes, &picture.layout);
  EXPECT_TRUE(status.ok()) << status.message();
  picture.bytes = bytes.toStdString();
  return picture;
}

QRgb pixelAt(const QImage& image, const SectionFigureLayout& layout, double x, double elevation) {
  const double column = layout.xToMm(x) / layout.widthMm * image.width();
  const double row = layout.elevationToMm(elevation) / layout.heightMm * image.height();
  return image.pixel(static_cast<int>(column), static_cast<int>(row));
}

TEST(SectionFigure, refractorsWithoutANameStandInTheLegendByNumber) {
  SectionFigureOptions options;
  options.scene.refractors = {{"", {{{5.0, -1.0}, {20.0, -1.0}}}},
                              {"Bedrock", {{{5.0, -3.0}, {20.0, -3.0}}}}};
  const Picture picture =
      pictureOf(sectionDocument(6, 30, 1.0, patchwork), options, FigureFormat::kSvg);
  EXPECT_THAT(picture.bytes, HasSubstr(">Refractor 1<"));
  EXPECT_THAT(picture.bytes, HasSubstr(">Bedrock<"));
}

TEST(SectionFigure, theSuffixChoosesTheFormat) {
  const TestFolder folder;
  const TomoDocument document = sectionDocument(6, 30, 1.0, patchwork);
  const struct {
    const char *name, *begin;
  } facts[] = {{"a.png", "\x89PNG\r\n\x1a\n"},
               {"a.svg", "<?xml"},
               {"a.pdf", "%PDF-1."},
               {"B.PNG", "\x89PNG\r\n\x1a\n"}};
  for (const auto& fact : facts) {
    const std::string path = folder.file(fact.name);
    const Status status = writeSectionFigure(document, kDefaults, path);
    EXPECT_TRUE(status.ok()) << status.message();
    EXPECT_THAT(TestFolder::get(path), StartsWith(fact.begin)) << fact.name;
  }
  EXPECT_EQ(folder.entries(), 4);
}

TEST(SectionFigure, aFailureLeavesNoFileAndTouchesNone) {
  const TestFolder folder;
  TomoDocument document = sectionDocument(6, 30, 1.0, patchwork);
  const auto failure = [&document](const SectionFigureOptions& options, const std::string& path) {
    const Status status = writeSectionFigure(document, options, path);
    return status.ok() ? std::string("no failure") : status.message();
  };
  for (const char* name : {"a.bmp", "a", ".png/", "png"}) {
    EXPECT_THAT(failure(kDefaults, folder.file(name)), HasSubstr(".png, .svg or .pdf")) << name;
  }
  EXPECT_EQ(folder.entries(), 0);

  const std::string path = folder.put("a.png", "before");
  const struct {
    double width, height, dpi, exaggeration;
  } sizes[] = {{5.0, 0.0, 150.0, 0.0},   {1e9, 0.0, 150.0, 0.0},     {280.0, -1.0, 150.0, 0.0},
               {NAN, 0.0, 150.0, 0.0},   {280.0, NAN, 150.0, 0.0},   {280.0, 0.0, 1e6, 0.0},
               {45.0, 0.0, 150.0, 0.0},  {280.0, 25.0, 150.0, 0.0},  {280.0, 0.0, 150.0, -2.0},
               {280.0, 0.0, 150.0, NAN}, {5000.0, 0.0, 2400.0, 0.0}, {280.0, 0.0, 150.0, 1e9}};
  for (const auto& size : sizes) {
    SectionFigureOptions options;
    options.widthMm = size.width;
    options.heightMm = size.height;
    options.dpi = size.dpi;
    options.verticalExaggeration = size.exaggeration;
    EXPECT_NE(failure(options, path), "no failure") << size.width << " " << size.height;
  }
  SectionFigureOptions colorless;
  colorless.palette.color_gradient.clear();
  EXPECT_THAT(failure(colorless, path), HasSubstr("no colours"));
  document.model.edit().grid.reset();
  EXPECT_THAT(failure(kDefaults, path), HasSubstr("no grid"));
  EXPECT_EQ(TestFolder::get(path), "before");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(SectionFigure, everyCellHasItsColorAtItsPlace) {
  TomoDocument document = sectionDocument(8, 30, 1.5, patchwork);
  for (std::uint32_t cell = 0; cell < 240; ++cell) {
    document.model.edit().editGrid().setDraw(cell, cell < 60 || cell % 5 != 0);
  }
  SectionFigureOptions options;
  options.scene.range = ValueRange{300.0, 2000.0};
  const Picture picture = pictureOf(document, options);
  const QImage image = picture.image();
  const ColorTable table(options.palette, *options.scene.range);
  for (std::uint32_t cell = 30; cell < 240; ++cell) {  // markers stand in the first row
    const Point2D centre = document.model->grid->cellCentre(cell);
    QColor expected(Qt::white);
    if (document.model->grid->draw(cell)) {
      const RgbColor& c = table[table.indexOf(document.model->grid->velocity(cell))];
      expected = QColor::fromRgbF(c.r, c.g, c.b);
    }
    EXPECT_EQ(QColor(pixelAt(image, picture.layout, centre.x - document.model->xOffset, -centre.z))
                  .name(),
              expected.name())
        << "cell " << cell;
  }
}

TEST(SectionFigure, neighboursOfOneColorLeaveNoGap) {
  const TomoDocument document = sectionDocument(
      10, 60, 2.0,
      [](std::uint32_t, std::uint32_t column) { return column < 30 ? 500.0 : 500.0000001; });
  SectionFigureOptions options;
  options.scene.range = ValueRange{400.0, 600.0};
  const Picture picture = pictureOf(document, options);
  const QImage image = picture.image();
  const QRgb fill = pixelAt(image, picture.layout, 110.5, document.model->surface(11.5) - 5.5);
  for (double x = 99.2; x < 158.8; x += 0.05) {
    for (double depth = 2.0; depth < 9.0; depth += 0.05) {
      const double elevation = document.model->surface(x + document.model->xOffset) - depth;
      ASSERT_EQ(pixelAt(image, picture.layout, x, elevation), fill) << x << " " << depth;
    }
  }
}

TEST(SectionFigure, markersStandAtGeophonesAndShots) {
  const TomoDocument document = sectionDocument(8, 30, 1.5, patchwork);
  const Picture picture = pictureOf(document, kDefaults);
  const QImage image = picture.image();
  const double aboveTip = 1.2 / (picture.layout.xToMm(101.0) - picture.layout.xToMm(100.0));
  for (const Point2D& geophone : document.line->goephonesStringSet[0]) {
    if (std::abs(geophone.x - document.ttArray[0].shotPos2d.x) < 2.0) continue;
    EXPECT_EQ(pixelAt(image, picture.layout, geophone.x, geophone.z + aboveTip), qRgb(32, 32, 32))
        << geophone.x;
  }
  const Point2D& shot = document.ttArray[0].shotPos2d;
  EXPECT_EQ(pixelAt(image, picture.layout, shot.x, shot.z), qRgb(208, 32, 32));
}

double drawnExaggeration(const SectionFigureLayout& layout) {
  const double perMetreAcross = (layout.rightMm - layout.leftMm) / (layout.maxX - layout.minX);
  const double perMetreDown =
      (layout.bottomMm - layout.topMm) / (layout.maxElevation - layout.minElevation);
  return perMetreDown / perMetreAcross;
}

TEST(SectionFigure, metresAreAsHighAsWideUnlessTheCaptionSaysOtherwise) {
  const struct {
    std::uint32_t rows, columns;
    double height, asked, drawn;
  } facts[] = {{20, 40, 0.0, 0.0, 1.0},  {60, 20, 0.0, 0.0, 1.0}, {10, 100, 0.0, 0.0, 2.5},
               {20, 40, 90.0, 0.0, 1.0}, {20, 40, 0.0, 3.0, 3.0}, {4, 400, 0.0, 0.0, 10.0}};
  for (const auto& fact : facts) {
    const TomoDocument document = sectionDocument(fact.rows, fact.columns, 0.0, patchwork);
    SectionFigureOptions options;
    options.heightMm = fact.height;
    options.verticalExaggeration = fact.asked;
    const Picture picture = pictureOf(document, options, FigureFormat::kSvg);
    EXPECT_EQ(picture.layout.verticalExaggeration, fact.drawn);
    EXPECT_NEAR(drawnExaggeration(picture.layout), fact.drawn, 0.01 * fact.drawn);
    EXPECT_LE(picture.layout.minX, 99.0);
    EXPECT_GE(picture.layout.maxX, 99.0 + fact.columns);
    EXPECT_LE(picture.layout.minElevation, 100.0 - fact.rows);
    EXPECT_GT(picture.layout.maxElevation, 100.0);
    if (fact.drawn == 1.0) {
      EXPECT_THAT(picture.bytes, Not(HasSubstr("exaggeration")));
    } else {
      EXPECT_THAT(picture.bytes, HasSubstr("Vertical exaggeration"));
    }
  }
}

TEST(SectionFigure, hasTheSizeThatIsAskedFor) {
  const TomoDocument document = sectionDocument(8, 30, 1.5, patchwork);
  SectionFigureOptions options;
  options.widthMm = 254.0;
  options.heightMm = 127.0;
  options.dpi = 100.0;
  EXPECT_EQ(pictureOf(document, options).image().size(), QSize(1000, 500));
  EXPECT_THAT(pictureOf(document, options, FigureFormat::kSvg).bytes,
              HasSubstr("width=\"254mm\" height=\"127mm\""));
  const std::string pdf = pictureOf(document, options, FigureFormat::kPdf).bytes;
  EXPECT_NE(pdf.find("/MediaBox [0 0 720.000000 360.000000]"), std::string::npos);
}

TEST(SectionFigure, saysWhatItShowsAndTakesTitlesAsTheyAre) {
  TomoDocument document = sectionDocument(8, 30, 1.5, patchwork);
  document.title = "Line <b>3</b> & more";
  document.result.edit().coverageSpline.emplace();
  document.result.edit().coverageSpline->build({0.5, 29.5}, {-94.0, -94.0});
  document.result.edit().rays = {{0, 5, 10}};
  SectionFigureOptions options;
  options.scene.equallySpacedContours = 4;
  options.scene.rays = true;
  const std::string svg = pictureOf(document, options, FigureFormat::kSvg).bytes;
  for (const char* text :
       {"Distance [m]", "Elevation [m]", "Velocity [m/s]", "Geophones", "Shots", "Contours",
        "Coverage limit", ">Rays<", "1 ray<", "Line &lt;b&gt;3&lt;/b&gt; &amp; more"}) {
    EXPECT_THAT(svg, HasSubstr(text));
  }
  EXPECT_THAT(svg, Not(HasSubstr("<b>")));
}

TEST(SectionFigure, explainsTheColoursBesideAboveOrNotAtAll) {
  const TomoDocument document = sectionDocument(8, 30, 1.5, patchwork);
  SectionFigureOptions options;
  options.heightMm = 120.0;
  const Picture beside = pictureOf(document, options, FigureFormat::kSvg);
  options.colorBar = ColorBar::kHorizontal;
  const Picture above = pictureOf(document, options, FigureFormat::kSvg);
  options.colorBar = ColorBar::kNone;
  const Picture bare = pictureOf(document, options, FigureFormat::kSvg);
  EXPECT_THAT(beside.bytes, HasSubstr("Velocity [m/s]"));
  EXPECT_THAT(above.bytes, HasSubstr("Velocity [m/s]"));
  EXPECT_THAT(bare.bytes, Not(HasSubstr("Velocity [m/s]")));
  EXPECT_GT(above.layout.rightMm, beside.layout.rightMm + 15.0);
  EXPECT_GT(above.layout.topMm, beside.layout.topMm + 10.0);
  EXPECT_GT(bare.layout.rightMm, beside.layout.rightMm + 15.0);
  EXPECT_LT(bare.layout.topMm, above.layout.topMm - 10.0);
}

TEST(SectionFigure, onlyTheLanguageOfTheProgramChangesItsNumbers) {
  const TomoDocument document = sectionDocument(8, 30, 1.5, patchwork);
  SectionFigureOptions options;
  options.scene.quantity = SectionQuantity::kVerticalGradient;
  options.scene.equallySpacedContours = 4;
  options.verticalExaggeration = 1.25;
  const std::string before = pictureOf(document, options, FigureFormat::kSvg).bytes;
  const testing::CommaStreams streams;
  const testing::CommaNumbers numbers;
  EXPECT_EQ(pictureOf(document, options, FigureFormat::kSvg).bytes, before);
  const QLocale locale;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  const std::string german = pictureOf(document, options, FigureFormat::kSvg).bytes;
  QLocale::setDefault(locale);
  EXPECT_THAT(before, HasSubstr("exaggeration 1.25"));
  EXPECT_THAT(german, AllOf(HasSubstr("exaggeration 1,25"), Not(HasSubstr("exaggeration 1.25"))));
}

TEST(SectionFigure, vectorFilesStaySmall) {
  const TomoDocument document =
      sectionDocument(100, 400, 3.0, [](std::uint32_t row, std::uint32_t c) {
        return 400.0 + 25.0 * row + 200.0 * std::sin(c / 30.0);
      });
  for (const FigureFormat format : {FigureFormat::kSvg, FigureFormat::kPdf}) {
    EXPECT_LT(pictureOf(document, kDefaults, format).bytes.size(), 3000000U);
  }
}

}  // namespace
}  // namespace talvesk
