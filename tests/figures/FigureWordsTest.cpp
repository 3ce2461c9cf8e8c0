#include "figures/ElasticFigure.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/report/ReportBuilder.h"
#include "model/PickFingerprint.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/SectionDocument.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t /*column*/) {
  return 300.0 + 100.0 * row;
}

SectionScene sceneOf(const TomoDocument& document, const SectionSceneOptions& options = {}) {
  SectionScene scene;
  EXPECT_TRUE(buildSectionScene(document, options, scene).ok());
  return scene;
}

std::string captionOf(const SectionScene& scene, double exaggeration) {
  return FigureWords::joined(FigureWords::sectionFacts(scene, exaggeration)).toStdString();
}

TEST(FigureWords, theCaptionStatesWhatTheReaderCannotSee) {
  TomoDocument document = sectionDocument(8, 20, 0.0, layered);
  document.result.edit().has_tomographic_info = true;
  document.result.edit().RMSE_tomography = 2.3456;
  SectionSceneOptions options;
  options.range = ValueRange{300.0, 1000.0};
  options.equallySpacedContours = 6;
  const SectionScene scene = sceneOf(document, options);
  EXPECT_EQ(captionOf(scene, 1.0),
            "Velocity 300 to 1000 m/s   \u00B7   Contours every 100 m/s   \u00B7   "
            "last solver pass 2.35 %");
  document.result.edit().timesOfSection = true;
  document.ttArray.edit().front().ttMisurati.edit() = {0.010, 0.020, kNoTime};
  document.ttArray.edit().front().ttCalcolati.edit() = {0.011, 0.018, 0.5};
  document.result.edit().lastInversion = InversionRecord();
  document.result.edit().lastInversion->picks = fingerprintOfPicks(document.ttArray);
  EXPECT_THAT(captionOf(sceneOf(document), 1.0),
              HasSubstr("   \u00B7   RMS misfit 1.58 ms, 10 %   \u00B7   chi-square 7.56   "
                        "\u00B7   last solver pass 2.35 %"));
  document.ttArray.edit().front().ttMisurati.edit()[2] = 0.5;
  EXPECT_THAT(captionOf(sceneOf(document), 1.0),
              HasSubstr("1.29 ms, 8.16 %   \u00B7   chi-square 5.04   \u00B7   "
                        "picks have changed since the inversion"));
  EXPECT_THAT(captionOf(scene, 2.0), HasSubstr("Vertical exaggeration 2.0"));
  EXPECT_THAT(captionOf(scene, 1.25), HasSubstr("Vertical exaggeration 1.25"));
  document.result.edit().has_tomographic_info = false;
  EXPECT_THAT(captionOf(sceneOf(document), 1.0), Not(HasSubstr("RMS")));
}

TEST(FigureWords, numbersAreThoseOfTheLanguageWithoutMarksBetweenThousands) {
  const QLocale before;
  const struct {
    QLocale language;
    const char* exaggeration;
    const char* measured;
    const char* large;
  } cases[] = {{QLocale::c(), "Vertical exaggeration 2.5", "-0.25", "12500.5"},
               {QLocale(QLocale::German), "Vertical exaggeration 2,5", "-0,25", "12500,5"},
               {QLocale(QLocale::English), "Vertical exaggeration 2.5", "-0.25", "12500.5"}};
  for (const auto& c : cases) {
    QLocale::setDefault(c.language);
    EXPECT_EQ(FigureWords::exaggeration(2.5).toStdString(), c.exaggeration);
    EXPECT_EQ(report::number(-0.25, 2).toStdString(), c.measured);
    EXPECT_EQ(report::number(12500.5, 1).toStdString(), c.large);
    EXPECT_EQ(report::number(-0.001, 0).toStdString(), "0") << "nothing is minus nothing";
    EXPECT_EQ(figureNumber(12500.5).toStdString(), c.large);
  }
  QLocale::setDefault(before);
}

TEST(FigureWords, densitiesAreToldApartWhereNumbersHaveCommas) {
  DensityRule rule;
  rule.layers = {1800.0, 2100.5, 2350.0};
  EXPECT_EQ(densityText(rule).toStdString(), "Density 1800; 2100.5; 2350 kg/m3");
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  const std::string german = densityText(rule).toStdString();
  QLocale::setDefault(before);
  EXPECT_EQ(german, "Density 1800; 2100,5; 2350 kg/m3");
}

}  // namespace
}  // namespace talvesk
