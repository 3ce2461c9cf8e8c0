#include "batch/DemoLine.h"

#include "batch/DemoNoise.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "tomo/ShortestPaths.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <future>
#include <iterator>
#include <memory>
#include <thread>

namespace talvesk {
namespace {

constexpr int kGeophones = 48;
constexpr double kSpacing = 2.0;  // metres
constexpr double kShots[] = {-10.0, -3.0, 7.0, 19.0, 33.0, 47.0, 61.0, 75.0, 87.0, 97.0, 104.0};

constexpr double kCover = 500.0;         // m/s
constexpr double kWeathered = 1400.0;    // m/s
constexpr double kBedrock = 3200.0;      // m/s
constexpr double kCoverThickness = 2.0;  // metres

// A default inversion of this line takes cells of 0.5 m. Rays along the deepest bedrock stay well
// above the bottom of the grid.
constexpr double kCellSize = 0.125;  // metres
constexpr double kGridDepth = 26.0;  // metres
constexpr std::uint32_t kNodes = 6;

constexpr double kNoise = 0.0003;  // seconds, standard deviation
constexpr std::uint64_t kNoiseSeed = 2022;
constexpr double kShortestTime = 0.00005;  // seconds: noise never makes a first break that is none

/// A smooth hill of height 1 and the given half width. Polynomials, because the mathematical
/// functions of two systems may differ in the last bit.
double bump(double x, double centre, double halfWidth) {
  const double u = (x - centre) / halfWidth;
  if (u <= -1.0 || u >= 1.0) return 0.0;
  const double v = 1.0 - u * u;
  return v * v;
}

/// Positions as a surveyor writes them down, to the centimetre.
Point2D onSurface(double x) {
  return {x, std::round(demoElevation(x) * 100.0) / 100.0};
}

void layOut(TomoDocument& line) {
  std::vector<Point2D> geophones;
  for (int i = 0; i < kGeophones; ++i) geophones.push_back(onSurface(kSpacing * i));
  line.line.edit().goephonesStringSet = {geophones};
  for (const double x : kShots) {
    TravelTime record;
    record.shotPos2d = onSurface(x);
    record.traceSetID = static_cast<std::int32_t>(line.ttArray.size());
    line.ttArray.edit().push_back(std::move(record));
    line.line.edit().shotPositions.push_back(x);
  }
}

Grid groundUnder(const SurveyProfile& profile) {
  GridSize size;
  size.righe = static_cast<std::uint32_t>(std::lround(kGridDepth / kCellSize));
  size.col = static_cast<std::uint32_t>(profile.arrayLength / kCellSize);
  size.nV = kNodes;
  size.aLato = kCellSize;
  auto geometry = std::make_shared<GridGeometry>(size, profile.surface());
  std::vector<double> slownesses(geometry->cellCount());
  for (std::uint32_t cell = 0; cell < geometry->cellCount(); ++cell) {
    const double x = geometry->cellCentre(cell).x - profile.xOffset;
    // Deeper lines of the grid are smoothed copies of the surface; layers follow its rows.
    const std::uint32_t row = cell / size.col;
    const double depth = (row + 0.5) * kCellSize;
    slownesses[cell] = 1.0 / demoVelocity(x, depth);
  }
  return {std::move(geometry), std::move(slownesses)};
}

std::vector<double> timesFrom(const Grid& grid, ShortestPaths& paths, double xOffset,
                              const Point2D& shot, const std::vector<Point2D>& geophones) {
  const GridGeometry& geometry = grid.geometry();
  paths.search(grid, geometry.topNodeIndex(shot.x + xOffset));
  std::vector<double> times;
  for (const Point2D& geophone : geophones) {
    times.push_back(paths.distance(geometry.topNodeIndex(geophone.x + xOffset)));
  }
  return times;
}

/// Every worker takes the next but `workers` shot; nobody writes what another one reads.
void fireShots(TomoDocument& line, const Grid& grid, double xOffset) {
  const std::size_t workers = std::max(1U, std::thread::hardware_concurrency());
  const auto work = [&](std::size_t first) {
    ShortestPaths paths;
    for (std::size_t shot = first; shot < line.ttArray.size(); shot += workers) {
      TravelTime& record = line.ttArray.edit()[shot];
      record.ttMisurati.edit() =
          timesFrom(grid, paths, xOffset, record.shotPos2d, line.line->goephonesStringSet.front());
    }
  };
  std::vector<std::future<void>> running;
  for (std::size_t first = 0; first < std::min(workers, line.ttArray.size()); ++first) {
    running.push_back(std::async(std::launch::async, work, first));
  }
  for (auto& worker : running) worker.get();
}

void addNoise(TomoDocument& line) {
  DemoNoise noise(kNoiseSeed);
  for (TravelTime& record : line.ttArray.edit()) {
    for (double& time : record.ttMisurati.edit()) {
      time = std::max(time + kNoise * noise.next(), kShortestTime);
    }
  }
}

}  // namespace

double demoElevation(double x) {
  return 100.0 + 0.02 * x + 1.5 * bump(x, 30.0, 35.0) - 1.0 * bump(x, 80.0, 30.0);
}

double demoBedrockDepth(double x) {
  return 8.0 + 2.0 * bump(x, 100.0, 60.0) + 8.0 * bump(x, 52.0, 15.0);
}

double demoVelocity(double x, double depth) {
  if (depth < kCoverThickness) return kCover;
  return depth < demoBedrockDepth(x) ? kWeathered : kBedrock;
}

std::size_t demoShotCount() {
  return std::size(kShots);
}

TomoDocument demoLine() {
  TomoDocument line;
  line.title = "Demo line over a buried valley";
  layOut(line);
  const SurveyProfile profile = line.surveyProfile();
  const Grid grid = groundUnder(profile);
  fireShots(line, grid, profile.xOffset);
  addNoise(line);
  return line;
}

}  // namespace talvesk
