#include "figures/TravelTimeFigure.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ShotDocument.h"
#include "support/TestFolder.h"

#include <QByteArray>
#include <QImage>
#include <cmath>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::firstBreak;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::shotDocument;
using ::testing::StartsWith;
using testing::TestFolder;

const TravelTimeFigureOptions kDefaults;

struct Curves {
  std::string bytes;
  TravelTimeFigureLayout layout;

  QColor colorAt(double x, double timeMs) const {
    const QImage image = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                          static_cast<int>(bytes.size()));
    const double column = layout.place.xToMm(x) / layout.place.widthMm * image.width();
    const double row = layout.place.yToMm(timeMs) / layout.place.heightMm * image.height();
    return image.pixelColor(static_cast<int>(column), static_cast<int>(row));
  }
};

Curves curvesOf(const TomoDocument& document, FigureFormat format,
                const TravelTimeFigureOptions& options = kDefaults) {
  Curves curves;
  QByteArray bytes;
  const Status status = renderTravelTimeFigure(document, options, format, bytes, &curves.layout);
  EXPECT_TRUE(status.ok()) << status.message();
  curves.bytes = bytes.toStdString();
  return curves;
}

TEST(TravelTimeFigure, picksStandAtDistanceAndTimeInTheColorOfTheirShot) {
  const TomoDocument document = shotDocument(1, 6, 0);
  const Curves curves = curvesOf(document, FigureFormat::kPng);
  ASSERT_EQ(curves.layout.picks.size(), 6U);
  const QColor star = curves.colorAt(document.ttArray[0].shotPos2d.x, 0.0);
  EXPECT_LT(star.lightness(), 150);
  for (std::size_t i = 0; i < 6; ++i) {
    const auto& pick = curves.layout.picks[i];
    EXPECT_EQ(pick.geophone, i);
    EXPECT_EQ(pick.x, document.line->goephonesStringSet[0][i].x);
    EXPECT_DOUBLE_EQ(pick.timeMs, 1e3 * firstBreak(i));
    EXPECT_EQ(curves.colorAt(pick.x, pick.timeMs), star) << i;
  }
  EXPECT_LT(curves.layout.place.yToMm(10.0), curves.layout.place.yToMm(0.0)) << "time is upward";
}

TEST(TravelTimeFigure, aMissingPickBreaksTheLine) {
  TomoDocument document = shotDocument(1, 6, 0);
  const auto lightnessBetween = [&document](std::size_t a, std::size_t b) {
    const double x = 0.5 * (document.line->goephonesStringSet[0][a].x +
                            document.line->goephonesStringSet[0][b].x);
    return curvesOf(document, FigureFormat::kPng)
        .colorAt(x, 500.0 * (firstBreak(a) + firstBreak(b)))
        .lightness();
  };
  EXPECT_LT(lightnessBetween(2, 3), 200);
  for (const double none : {0.0, kNoTime, static_cast<double>(NAN)}) {
    document.ttArray.edit()[0].ttMisurati.edit()[3] = none;
    EXPECT_EQ(lightnessBetween(2, 3), 255) << none;
    EXPECT_EQ(lightnessBetween(2, 4), 255) << none;
    EXPECT_LT(lightnessBetween(4, 5), 200) << none;
  }
}

TEST(TravelTimeFigure, standsABarOverThePicksWhoseErrorIsKnown) {
  TomoDocument document = shotDocument(1, 6, 0);
  const std::string without = curvesOf(document, FigureFormat::kSvg).bytes;
  EXPECT_THAT(without, Not(HasSubstr("standard deviation")));
  document.ttArray.edit()[0].setError(2, 0.002);
  document.ttArray.edit()[0].setError(3, 0.006);
  const Curves curves = curvesOf(document, FigureFormat::kPng);
  const auto darkRows = [&](std::size_t pick, double fromMs, double toMs) {
    int dark = 0;
    for (double off = fromMs; off <= toMs; off += 0.05) {
      const auto& at = curves.layout.picks[pick];
      if (curves.colorAt(at.x, at.timeMs + off).lightness() < 200) ++dark;
    }
    return dark / ((toMs - fromMs) / 0.05);
  };
  EXPECT_GT(darkRows(2, 0.9, 1.9), 0.9) << "drawn through";
  EXPECT_EQ(darkRows(2, 2.4, 3.0), 0.0) << "and no longer than that";
  EXPECT_LT(darkRows(3, 1.0, 5.0), 0.9) << "dashed";
  EXPECT_GT(darkRows(3, 1.0, 5.0), 0.4);
  EXPECT_EQ(darkRows(1, 1.5, 3.0), 0.0) << "nothing is known there";
  EXPECT_GT(curves.colorAt(curves.layout.picks[3].x, curves.layout.picks[3].timeMs).lightness(),
            200)
      << "a ring";
  EXPECT_THAT(curvesOf(document, FigureFormat::kSvg).bytes,
              HasSubstr("bars of one standard deviation, dashed above 2.5 ms"));
  TravelTimeFigureOptions bare;
  bare.errorBars = false;
  EXPECT_EQ(curvesOf(document, FigureFormat::kSvg, bare).bytes, without);
}

