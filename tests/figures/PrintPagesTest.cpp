#include "base/LengthUnit.h"
#include "figures/print/PrintFigures.h"
#include "figures/print/PrintPages.h"
#include "model/InversionRecord.h"
#include "model/SurveyLine.h"
#include "support/PrintedSheets.h"
#include "support/SectionDocument.h"
#include "support/ShotDocument.h"
#include "support/TestFolder.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::geophonesApartMm;
using ::testing::HasSubstr;
using testing::imageOf;
using testing::layers;
using testing::lengthOf;
using ::testing::Not;
using testing::on;
using testing::prepared;
using testing::sectionDocument;
using testing::shotDocument;
using testing::svgOf;
using testing::TestFolder;

TEST(PrintPages, geophonesAreAsFarApartOnPaperAsTheScaleHasIt) {
  const TomoDocument section = sectionDocument(8, 30, 0.0, layers);
  const TomoDocument shots = shotDocument(3, 24, 400);
  const struct {
    bool traces;
    double scale;
    const char* paper;
    bool landscape;
    double exaggeration, dpi;
  } cases[] = {{false, 200.0, "A4", true, 0.0, 300.0},   {false, 250.0, "A4", false, 3.0, 150.0},
               {false, 125.0, "A3", true, 1.0, 300.0},   {false, 500.0, "A3", true, 2.0, 400.0},
               {true, 500.0, "Legal", true, 0.0, 300.0}, {true, 333.0, "A4", false, 0.0, 300.0}};
  for (const auto& c : cases) {
    PrintSettings settings = on(c.paper, c.landscape, c.scale);
    settings.exaggeration = c.exaggeration;
    const TomoDocument& document = c.traces ? shots : section;
    const PrintFigure figure = c.traces ? printedGather(shots, 0, {}) : printedSection(section, {});
    const QImage image = imageOf(prepared(figure, settings), c.dpi);
    const std::size_t geophones = document.line->goephonesStringSet[0].size();
    EXPECT_NEAR(geophonesApartMm(image, geophones, c.dpi), 1e3 * lengthOf(document) / c.scale,
                1.5 * kMmPerInch / c.dpi)
        << c.scale << " " << c.paper;
  }
}

/// What a page of a PDF is painted with.
std::string contentOf(const std::string& pdf) {
  const std::size_t begin = pdf.find("stream\n") + 7;
  const std::size_t end = pdf.find("endstream", begin);
  QByteArray packed("\0\0\x10\0", 4);  // qUncompress() wants a guess at the size
  packed.append(pdf.data() + begin, static_cast<int>(end - begin));
  return qUncompress(packed).toStdString();
}

TEST(PrintPages, inThePdfTenMetresAreTwentyMillimetresAtOneTo500) {
  const TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  const TestFolder folder;
  const PrintPages pages = prepared(printedSection(document, {}), on("A3", true, 500.0));
  ASSERT_TRUE(writePrint({pages}, folder.file("a.pdf")).ok());
  const std::string content = contentOf(TestFolder::get(folder.file("a.pdf")));
  // 1200 units to an inch, and within the figure 96.
  ASSERT_THAT(content, AllOf(HasSubstr("0.060000000 0 0 -0.060000000 0 842 cm"),
                             HasSubstr("12.5000000 0 0 12.5000000 ")));
  // Geophones are triangles of their own colour, which begin at the tip.
  const std::size_t from = content.find("0.125490196 0.125490196 0.125490196 scn");
  ASSERT_NE(from, std::string::npos);
  std::istringstream marks(content.substr(from, content.find("scn", from + 40) - from));
  std::vector<double> tips;
  for (std::string line; std::getline(marks, line);) {
    if (line.size() > 2 && line.substr(line.size() - 2) == " m") tips.push_back(std::stod(line));
  }
  ASSERT_EQ(tips.size(), document.line->goephonesStringSet[0].size());
  const double mm = (tips.back() - tips.front()) / 96.0 * kMmPerInch;
  EXPECT_NEAR(mm, 2.0 * lengthOf(document), 1e-3);
}

/// How far colours reach across and down.
QSizeF colouredMm(const PrintPages& pages) {
  constexpr double kDpi = 200.0;
  const QImage image = imageOf(pages, kDpi);
  QRect reach;
  for (int row = 0; row < image.height(); ++row) {
    for (int column = 0; column < image.width(); ++column) {
      if (image.pixelColor(column, row).saturation() >= 60) reach |= QRect(column, row, 1, 1);
    }
  }
  return QSizeF(reach.size()) / kDpi * kMmPerInch;
}

