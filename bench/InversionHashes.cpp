// Not a measurement of time: one line per random survey with a hash over every bit that a whole
// inversion of it leaves. Two versions of the program that print the same compute the same.
#include "base/Console.h"
#include "base/TextNumber.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/GridSetup.h"
#include "tomo/TomographyRun.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <random>

namespace talvesk {
namespace {

/// Numbers that are the same with every library: its distributions are not.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : mEngine(seed) {}
  double between(double low, double high) {
    return low + (high - low) * (static_cast<double>(mEngine() >> 11) / 9007199254740992.0);
  }
  int from(int low, int high) {
    return low + static_cast<int>(mEngine() % static_cast<std::uint64_t>(high - low + 1));
  }

 private:
  std::mt19937_64 mEngine;
};

/// Fowler, Noll and Vo, 64 bits, variant 1a.
class Hash {
 public:
  template <typename T>
  void add(const std::vector<T>& values) {
    for (const T& value : values) add(value);
  }
  template <typename T>
  std::enable_if_t<std::is_arithmetic_v<T>> add(T value) {
    unsigned char bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));
    for (const unsigned char byte : bytes) mValue = (mValue ^ byte) * 1099511628211ULL;
  }
  std::uint64_t value() const { return mValue; }

 private:
  std::uint64_t mValue = 14695981039346656037ULL;
};

TomoDocument randomSurvey(Dice& dice) {
  TomoDocument document;
  const int geophones = dice.from(8, 48);
  const double spacing = dice.between(0.8, 6.0);
  const double relief = dice.from(0, 2) * dice.between(0.0, 1.5 * spacing);
  const double wave = dice.between(4.0, 20.0) * spacing;
  const auto elevation = [&](double x) { return 100.0 + relief * std::sin(x / wave); };
  auto& strings = document.line.edit().goephonesStringSet;
  strings.emplace_back();
  for (int i = 0; i < geophones; ++i) strings[0].push_back({spacing * i, elevation(spacing * i)});
  const double length = spacing * (geophones - 1);
  const double v0 = dice.between(250.0, 900.0);
  const double k = dice.between(5.0, 90.0);
  const double noise = dice.between(0.0, 0.05);
  const double missing = dice.between(0.0, 0.2);
  const int shots = dice.from(2, 14);
  for (int s = 0; s < shots; ++s) {
    TravelTime record;
    record.shotPos2d.x = dice.between(-2.0 * spacing, length + 2.0 * spacing);
    record.shotPos2d.z = elevation(record.shotPos2d.x);
    record.traceSetID = s;
    for (const Point2D& geophone : document.line->goephonesStringSet[0]) {
      const double offset = std::fabs(geophone.x - record.shotPos2d.x) + 0.01;
      const double time = 2.0 / k * std::asinh(k * offset / (2.0 * v0));
      const bool picked = dice.between(0.0, 1.0) > missing;
      record.ttMisurati.edit().push_back(picked ? time * (1.0 + noise * dice.between(-1.0, 1.0))
                                                : kUnpicked);
    }
    document.ttArray.edit().push_back(record);
  }
  return document;
}

std::uint64_t hashOf(const TomoDocument& document, const TomographyResult& result) {
  Hash hash;
  hash.add(document.model->grid->slownesses());
  for (const TravelTime& record : document.ttArray) hash.add(*record.ttCalcolati);
  hash.add(result.lastPassTimes);
  const TomographyOutcome& outcome = *document.result;
  hash.add(*outcome.rays);
  hash.add(outcome.hitCounts);
  hash.add(outcome.coorcount);
  hash.add(outcome.info_density);
  hash.add(outcome.RMSE_tomography);
  for (const Misfit& misfit : result.history) hash.add(misfit.rmse);
  for (const SectionMisfit& misfit : outcome.sectionHistory) hash.add(misfit.rmse);
  return hash.value();
}

void run(int number) {
  Dice dice(static_cast<std::uint64_t>(number));
  TomoDocument document = randomSurvey(dice);
  const auto& geophones = document.line->goephonesStringSet[0];
  const double spacing = geophones[1].x - geophones[0].x;
  const double length = geophones.back().x - geophones[0].x;
  GridSettings settings;
  settings.cellSize = spacing * dice.between(0.3, 1.1);
  settings.maxDepth = std::max(length * dice.between(0.15, 0.6), 3.0 * settings.cellSize);
  settings.nodes = static_cast<std::uint32_t>(dice.from(4, 11));
  TomographyParameters parameters;
  parameters.externalIterations = dice.from(2, 6);
  parameters.smoothingType = smoothingTypeOf(dice.from(0, 3));
  parameters.smoothing = dice.from(1, 6);
  parameters.symmetric = dice.from(0, 1) == 1;
  parameters.coarseToFine = dice.from(0, 4) == 0;
  parameters.singleThread = dice.from(0, 2) == 0;
  Log log;
  const Status status = setUpGrid(document, settings, log);
  if (!status.ok()) {
    std::cout << number << " no grid\n";
    return;
  }
  const TomographyResult result = runInversion(document, parameters, log);
  std::cout << number << ' ' << document.model->grid->cellCount() << " cells "
            << document.ttArray.size() << " shots " << std::hex << hashOf(document, result)
            << std::dec << (result.status.ok() ? "" : " failed") << '\n';
}

}  // namespace
}  // namespace talvesk

/// How many surveys, 60 unless said otherwise.
int main(int argc, char** argv) {
  talvesk::console::setOut(talvesk::console::nowhere());
  const int count = argc > 1 ? std::atoi(argv[1]) : 60;
  for (int number = 1; number <= count; ++number) talvesk::run(number);
  return 0;
}