TEST(TravelTimeFigure, computedTimesAreTheLinesWhenThereAreAny) {
  TomoDocument document = shotDocument(2, 6, 0);
  EXPECT_EQ(curvesOf(document, FigureFormat::kSvg).bytes.find("Computed"), std::string::npos);
  document.ttArray.edit()[0].ttCalcolati.edit() = {0.04, 0.04, 0.04, kNoTime, 0.04, 0.04, 0.04};
  document.result.edit().RMSE_tomography = 3.456;  // of other times: those of the inversion
  const Curves curves = curvesOf(document, FigureFormat::kSvg);
  EXPECT_EQ(curves.layout.computedTimes, 5U);
  EXPECT_THAT(curves.bytes, HasSubstr(">Computed<"));
  EXPECT_THAT(curves.bytes, HasSubstr("ms, 202 %"));
  const Curves picture = curvesOf(document, FigureFormat::kPng);
  EXPECT_LT(picture.colorAt(11.0, 40.0).lightness(), 240);
  EXPECT_EQ(picture.colorAt(11.0, 500.0 * (firstBreak(0) + firstBreak(1))).lightness(), 255);
  TravelTimeFigureOptions measuredOnly;
  measuredOnly.computed = false;
  EXPECT_EQ(curvesOf(document, FigureFormat::kSvg, measuredOnly).layout.computedTimes, 0U);
}

TEST(TravelTimeFigure, receiversWithoutAStringAreThoseOfTheTraces) {
  TomoDocument document = shotDocument(2, 6, 4);
  document.line.edit().goephonesStringSet.clear();
  document.recordings.edit().traceSets[1].resize(4);
  const Curves curves = curvesOf(document, FigureFormat::kSvg);
  ASSERT_EQ(curves.layout.picks.size(), 10U);
  EXPECT_EQ(curves.layout.picks[9].x, 16.0);
}

TEST(TravelTimeFigure, hostilePositionsAndTimesDoNotSpoilThePicture) {
  TomoDocument document = shotDocument(3, 6, 0);
  document.line.edit().goephonesStringSet[0][1].x = NAN;
  document.line.edit().goephonesStringSet[0][2].x = 1e300;
  document.ttArray.edit()[0].shotPos2d.x = -INFINITY;
  document.ttArray.edit()[1].shotPos2d.x = 9e7;
  document.ttArray.edit()[1].ttMisurati.edit()[4] = INFINITY;
  document.ttArray.edit()[2].indexStesa = -7;
  document.ttArray.edit()[2].traceSetID = 900;
  for (const FigureFormat format : {FigureFormat::kPng, FigureFormat::kSvg, FigureFormat::kPdf}) {
    const Curves curves = curvesOf(document, format);
    EXPECT_EQ(curves.layout.picks.size(), 7U);
    EXPECT_LT(curves.layout.place.right, 30.0);
    EXPECT_EQ(curves.bytes.find("nan,"), std::string::npos);
  }
  document.ttArray.edit().resize(1);
  document.ttArray.edit()[0].ttMisurati.edit() = {0.01};
  EXPECT_EQ(curvesOf(document, FigureFormat::kPng).layout.picks.size(), 1U);
}

TEST(TravelTimeFigure, writesAllFormatsAndAFailureTouchesNoFile) {
  const TestFolder folder;
  TomoDocument document = shotDocument(2, 6, 0);
  const struct {
    const char *name, *begin;
  } facts[] = {{"a.png", "\x89PNG\r\n\x1a\n"}, {"a.svg", "<?xml"}, {"a.pdf", "%PDF-1."}};
  for (const auto& fact : facts) {
    ASSERT_TRUE(writeTravelTimeFigure(document, kDefaults, folder.file(fact.name)).ok());
    EXPECT_THAT(TestFolder::get(folder.file(fact.name)), StartsWith(fact.begin));
  }
  const std::string before = TestFolder::get(folder.file("a.svg"));
  TravelTimeFigureOptions narrow;
  narrow.widthMm = 25.0;
  EXPECT_FALSE(writeTravelTimeFigure(document, narrow, folder.file("a.svg")).ok());
  for (TravelTime& record : document.ttArray.edit()) record.ttMisurati.edit().assign(6, kNoTime);
  EXPECT_THAT(writeTravelTimeFigure(document, kDefaults, folder.file("a.svg")).message(),
              HasSubstr("no travel times"));
  EXPECT_EQ(TestFolder::get(folder.file("a.svg")), before);
  EXPECT_FALSE(writeTravelTimeFigure(document, kDefaults, folder.file("new.gif")).ok());
  EXPECT_EQ(folder.entries(), 3);
}

}  // namespace
}  // namespace talvesk