TEST(PrintPages, curvesGrowOnPaperAsTheScaleHasIt) {
  const TomoDocument document = shotDocument(12, 24, 0);
  const double metres =
      document.line->goephonesStringSet[0].back().x - document.ttArray[0].shotPos2d.x;
  const auto mmAt = [&](double scale) {
    return colouredMm(prepared(printedCurves(document, {}), on("A3", true, scale))).width();
  };
  // The symbols at the ends reach beyond their places, equally far at every scale.
  EXPECT_NEAR(mmAt(200.0) - mmAt(400.0), 1e3 * metres * (1.0 / 200.0 - 1.0 / 400.0), 0.4);
  EXPECT_NEAR(mmAt(200.0), 1e3 * metres / 200.0, 6.0);
}

TEST(PrintPages, timesAreAsHighAsMillisecondsToACentimetreHaveIt) {
  const TomoDocument document = shotDocument(3, 24, 400);
  // From the shot up to the last pick; and from it through the record down to the legend.
  const std::pair<PrintFigure, double> cases[] = {
      {printedCurves(document, {}), 1e3 * testing::firstBreak(23)},
      {printedGather(document, 0, {}), 399 * 0.25}};
  for (const auto& [figure, lasts] : cases) {
    const auto mmAt = [&, &drawn = figure](double msPerCm) {
      PrintSettings settings = on("A3", true, 250.0);
      settings.msPerCm = msPerCm;
      return colouredMm(prepared(drawn, settings)).height();
    };
    EXPECT_NEAR(mmAt(5.0) - mmAt(10.0), 10.0 * lasts * (1.0 / 5.0 - 1.0 / 10.0), 0.4);
    PrintSettings high = on("A3", true, 250.0);
    high.msPerCm = 0.5;
    PrintPages pages;
    EXPECT_THAT(preparePrint(figure, high, pages).message(),
                HasSubstr("or more milliseconds to a centimetre"));
  }
}

TEST(PrintPages, whatDoesNotFitIsRefusedWithAScaleAndAPaperThatDo) {
  const TomoDocument section = sectionDocument(8, 30, 0.0, layers);
  const TomoDocument shots = shotDocument(12, 24, 400);
  const PrintFigure figures[] = {printedSection(section, {}), printedCurves(shots, {}),
                                 printedGather(shots, 2, {})};
  for (const PrintFigure& figure : figures) {
    const PrintSettings tried = on("A4", false, 100.0);
    PrintPages pages;
    PrintFit fit;
    const std::string words = preparePrint(figure, tried, pages, &fit).message();
    const std::size_t at = words.find("choose 1:");
    ASSERT_NE(at, std::string::npos) << words;
    PrintSettings named = tried;
    named.sheet.scale = std::stod(words.substr(at + 9));
    EXPECT_GT(named.sheet.scale, 100.0);
    EXPECT_LE(named.sheet.scale, 500.0) << words;
    prepared(figure, named);

    EXPECT_FALSE(fit.fits);
    EXPECT_EQ(fit.scale, named.sheet.scale);
    ASSERT_FALSE(fit.paper.empty());
    prepared(figure, on(fit.paper, fit.landscape, 100.0));
    PrintSettings split = tried;
    split.tiles = true;
    const PrintPages sheets = prepared(figure, split);
    EXPECT_EQ(sheets.columns, fit.columns);
    EXPECT_EQ(sheets.rows, fit.rows);
    EXPECT_GT(sheets.count(), 1U);
  }
  PrintPages pages;
  PrintSettings huge = on("A4", false, 1.0);
  huge.tiles = true;  // larger than any drawing
  EXPECT_THAT(preparePrint(figures[0], huge, pages).message(), HasSubstr("choose 1:"));
}

TEST(PrintPages, refusesScalesThatAreNone) {
  const TomoDocument section = sectionDocument(8, 30, 0.0, layers);
  PrintPages pages;
  for (const double scale : {-5.0, 0.5, 1e9, std::nan("")}) {
    EXPECT_THAT(preparePrint(printedSection(section, {}), on("A3", true, scale), pages).message(),
                HasSubstr("The scale must lie between 1:1 and 1:1000000"));
  }
  PrintSettings settings = on("A3", true, 500.0);
  settings.msPerCm = -1.0;
  EXPECT_FALSE(preparePrint(printedCurves(section, {}), settings, pages).ok());
  settings = on("A3", true, 500.0);
  settings.exaggeration = 1e9;
  EXPECT_FALSE(preparePrint(printedSection(section, {}), settings, pages).ok());
}

