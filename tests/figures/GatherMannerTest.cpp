#include "figures/GatherFigure.h"
#include "figures/GatherScene.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "support/ShotDocument.h"

#include <QByteArray>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::shotDocument;

GatherFigureOptions optionsOf(OffsetOrder order, double reduction, double timeGain = 0.0) {
  GatherFigureOptions options;
  options.manner = {order, reduction, timeGain};
  return options;
}

GatherScene sceneOf(const TomoDocument& document, const GatherFigureOptions& options,
                    std::size_t shot = 0) {
  GatherScene scene;
  const Status status = buildGatherScene(document, shot, options, scene);
  EXPECT_TRUE(status.ok()) << status.message();
  return scene;
}

std::string svgOf(const TomoDocument& document, const GatherFigureOptions& options,
                  std::size_t shot = 0, GatherFigureLayout* layout = nullptr) {
  QByteArray bytes;
  const Status status =
      renderGatherFigure(document, shot, options, FigureFormat::kSvg, bytes, layout);
  EXPECT_TRUE(status.ok()) << status.message();
  return bytes.toStdString();
}

std::vector<double> placesOf(const GatherScene& scene) {
  std::vector<double> places;
  for (const GatherTrace& trace : scene.traces) places.push_back(trace.x);
  return places;
}

/// First breaks at 9 ms and a millisecond per metre of offset.
TEST(GatherManner, picksOfTheVelocityLieFlatInReducedTime) {
  const TomoDocument document = shotDocument(1, 6, 400);
  GatherFigureLayout layout;
  const std::string svg = svgOf(document, optionsOf(OffsetOrder::kNone, 1000.0), 0, &layout);
  ASSERT_EQ(layout.picks.size(), 6U);
  for (const auto& pick : layout.picks) EXPECT_NEAR(pick.timeMs, 9.0, 1e-9) << pick.trace;
  EXPECT_THAT(svg, HasSubstr("Reduced time [ms], t - |x|/1000 m/s"));
  EXPECT_THAT(svg, HasSubstr("Distance [m]")) << "the order is another matter";
  EXPECT_LE(layout.window.beginMs, 0.0);
  EXPECT_GT(layout.window.endMs, 9.0 + 10.0);
}

TEST(GatherManner, samplesStandAtTheirReducedTimes) {
  const TomoDocument document = shotDocument(1, 6, 400);
  const GatherScene plain = sceneOf(document, {});
  const GatherScene reduced = sceneOf(document, optionsOf(OffsetOrder::kNone, 1000.0));
  for (std::size_t i = 0; i < 6; ++i) {
    const double offset = 1.0 + 2.0 * static_cast<double>(i);
    EXPECT_NEAR(reduced.traces[i].timeMs(100), plain.traces[i].timeMs(100) - offset, 1e-9);
    EXPECT_GE(reduced.traces[i].timeMs(reduced.traces[i].first), reduced.window.beginMs - 1e-6);
    EXPECT_LE(reduced.traces[i].timeMs(reduced.traces[i].end - 1), reduced.window.endMs + 1e-6);
  }
}

TEST(GatherManner, fasterWavesAreSeenBeforeZero) {
  const TomoDocument document = shotDocument(1, 6, 400);
  const GatherScene scene = sceneOf(document, optionsOf(OffsetOrder::kNone, 100.0));
  EXPECT_LT(scene.window.beginMs, 1e3 * testing::firstBreak(5) - 110.0);
  for (const GatherTrace& trace : scene.traces) EXPECT_TRUE(trace.pickMs.has_value());
  TomoDocument bare = document;
  bare.ttArray.edit()[0].ttMisurati.edit().assign(6, kNoTime);
  const GatherScene whole = sceneOf(bare, optionsOf(OffsetOrder::kNone, 100.0));
  EXPECT_NEAR(whole.window.beginMs, -110.0, 1e-9) << "from the first sample of the farthest trace";
  EXPECT_NEAR(whole.window.endMs, 399 * 0.25 - 10.0, 1e-9);
}

