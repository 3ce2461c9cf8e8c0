#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "support/TestSurveys.h"
#include "tomo/DijkstraComputePathsThread.h"
#include "tomo/ForwardPass.h"
#include "tomo/TraceCrew.h"

#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <sstream>
#include <stdexcept>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// A step of a ray.
struct Step {
  std::uint32_t cell;
  double length;
};

/// One shot's worker, run again and again.
class Worker {
 public:
  explicit Worker(TomoDocument& document) : Worker(document, sourceOf(document)) {}
  Worker(TomoDocument& document, std::uint32_t source)
      : mDocument(document), mThread(document, 0, source) {
    document.ttArray.edit()[0].ttCalcolati.edit().assign(document.ttArray[0].ttMisurati.size(),
                                                         kNoTime);
  }

  void run() {
    if (mThread.rays().branches.empty()) mThread.traceRays(mScratch);
    mThread.evaluateRays(mScratch, mSums);
    correction.assign(mDocument.model->grid->cellCount(), 0.0);
    rayLength = correction;
    mThread.addTo(correction, rayLength, mSums, 0, correction.size());
  }
  DijkstraComputePathsThread& thread() { return mThread; }
  double computed(std::size_t i) const { return mDocument.ttArray[0].ttCalcolati[i]; }
  std::vector<Step> steps(std::size_t ray) const {
    std::vector<RayTree::Run> runs;
    mThread.rays().runsOf(ray, runs);
    std::vector<Step> all;
    for (const RayTree::Run& run : runs) {
      for (std::uint32_t step = run.first; step < run.end; ++step) {
        all.push_back({mThread.cells()[mThread.rays().cells[step]], mThread.rays().lengths[step]});
      }
    }
    return all;
  }

  std::vector<double> correction, rayLength;

 private:
  static std::uint32_t sourceOf(const TomoDocument& d) {
    return d.model->grid->geometry().topNodeIndex(d.ttArray[0].shotPos2d.x + d.model->xOffset);
  }
  TomoDocument& mDocument;
  ShotScratch mScratch;
  ShotSums mSums;
  DijkstraComputePathsThread mThread;
};

/// Ten geophones two metres apart, a shot at the third of them.
TomoDocument smallLine() {
  TomoDocument line = testing::testLine(10, 2.0, {4.0}, 1.0);
  testing::putGrid(line, 6.0, 1.0);
  return line;
}

double sum(const std::vector<double>& values) {
  return std::accumulate(values.begin(), values.end(), 0.0);
}

TEST(Worker, spreadsTheErrorOfARayAlongItsWay) {
  TomoDocument line = smallLine();
  line.ttArray.edit()[0].ttMisurati.edit()[8] = 0.02;
  Worker worker(line);
  worker.run();

  const std::vector<Step> ray = worker.steps(8);
  double time = 0.0, length = 0.0;
  for (const Step& step : ray) {
    time += step.length * line.model->grid->slowness(step.cell);
    length += step.length;
  }
  EXPECT_EQ(worker.computed(8), time);
  EXPECT_GT(length, 12.0);
  const double perMetre = (time - 0.02) / length;
  std::vector<double> correction(line.model->grid->cellCount(), 0.0), rayLength = correction;
  for (const Step& step : ray) {
    correction[step.cell] += perMetre * step.length;
    rayLength[step.cell] += step.length;
  }
  EXPECT_EQ(worker.correction, correction);
  EXPECT_EQ(worker.rayLength, rayLength);
  // The whole error is spread, no more and no less.
  EXPECT_NEAR(sum(worker.correction), time - 0.02, 1e-14);
}

TEST(Worker, addsNothingForRaysThatAskForNothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    const char* name;
    std::size_t receiver;
    double measured;
  } cases[] = {
      {"never picked", 6, kUnpicked},       {"removed", 6, kNoTime},
      {"at the source, picked", 2, 0.015},  {"at the source, not picked", 2, kUnpicked},
      {"at the source, no number", 2, nan},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    TomoDocument line = smallLine();
    line.ttArray.edit()[0].ttMisurati.edit()[c.receiver] = c.measured;
    Worker worker(line);
    worker.run();
    for (std::size_t i = 0; i < 10; ++i) {
      // Computed all the same; 0 only at the source.
      EXPECT_EQ(worker.computed(i) > 0.0, i != 2) << i;
    }
    EXPECT_EQ(worker.computed(2), 0.0);
    EXPECT_EQ(worker.correction, std::vector<double>(line.model->grid->cellCount(), 0.0));
    EXPECT_EQ(worker.rayLength, std::vector<double>(line.model->grid->cellCount(), 0.0));
  }
}