TEST(PrintPages, toFitIsTheLargestScaleOfThreeDigits) {
  const TomoDocument section = sectionDocument(8, 30, 0.0, layers);
  const TomoDocument shots = shotDocument(5, 24, 400);
  const PrintFigure figures[] = {printedSection(section, {}), printedCurves(shots, {}),
                                 printedGather(shots, 0, {})};
  for (const PrintFigure& figure : figures) {
    for (const bool landscape : {true, false}) {
      const PrintPages pages = prepared(figure, on("A3", landscape, PrintSheet::kToFit));
      const double unit = std::pow(10.0, std::floor(std::log10(pages.scale)) - 2.0);
      EXPECT_NEAR(std::remainder(pages.scale, unit), 0.0, 1e-6 * unit);
      prepared(figure, on("A3", landscape, pages.scale));
      PrintPages larger;
      EXPECT_FALSE(preparePrint(figure, on("A3", landscape, pages.scale - unit), larger).ok())
          << pages.scale;
    }
  }
}

/// Of an inversion whose section fits better with every iteration.
InversionRecord recordOf(int iterations) {
  InversionRecord record;
  for (int i = 0; i < iterations; ++i) {
    SectionMisfit misfit;
    misfit.rmse = 0.002 / (1 + i);
    misfit.count = 40;
    record.sectionHistory.push_back(misfit);
  }
  return record;
}

TEST(PrintPages, figuresWithoutALengthFillTheSheetAtAnyScale) {
  TomoDocument document;
  const InversionRecord record = recordOf(5);
  for (const char* paper : {"A4", "A0"}) {
    const PrintPages pages = prepared(printedMisfit(document, record), on(paper, true, 1.0));
    EXPECT_EQ(pages.count(), 1U);
    EXPECT_EQ(pages.scale, 0.0);
    EXPECT_NEAR(std::max(pages.figureWidthMm / (pages.sheet.widthMm - 20.0),
                         pages.figureHeightMm / (pages.sheet.heightMm - 39.0)),
                1.0, 1e-6);
  }
}

TEST(PrintPages, misfitNamesThePassesOfASolverThatThereWere) {
  TomoDocument document;
  InversionRecord record = recordOf(3);
  for (int i = 0; i < 3; ++i) {
    Misfit pass;
    pass.rmse = 0.001;
    pass.count = 40;
    record.history.push_back(pass);
  }
  const std::string solved = svgOf(prepared(printedMisfit(document, record), on("A4", true, 1.0)));
  EXPECT_NE(solved.find("Last solver pass"), std::string::npos);
  EXPECT_NE(solved.find(">Section<"), std::string::npos);
  record.fit = FitRecord();
  const std::string fitted = svgOf(prepared(printedMisfit(document, record), on("A4", true, 1.0)));
  EXPECT_EQ(fitted.find("Last solver pass"), std::string::npos);
}

TEST(PrintPages, theBlockTellsTitleScalesAndLengthOfTheBar) {
  TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  document.title = "Dam & toe";
  SectionFigureOptions options;
  options.verticalExaggeration = 2.0;
  const PrintFigure figure = printedSection(document, options);
  const std::string picture = svgOf(prepared(figure, on("A3", true, 500.0)));
  for (const char* text : {"Scale 1:500", "Elevation 1:250", "Dam &amp; toe", ">25 m<"}) {
    EXPECT_THAT(picture, HasSubstr(text));
  }
  PrintSettings other = on("A3", true, 500.0);
  other.title = "Lot 7";
  other.exaggeration = 1.0;
  EXPECT_THAT(svgOf(prepared(figure, other)),
              AllOf(HasSubstr("Lot 7"), Not(HasSubstr("Dam")), Not(HasSubstr("Elevation 1:"))));
  setLengthUnit(LengthUnit::kFoot);
  EXPECT_THAT(svgOf(prepared(figure, on("A3", true, 500.0))), HasSubstr(">100 ft<"));
  setLengthUnit(LengthUnit::kMetre);
}

