#include "TestInversion.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"

#include <functional>
#include <iostream>
#include <limits>
#include <stdexcept>
#include <streambuf>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fewIterations;
using testing::twoLayers;

TEST(Inversion, refusesWhatItCannotRunWith) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  struct Case {
    const char* name;
    std::function<void(TomoDocument&, TomographyParameters&)> change;
    std::string text;
  };
  const Case cases[] = {
      {"no grid", [](TomoDocument& d, TomographyParameters&) { d.model.edit().grid.reset(); },
       "no grid"},
      {"a grid without rows",
       [](TomoDocument& d, TomographyParameters&) {
         d.model.edit().grid = buildDefaultGrid({0, 10, 6, 1.0}, d.model->surface);
       },
       "no grid with cells"},
      {"a cell without velocity",
       [](TomoDocument& d, TomographyParameters&) {
         d.model.edit().editGrid().setSlowness(3, 0.0);
       },
       "cell 3 "},
      {"no iterations", [](TomoDocument&, TomographyParameters& p) { p.externalIterations = 0; },
       "1 at least"},
      {"no solver iterations",
       [](TomoDocument&, TomographyParameters& p) { p.solverIterations = 0; }, "1 at least"},
      {"no smoothing", [](TomoDocument&, TomographyParameters& p) { p.smoothing = 0; },
       "1 at least"},
      {"no minimum", [](TomoDocument&, TomographyParameters& p) { p.minVelocity = 0.0; },
       "positive"},
      {"no number", [nan](TomoDocument&, TomographyParameters& p) { p.maxVelocity = nan; },
       "positive"},
      {"infinite", [=](TomoDocument&, TomographyParameters& p) { p.minVelocity = infinity; },
       "positive"},
      {"infinitely slow", [](TomoDocument&, TomographyParameters& p) { p.maxVelocity = 5e-324; },
       "positive"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const testing::ConsoleCapture console;
    TomoDocument line = twoLayers();
    TomographyParameters p = fewIterations();
    c.change(line, p);
    const std::vector<double> before =
        line.model->grid ? line.model->grid->slownesses() : std::vector<double>();
    Log log;
    const TomographyResult result = runInversion(line, p, log);
    EXPECT_FALSE(result.status.ok());
    EXPECT_NE(result.status.message().find(c.text), std::string::npos) << result.status.message();
    EXPECT_EQ(result.iterationsDone, 0);
    EXPECT_FALSE(line.result->has_tomographic_info);
    EXPECT_EQ(line.model->grid ? line.model->grid->slownesses() : std::vector<double>(), before);
  }
}

/// A console that breaks down at a word.
class BrokenConsole : private std::streambuf {
 public:
  explicit BrokenConsole(std::string word) : mWord(std::move(word)), mStream(this) {
    mStream.exceptions(std::ios::badbit);
    console::setOut(mStream);
  }
  ~BrokenConsole() override { console::setOut(std::cout); }

 private:
  int_type overflow(int_type c) override {
    mText += static_cast<char>(c);
    return accept(c);
  }
  std::streamsize xsputn(const char* text, std::streamsize n) override {
    mText.append(text, static_cast<std::size_t>(n));
    return accept(n);
  }
  template <typename T>
  T accept(T value) const {
    if (mText.find(mWord) != std::string::npos) throw std::runtime_error("the console is gone");
    return value;
  }
  std::string mWord;
  std::string mText;
  std::ostream mStream;
};

TEST(Inversion, goesBackToTheLastCompletedIterationWhenOneFails) {
  for (const char* word : {"Forwarding", "running thread 3", "Updating coorslow", "INTERNAL RUN",
                           "Gaussian Smoothing"}) {
    SCOPED_TRACE(word);
    TomoDocument line = twoLayers(1.0), expected = twoLayers(1.0);
    Log log;
    {
      const testing::ConsoleCapture console;
      ASSERT_TRUE(runInversion(line, fewIterations(1, 3), log).status.ok());
      ASSERT_TRUE(runInversion(expected, fewIterations(1, 3), log).status.ok());
    }
    const Grid* grid = line.model->grid.get();
    std::vector<double> slownesses;
    Status status;
    {
      const BrokenConsole console(word);
      status = line.runTomography(slownesses, 3, 2, true, false, 2, log);
    }
    ASSERT_FALSE(status.ok());
    EXPECT_NE(status.message().find("the console is gone"), std::string::npos);
    EXPECT_EQ(line.model->grid.get(), grid);
    EXPECT_EQ(line.model->grid->slownesses(), expected.model->grid->slownesses());
    EXPECT_EQ(line.result->hitCounts, expected.result->hitCounts);
    EXPECT_EQ(line.result->coorcount, expected.result->coorcount);
    EXPECT_EQ(line.result->rays, expected.result->rays);
    EXPECT_EQ(line.result->coverageLimit, expected.result->coverageLimit);
    for (std::size_t s = 0; s < 5; ++s) {
      EXPECT_EQ(line.ttArray[s].ttCalcolati, expected.ttArray[s].ttCalcolati);
    }
  }
}

TEST(Inversion, knowsStillWhatTheRaysLeaveOutWhenTheNextOneFails) {
  TomoDocument line = twoLayers();
  line.ttArray.edit()[1].shotPos2d.x = 500.0;
  Log log;
  {
    const testing::ConsoleCapture console;
    ASSERT_TRUE(runInversion(line, fewIterations(1, 1), log).status.ok());
  }
  ASSERT_EQ(line.result->excluded.size(), 1u);
  {
    const BrokenConsole console("Forwarding");
    EXPECT_FALSE(runInversion(line, fewIterations(1, 1), log).status.ok());
  }
  EXPECT_EQ(line.result->rays.size(), 4u * 24u);
  ASSERT_EQ(line.result->excluded.size(), 1u);
  EXPECT_EQ(line.result->excluded[0].shot, 1);
}

TEST(Inversion, letsNothingEscapeItsLastSteps) {
  TomoDocument line = twoLayers();
  Log log;
  const BrokenConsole console("RayDensity");
  TomographyParameters p = fewIterations(1, 1);
  p.smoothingType = SmoothingType::kUniform;
  const TomographyResult result = runInversion(line, p, log);
  EXPECT_FALSE(result.status.ok());
  EXPECT_EQ(result.iterationsDone, 1);
  EXPECT_TRUE(line.result->has_tomographic_info);
}

}  // namespace
}  // namespace talvesk