TEST(GatherManner, tracesStandByTheirOffset) {
  const TomoDocument document = shotDocument(2, 5, 400);  // the second at 13 m
  const GatherScene sides = sceneOf(document, optionsOf(OffsetOrder::kSigned, 0.0), 1);
  EXPECT_THAT(placesOf(sides), ElementsAre(-3.0, -1.0, 1.0, 3.0, 5.0));
  EXPECT_EQ(sides.shotX.value(), 0.0);
  const GatherScene folded = sceneOf(document, optionsOf(OffsetOrder::kAbsolute, 0.0), 1);
  EXPECT_THAT(placesOf(folded), ElementsAre(3.0, 1.0, 1.0, 3.0, 5.0));
  EXPECT_EQ(folded.spacing, 2.0);
  EXPECT_THAT(svgOf(document, optionsOf(OffsetOrder::kSigned, 0.0), 1), HasSubstr("Offset [m]"));
  GatherFigureOptions channels = optionsOf(OffsetOrder::kSigned, 0.0);
  channels.byChannel = true;
  EXPECT_FALSE(sceneOf(document, channels, 1).byChannel) << "the offset goes first";
}

TEST(GatherManner, aGainInTimeScalesSwingsAndIsTold) {
  TomoDocument document = shotDocument(1, 2, 400);
  document.recordings.edit().traceSets[0][0].samples.edit().assign(400, 0.0);
  Samples& samples = document.recordings.edit().traceSets[0][0].samples;
  samples.edit()[40] = 8.0;   // 10 ms
  samples.edit()[120] = 4.0;  // 30 ms
  const auto swings = [&](double exponent) {
    GatherFigureOptions options = optionsOf(OffsetOrder::kNone, 0.0, exponent);
    options.window = TimeWindow{0.0, 50.0};
    const GatherScene scene = sceneOf(document, options);
    return std::vector<double>{scene.traces[0].swing(40), scene.traces[0].swing(120)};
  };
  EXPECT_THAT(swings(0.0), ElementsAre(1.0, 0.5));
  EXPECT_THAT(swings(1.0), ElementsAre(DoubleNear(2.0 / 3.0, 1e-12), 1.0));
  EXPECT_THAT(swings(2.0), ElementsAre(DoubleNear(2.0 / 9.0, 1e-12), 1.0));
  EXPECT_THAT(svgOf(document, optionsOf(OffsetOrder::kNone, 0.0, 1.5)),
              HasSubstr("gain with time t^1.5"));
  EXPECT_THAT(svgOf(document, {}), Not(HasSubstr("gain with time")));
}

TEST(GatherManner, aShotWithoutOffsetsIsDrawnPlainAndSaysSo) {
  TomoDocument document = shotDocument(2, 4, 400);
  const GatherFigureOptions options = optionsOf(OffsetOrder::kSigned, 1000.0);
  EXPECT_EQ(shotsLackingOffsets(document, options), 0U);
  document.line.edit().goephonesStringSet.clear();
  for (Trace& trace : document.recordings.edit().traceSets[1]) trace.receiverPosition = {};
  EXPECT_EQ(shotsLackingOffsets(document, options), 1U);
  EXPECT_EQ(shotsLackingOffsets(document, {}), 0U);
  const GatherScene scene = sceneOf(document, options, 1);
  EXPECT_TRUE(scene.byChannel);
  EXPECT_TRUE(scene.manner.plain());
  EXPECT_EQ(scene.window.beginMs, 0.0);
  const std::string words = "offsets not known: not drawn by offset or reduced as asked";
  EXPECT_THAT(scene.caption, HasSubstr(words));
  EXPECT_THAT(sceneOf(document, options, 0).caption, Not(HasSubstr(words)));
}

}  // namespace
}  // namespace talvesk