TEST(PrintPages, proposesTheFirstUsualScaleThatFitsOneSheet) {
  const TomoDocument section = sectionDocument(8, 30, 0.0, layers);  // 15 m and a bit
  const TomoDocument shots = shotDocument(12, 24, 400);
  const PrintFigure figures[] = {printedSection(section, {}), printedCurves(shots, {})};
  for (const PrintFigure& figure : figures) {
    for (const double side : {60.0, 100.0, 210.0}) {
      PrintSettings settings;
      settings.sheet = {500.0, 1.4 * side, side};
      const double scale = proposedScale(figure, settings);
      PrintPages pages;
      settings.sheet.scale = scale;
      const bool fitting = preparePrint(figure, settings, pages).ok();
      EXPECT_TRUE(fitting || scale == 500.0) << side;
      settings.sheet.scale = 500.0;
      const bool first = preparePrint(figure, settings, pages).ok();
      EXPECT_EQ(scale == 500.0, first || !fitting) << side;
    }
  }
  TomoDocument longLine = shotDocument(12, 24, 400);
  PrintSettings narrow;
  narrow.sheet = {500.0, 130.0, 210.0};
  double last = 0.0;
  for (const double longer : {1.0, 10.0, 30.0}) {
    for (Point2D& geophone : longLine.line.edit().goephonesStringSet[0]) geophone.x *= longer;
    const double scale = proposedScale(printedCurves(longLine, {}), narrow);
    EXPECT_GE(scale, last);
    last = scale;
  }
  EXPECT_GT(last, 5000.0);
}

TEST(PrintPages, aScaleAtWhichAFigureIsTooSmallDoesNotHideThoseThatFit) {
  TomoDocument document = shotDocument(12, 24, 400);
  for (Point2D& geophone : document.line.edit().goephonesStringSet[0]) geophone.x *= 4.0;
  const PrintFigure curves = printedCurves(document, {});
  PrintFigure figure = curves;
  figure.layOut = [&curves](const PrintSize& size, LaidFigure& laid) {
    if (size.scale > 20000.0) return Status::failure("too small");
    return curves.layOut(size, laid);
  };
  EXPECT_EQ(proposedScale(figure, on("A4", false, 500.0)),
            proposedScale(curves, on("A4", false, 500.0)));
  PrintFigure nothing = curves;
  nothing.layOut = [](const PrintSize&, LaidFigure&) { return Status::failure("nothing"); };
  EXPECT_EQ(proposedScale(nothing, on("A4", false, 500.0)), 500.0);
}

TEST(PrintPages, aPlaceBesideTheSectionIsItsEnd) {
  const TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  const DepthProfiles profiles(document);
  ASSERT_FALSE(profiles.empty());
  for (const double x : {profiles.left() - 0.004, profiles.right() + 0.004}) {
    const PrintPages pages =
        prepared(printedDepthProfile(document, profiles, x), on("A4", true, 1));
    EXPECT_EQ(svgOf(pages).find("no section here"), std::string::npos) << x;
  }
}

TEST(PrintPages, theTitleOfASectionWithoutOneIsWhatItShows) {
  TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  SectionFigureOptions options;
  EXPECT_EQ(printedSection(document, options).title, "Velocity");
  options.scene.quantity = SectionQuantity::kVerticalGradient;
  EXPECT_EQ(printedSection(document, options).title, "Vertical gradient of velocity");
  document.title = "Dam";
  EXPECT_EQ(printedSection(document, options).title, "Dam");
}

TEST(PrintPages, numbersAreThoseOfTheLanguage) {
  const TomoDocument document = sectionDocument(8, 30, 0.0, layers);
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  PrintSettings settings = on("A3", true, 40.0);
  settings.exaggeration = 1.5;
  settings.tiles = true;
  const std::string german = svgOf(prepared(printedSection(document, {}), settings));
  settings.sheet.scale = 12500.0;
  const std::string small = svgOf(prepared(printedSection(document, {}), settings));
  QLocale::setDefault(before);
  EXPECT_NE(german.find(">1,25<"), std::string::npos);
  EXPECT_NE(german.find("1:26,67"), std::string::npos);
  EXPECT_EQ(german.find("1:26.67"), std::string::npos);
  EXPECT_NE(small.find("1:12500"), std::string::npos) << "and nothing stands between thousands";
}

TEST(PrintPages, aFileHasAllSheetsOfAllFigures) {
  const TomoDocument document = shotDocument(3, 24, 400);
  std::vector<PrintPages> sets;
  for (std::size_t shot = 0; shot < 3; ++shot) {
    sets.push_back(prepared(printedGather(document, shot, {}), on("A3", true, 500.0)));
  }
  const TestFolder folder;
  ASSERT_TRUE(writePrint(sets, folder.file("a.pdf")).ok());
  const std::string pdf = TestFolder::get(folder.file("a.pdf"));
  EXPECT_THAT(pdf, AllOf(::testing::StartsWith("%PDF-1."), HasSubstr("/Count 3")));
  EXPECT_FALSE(writePrint({}, folder.file("b.pdf")).ok());
}

}  // namespace
}  // namespace talvesk