TEST(Worker, addsNoLengthForAnExactFit) {
  TomoDocument line = smallLine();
  Worker worker(line);
  worker.run();
  line.ttArray.edit()[0].ttMisurati.edit() = line.ttArray[0].ttCalcolati;
  worker.run();
  EXPECT_EQ(sum(worker.rayLength), 0.0);
  line.ttArray.edit()[0].ttMisurati.edit()[9] = std::nextafter(line.ttArray[0].ttMisurati[9], 1.0);
  worker.run();
  EXPECT_GT(sum(worker.rayLength), 13.0);
}

TEST(Worker, keepsItsRaysWhenItRunsAgain) {
  TomoDocument line = smallLine();
  Worker worker(line);
  worker.run();
  std::vector<std::vector<Step>> before;
  for (std::size_t i = 0; i < 10; ++i) before.push_back(worker.steps(i));
  const std::vector<double> times = line.ttArray[0].ttCalcolati;

  // A model that would bend every ray otherwise.
  for (std::uint32_t c = 0; c < line.model->grid->cellCount(); ++c) {
    line.model.edit().editGrid().setSlowness(
        c, c < line.model.edit().grid->col() ? 1.0 / 5000.0 : 1.0 / 100.0);
  }
  worker.run();
  for (std::size_t i = 0; i < before.size(); ++i) {
    double time = 0.0;
    for (const Step& step : before[i]) time += step.length * line.model->grid->slowness(step.cell);
    EXPECT_EQ(worker.computed(i), time);
  }
  EXPECT_NE(line.ttArray[0].ttCalcolati, times);
}

TEST(Worker, handsOutTheNodesOfItsRaysOnce) {
  TomoDocument line = smallLine();
  line.line.edit().goephonesStringSet[0][4].x = 500.0;  // beyond the grid
  Worker worker(line);
  worker.run();
  const auto nodes = worker.thread().takeNodes();
  ShortestPaths paths;
  paths.search(*line.model->grid, nodes.at(0).at(0));
  const GridGeometry& geometry = line.model->grid->geometry();
  for (std::size_t i = 0; i < 10; ++i) {
    SCOPED_TRACE(i);
    const std::uint32_t receiver =
        geometry.topNodeIndex(line.line->goephonesStringSet[0][i].x + line.model->xOffset);
    EXPECT_EQ(receiver == kNoNode, i == 4);
    if (i == 4) {
      EXPECT_TRUE(nodes[i].empty());
    } else {
      EXPECT_EQ(nodes[i], paths.ray(receiver).nodes);
    }
  }
  EXPECT_TRUE(worker.thread().takeNodes().empty());
}

TEST(Worker, goesAsFarAsStringAndRecordBothGo) {
  for (const std::size_t times : {0, 4, 15}) {
    TomoDocument line = smallLine();
    line.ttArray.edit()[0].ttMisurati.edit().assign(times, 0.01);
    Worker worker(line);
    worker.run();
    EXPECT_EQ(worker.thread().takeNodes().size(), std::min<std::size_t>(times, 10));
    for (std::size_t i = 0; i < times; ++i) EXPECT_EQ(worker.computed(i) == kNoTime, i >= 10) << i;
  }
}

TEST(Worker, throwsForASourceThatIsNoNode) {
  TomoDocument line = smallLine();
  Worker worker(line, kNoNode);
  EXPECT_THROW(worker.run(), std::out_of_range);
}

// --- Exclusions

std::vector<std::string> exclusionsIn(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    const std::size_t at = line.find("Left out: ");
    if (at != std::string::npos) lines.push_back(line.substr(at));
  }
  return lines;
}

/// Three shots; the line has changed since the grid was built.
TomoDocument movedLine() {
  TomoDocument line = testing::testLine(10, 2.0, {4.0, 9.0, 13.0}, 1.0);
  testing::putGrid(line, 6.0, 1.0);
  testing::pickTwoLayers(line, 500.0, 1500.0, 2.0);
  return line;
}

