#include "TestShots.h"
#include "model/Recordings.h"
#include "widgets/traces/WigglePainter.h"

#include <QColor>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// One trace in the middle of 100 x 100 pixels, from 0 to 99 samples, and its picture.
class Wiggles : public ::testing::Test {
 protected:
  Wiggles() {
    mColors.background = Qt::white;
    mColors.wiggle = Qt::black;
    mColors.positive = Qt::blue;
    mColors.negative = Qt::red;
    mDocument = testing::testShots(1, 100);
    mDocument.recordings.edit().traceSets[0][0].sampleInterval = 0.001;
  }
  void paint(int side = 100) {
    const ShotTraces traces(&mDocument, 0, mOptions.showFiltered);
    const TraceLayout layout = TraceLayout::byChannel(traces.count());
    mImage = wiggleCanvas({100.0, 100.0}, side / 100.0, mColors.background);
    paintWiggles({traces, layout, mOptions, mColors},
                 {QRectF(7.0, 9.0, 100.0, 100.0), {-2.0, 2.0, 0.0, 0.1}}, mImage);
  }
  int count(const QColor& color) const {
    int found = 0;
    for (int y = 0; y < mImage.height(); ++y) {
      for (int x = 0; x < mImage.width(); ++x) found += mImage.pixel(x, y) == color.rgb();
    }
    return found;
  }
  std::vector<double>& samples() {
    return mDocument.recordings.edit().traceSets[0][0].samples.edit();
  }

  TomoDocument mDocument;
  TraceViewOptions mOptions;
  TraceColors mColors;
  QImage mImage;
};

TEST_F(Wiggles, fillPositiveLobesToTheRight) {
  samples().assign(100, 0.0);
  for (int k = 0; k < 50; ++k) samples()[k] = 1.0;
  for (int k = 50; k < 100; ++k) samples()[k] = -1.0;
  paint();
  EXPECT_EQ(mImage.pixelColor(60, 25), QColor(Qt::blue));
  EXPECT_EQ(mImage.pixelColor(40, 75), QColor(Qt::white));
  mOptions.twoColors = true;
  paint();
  EXPECT_EQ(mImage.pixelColor(60, 25), QColor(Qt::blue));
  EXPECT_EQ(mImage.pixelColor(40, 75), QColor(Qt::red));
  mOptions.fillWiggle = false;
  paint();
  EXPECT_EQ(count(Qt::blue) + count(Qt::red), 0);
}

TEST_F(Wiggles, endAtTheNeighbourWhenCut) {
  samples().assign(100, 0.0);
  samples()[50] = 1.0;
  samples()[51] = -1.0;
  mOptions.gain = 100.0;
  paint();
  EXPECT_NE(mImage.pixelColor(73, 50), QColor(Qt::white)) << "a spacing is 25 pixels";
  EXPECT_EQ(mImage.pixelColor(78, 50), QColor(Qt::white));
  mOptions.cutHorizontal = false;
  paint();
  EXPECT_NE(mImage.pixelColor(95, 50), QColor(Qt::white));
}

TEST_F(Wiggles, showASpikeOfOneSampleInALongRecord) {
  samples().assign(100000, 0.0);
  samples()[40000] = 5.0;
  mDocument.recordings.edit().traceSets[0][0].sampleInterval = 1e-6;
  paint();
  EXPECT_NE(mImage.pixelColor(65, 40), QColor(Qt::white));
  EXPECT_EQ(mImage.pixelColor(65, 42), QColor(Qt::white));
}

TEST_F(Wiggles, leaveOutWhatIsNoNumber) {
  samples().assign(100, 0.0);
  for (int k = 20; k < 40; ++k) samples()[k] = std::numeric_limits<double>::quiet_NaN();
  samples()[60] = std::numeric_limits<double>::infinity();
  samples()[80] = 1e308;
  samples()[81] = -1e308;
  mOptions.gain = TraceViewOptions::kMaxGain;
  paint();
  for (int x = 0; x < 100; ++x) EXPECT_EQ(mImage.pixelColor(x, 30), QColor(Qt::white)) << x;
  EXPECT_NE(count(Qt::black), 0);
}

TEST_F(Wiggles, coverEveryRowWithoutGaps) {
  for (const int side : {100, 200, 150}) {
    paint(side);
    ASSERT_EQ(mImage.height(), side);
    for (int y = 0; y < mImage.height() - 2; ++y) {
      int inked = 0;
      for (int x = 0; x < mImage.width(); ++x) inked += mImage.pixelColor(x, y) != Qt::white;
      EXPECT_GT(inked, 0) << y;
    }
  }
}

TEST_F(Wiggles, compareAmplitudesOnlyWhenTheShotIsScaledAsAWhole) {
  mDocument.recordings.edit().traceSets[0].push_back(mDocument.recordings->traceSets[0][0]);
  for (double& v : mDocument.recordings.edit().traceSets[0][1].samples.edit()) v *= 100.0;
  mOptions.fillWiggle = true;
  paint();
  const int each = count(Qt::blue);
  mOptions.normalise = TraceNormalise::WholeShot;
  paint();
  EXPECT_LT(count(Qt::blue), 0.6 * each);
}

}  // namespace
}  // namespace talvesk
