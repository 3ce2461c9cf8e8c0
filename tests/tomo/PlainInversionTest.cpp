#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "support/ReferenceSearch.h"
#include "support/TestSurveys.h"
#include "tomo/Smoothing.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// The inner part of an external iteration in one thread, with the plain search and nothing shared
/// with the program but the grid and the smoothing, which has tests of its own.
class PlainIteration {
 public:
  explicit PlainIteration(TomoDocument& document)
      : mDocument(document),
        mGrid(document.model.edit().editGrid()),
        hitCounts(mGrid.cellCount(), 0) {
    const reference::Graph graph(mGrid);
    for (const TravelTime& shot : document.ttArray) {
      const std::uint32_t source = topNode(shot.shotPos2d.x);
      const reference::Paths paths = reference::search(graph, source);
      mRays.emplace_back();
      for (const Point2D& geophone : document.line->goephonesStringSet[shot.indexStesa]) {
        std::vector<GridEdge> ray;
        for (std::uint32_t n = topNode(geophone.x); n != source; n = paths.predecessor[n]) {
          ray.push_back(paths.predecessorEdge[n]);
        }
        std::reverse(ray.begin(), ray.end());
        mRays.back().push_back(ray);
      }
    }
  }

  void run(int solverIterations) {
    for (int it = 0; it < solverIterations; ++it) {
      evaluate();
      for (std::uint32_t c = 0; c < mGrid.cellCount(); ++c) correct(c);
    }
  }

 private:
  std::uint32_t topNode(double x) const {
    return static_cast<std::uint32_t>((x + mDocument.model->xOffset) /
                                      (mGrid.aLato() / (mGrid.nV() - 1)));
  }

  void evaluate() {
    coorslow.assign(mGrid.cellCount(), 0.0);
    coorcount = coorslow;
    computed.clear();
    for (std::size_t s = 0; s < mRays.size(); ++s) {
      std::vector<double> slow(mGrid.cellCount(), 0.0), count = slow;
      computed.emplace_back();
      for (std::size_t i = 0; i < mRays[s].size(); ++i) {
        double time = 0.0, length = 0.0;
        for (const GridEdge& e : mRays[s][i]) {
          time += e.length * mGrid.slowness(e.cell);
          length += e.length;
        }
        computed.back().push_back(time);
        const double measured = mDocument.ttArray[s].ttMisurati[i];
        const double perMetre = measured <= 0.0 ? 0.0 : (time - measured) / length;
        if (perMetre == 0.0) continue;
        for (const GridEdge& e : mRays[s][i]) {
          slow[e.cell] += perMetre * e.length;
          count[e.cell] += e.length;
        }
      }
      for (std::uint32_t c = 0; c < mGrid.cellCount(); ++c) {
        coorslow[c] += slow[c];
        coorcount[c] += count[c];
      }
    }
  }

  void correct(std::uint32_t c) {
    if (coorcount[c] > 0.0) ++hitCounts[c];
    if (coorslow[c] == 0.0) return;
    const double s = mGrid.slowness(c), v = 1.0 / s;
    double next = s - coorslow[c] / coorcount[c];
    if (!(1.0 / next > 0.0)) return;
    if (1.0 / next < 0.6 * v) {
      next = s * 1.6666666666666667;
    } else if (1.0 / next > 1.4 * v) {
      next = s * 0.7142857142857143;
    }
    if (1.0 / next < mDocument.model->minVelocity) next = 1.0 / mDocument.model->minVelocity;
    if (1.0 / next > mDocument.model->maxVelocity) next = 1.0 / mDocument.model->maxVelocity;
    mGrid.setSlowness(c, next);
  }

  TomoDocument& mDocument;
  Grid& mGrid;
  std::vector<std::vector<std::vector<GridEdge>>> mRays;  ///< per shot and receiver

 public:
  std::vector<std::uint32_t> hitCounts;
  std::vector<double> coorslow, coorcount;
  std::vector<std::vector<double>> computed;
};

TomoDocument hillyLine() {
  TomoDocument line = testing::testLine(12, 2.0, {-1.0, 8.0, 12.5, 23.0}, 2.0);
  testing::pickTwoLayers(line, 350.0, 1500.0, 2.0);
  line.ttArray.edit()[1].ttMisurati.edit()[3] = kNoTime;
  line.ttArray.edit()[2].ttMisurati.edit()[7] = kUnpicked;
  testing::putGrid(line, 8.0, 1.0);
  return line;
}

TEST(ExternalIteration, equalsThePlainOneToTheLastBit) {
  for (const int solverIterations : {1, 2, 7}) {
    for (const unsigned threads : {1U, 2U}) {
      SCOPED_TRACE(std::to_string(solverIterations) + " iterations, " + std::to_string(threads) +
                   " threads");
      const testing::ConsoleCapture console;
      TomoDocument line = hillyLine(), plain = hillyLine();
      std::vector<double> slownesses;
      Log log;
      ASSERT_TRUE(
          line.runTomography_fast(slownesses, threads, solverIterations, 2, false, 3, log).ok());
      PlainIteration iteration(plain);
      iteration.run(solverIterations);
      EXPECT_EQ(line.model->grid->slownesses(), plain.model->grid->slownesses());
      EXPECT_EQ(line.result->hitCounts, iteration.hitCounts);
      EXPECT_EQ(line.result->coorcount, iteration.coorcount);
      for (std::size_t s = 0; s < 4; ++s) {
        EXPECT_EQ(line.ttArray[s].ttCalcolati, iteration.computed[s]);
      }
      EXPECT_EQ(slownesses, smoothSlowness(SmoothingType::kRayBased, *plain.model->grid,
                                           iteration.hitCounts, 2, 0.7));
    }
  }
}

}  // namespace
}  // namespace talvesk