TEST(ForwardPass, leavesOutWhatTheGridCannotHold) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    const char* name;
    std::function<void(TomoDocument&)> change;
    std::vector<std::pair<int, int>> excluded;  ///< shot and receiver
  } cases[] = {
      {"nothing", [](TomoDocument&) {}, {}},
      {"a shot to the right",
       [](TomoDocument& d) { d.ttArray.edit()[1].shotPos2d.x = 500.0; },
       {{1, -1}}},
      {"a shot to the left",
       [](TomoDocument& d) { d.ttArray.edit()[2].shotPos2d.x = -5.0; },
       {{2, -1}}},
      {"a shot nowhere",
       [nan](TomoDocument& d) { d.ttArray.edit()[0].shotPos2d.x = nan; },
       {{0, -1}}},
      {"a geophone of all shots",
       [](TomoDocument& d) { d.line.edit().goephonesStringSet[0][9].x = 21.5; },
       {{0, 9}, {1, 9}, {2, 9}}},
      {"no such string", [](TomoDocument& d) { d.ttArray.edit()[1].indexStesa = 1; }, {{1, -1}}},
      {"a negative string",
       [](TomoDocument& d) { d.ttArray.edit()[1].indexStesa = -1; },
       {{1, -1}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const testing::ConsoleCapture console;
    TomoDocument whole = movedLine(), line = movedLine();
    c.change(line);
    Log log;
    std::vector<double> coorslow(line.model->grid->cellCount(), 0.0), coorcount = coorslow;
    TraceCrew crew(2);
    ForwardPass reference(whole, {}, crew, log);
    ASSERT_TRUE(reference.run("all", &coorslow, &coorcount).ok());
    ForwardPass pass(line, {}, crew, log);
    ASSERT_TRUE(pass.run("rest", &coorslow, &coorcount).ok());

    std::vector<std::pair<int, int>> excluded;
    for (const ExcludedPosition& p : line.result->excluded)
      excluded.push_back({p.shot, p.receiver});
    EXPECT_EQ(excluded, c.excluded);
    EXPECT_EQ(exclusionsIn(console.error()).size(), c.excluded.size());
    for (std::size_t s = 0; s < 3; ++s) {
      for (std::size_t i = 0; i < 10; ++i) {
        bool out = false;
        for (const auto& [shot, receiver] : c.excluded) {
          out = out ||
                (shot == static_cast<int>(s) && (receiver < 0 || receiver == static_cast<int>(i)));
        }
        const double expected = out ? kNoTime : whole.ttArray[s].ttCalcolati[i];
        EXPECT_EQ(line.ttArray[s].ttCalcolati[i], expected) << s << ", " << i;
      }
    }
  }
}

TEST(ForwardPass, namesExclusionsOnceAndCountsFromOne) {
  const testing::ConsoleCapture console;
  TomoDocument line = movedLine();
  line.ttArray.edit()[1].shotPos2d.x = 500.0;
  line.line.edit().goephonesStringSet[0][9].x = std::numeric_limits<double>::quiet_NaN();
  Log log;
  TraceCrew crew(1);
  const ForwardPass first(line, {}, crew, log);
  const ForwardPass second(line, {}, crew, log);
  const auto lines = exclusionsIn(console.error());
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].find("Left out: shot 1, receiver 10 at x = "), 0u) << lines[0];
  EXPECT_EQ(lines[1].find("Left out: shot 2 at x = 500 m"), 0u) << lines[1];
}

TEST(ForwardPass, namesTheFirstShotThatFails) {
  for (const unsigned threads : {1U, 2U, 3U, 8U}) {
    const testing::ConsoleCapture console;
    TomoDocument line = movedLine();
    Log log;
    TraceCrew crew(threads);
    ForwardPass pass(line, {}, crew, log);
    // Shorter than what the workers were made for.
    for (const std::size_t shot : {1, 2}) line.ttArray.edit()[shot].ttCalcolati.edit().resize(2);
    std::vector<double> coorslow(line.model->grid->cellCount(), 0.0), coorcount = coorslow;
    const Status status = pass.run("all", &coorslow, &coorcount);
    ASSERT_FALSE(status.ok());
    EXPECT_NE(status.message().find("shot 2 failed"), std::string::npos) << status.message();
  }
}

TEST(ForwardPass, tellsItsBatchesInOrderForEveryNumberOfThreads) {
  const struct {
    unsigned threads;
    std::vector<std::string> lines;
  } cases[] = {
      {1,
       {"all Traces from 0 to 0", " --- Creating and running thread 0",
        " --- Updating coorslow and coorcount ", "all Traces from 1 to 1",
        " --- Creating and running thread 1", " --- Updating coorslow and coorcount ",
        "all Traces from 2 to 2", " --- Creating and running thread 2",
        " --- Updating coorslow and coorcount "}},
      {2,
       {"all Traces from 0 to 1", " --- Creating and running thread 0",
        " --- Creating and running thread 1", " --- Updating coorslow and coorcount ",
        "all Traces from 2 to 2", " --- Creating and running thread 2",
        " --- Updating coorslow and coorcount "}},
      {8,
       {"all Traces from 0 to 2", " --- Creating and running thread 0",
        " --- Creating and running thread 1", " --- Creating and running thread 2",
        " --- Updating coorslow and coorcount "}},
  };
  for (const auto& c : cases) {
    for (int times = 0; times < 20; ++times) {
      const testing::ConsoleCapture console;
      TomoDocument line = movedLine();
      Log log;
      TraceCrew crew(c.threads);
      ForwardPass pass(line, {}, crew, log);
      std::vector<double> coorslow(line.model->grid->cellCount(), 0.0), coorcount = coorslow;
      ASSERT_TRUE(pass.run("all", &coorslow, &coorcount).ok());
      std::vector<std::string> lines;
      std::istringstream stream(console.out());
      for (std::string text; std::getline(stream, text);) {
        if (text.empty() || text[0] != '[') lines.push_back(text);  // not those of the log
      }
      EXPECT_EQ(lines, c.lines) << c.threads;
    }
  }
}

}  // namespace
}  // namespace talvesk
