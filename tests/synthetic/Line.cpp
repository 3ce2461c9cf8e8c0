#include "synthetic/Line.h"

#include "synthetic/WaveField.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <map>
#include <ostream>
#include <random>
#include <utility>

namespace talvesk::synthetic {
namespace {

constexpr double kBeside = 2.0;  // metres of ground beyond the outermost positions
constexpr double kLeastTime = 1e-4;
constexpr double kColumn = 0.5;  // metres, of the truth
constexpr double kSlice = 0.1;
constexpr int kSamples = 10;  // of a slice

/// Even in 0 .. 1, without the ends. The distributions of the standard library differ from one
/// library to the next.
double evenNumber(std::mt19937_64& random) {
  return (static_cast<double>(random() >> 11) + 0.5) * std::pow(2.0, -53);
}

double normalNumber(std::mt19937_64& random) {
  const double size = std::sqrt(-2.0 * std::log(evenNumber(random)));
  return size * std::cos(2.0 * std::acos(-1.0) * evenNumber(random));
}

template <typename Value>
void writeList(const char* name, std::size_t count, const Value& value, std::ostream& out) {
  out << '"' << name << "\": [";
  for (std::size_t i = 0; i < count; ++i) out << (i > 0 ? ", " : "") << value(i);
  out << "]";
}

}  // namespace

Spread evenSpread(std::size_t geophones, double spacing, std::size_t shots) {
  Spread spread;
  for (std::size_t i = 0; i < geophones; ++i) {
    spread.geophones.push_back(static_cast<double>(i) * spacing);
  }
  for (std::size_t i = 0; i < shots; ++i) {
    const double gap = static_cast<double>(geophones * i) / static_cast<double>(shots - 1);
    spread.shots.push_back((std::round(gap) - 0.5) * spacing);
  }
  return spread;
}

std::vector<Pick> exactPicks(const Ground& ground, const Spread& spread) {
  const auto& g = spread.geophones;
  const auto& s = spread.shots;
  const double left =
      std::min(*std::min_element(g.begin(), g.end()), *std::min_element(s.begin(), s.end()));
  const double right =
      std::max(*std::max_element(g.begin(), g.end()), *std::max_element(s.begin(), s.end()));
  const Raster raster =
      rasterOf(ground, left - kBeside, right + kBeside, spread.depth, spread.step);
  std::vector<Pick> picks;
  for (std::size_t shot = 0; shot < s.size(); ++shot) {
    const WaveField field(ground, raster, s[shot]);
    for (std::size_t geophone = 0; geophone < g.size(); ++geophone) {
      if (g[geophone] != s[shot]) picks.push_back({shot, geophone, field.at(g[geophone])});
    }
  }
  return picks;
}

std::vector<Pick> withErrors(std::vector<Pick> picks, const Noise& noise) {
  std::mt19937_64 random(noise.seed);
  for (Pick& pick : picks) {
    const double error = noise.sigma * normalNumber(random);
    const bool gross = evenNumber(random) < noise.gross;
    const double off = (evenNumber(random) < 0.5 ? -1.0 : 1.0) * (0.02 + 0.02 * evenNumber(random));
    const double time = pick.time + error + (gross ? off : 0.0);
    // An early one that would come before the shot is late instead.
    pick.time = std::max(kLeastTime, gross && time < 0.0 ? pick.time - off : time);
  }
  return picks;
}

void writePicks(const Ground& ground, const Spread& spread, const std::vector<Pick>& picks,
                double sigma, std::ostream& out) {
  std::map<double, std::size_t> places;
  for (const double x : spread.shots) places.emplace(x, 0);
  for (const double x : spread.geophones) places.emplace(x, 0);
  out << std::setprecision(10) << places.size() << " # shot/geophone points\n#x z\n";
  std::size_t number = 0;
  for (auto& place : places) {
    place.second = ++number;
    out << place.first << ' ' << ground.elevation(place.first) << '\n';
  }
  out << picks.size() << " # measurements\n#s g t err valid\n";
  for (const Pick& pick : picks) {
    out << places.at(spread.shots[pick.shot]) << ' ' << places.at(spread.geophones[pick.geophone])
        << ' ' << pick.time << ' ' << sigma << " 1\n";
  }
}

void writeTruth(const Ground& ground, const Spread& spread, std::ostream& out) {
  const double left = std::min(spread.geophones.front(), spread.shots.front()) - kBeside;
  const double right = std::max(spread.geophones.back(), spread.shots.back()) + kBeside;
  const auto columns = static_cast<std::size_t>((right - left) / kColumn) + 1;
  const auto slices = static_cast<std::size_t>(spread.depth / kSlice);
  const auto x = [&](std::size_t column) { return left + static_cast<double>(column) * kColumn; };
  const auto slowness = [&](std::size_t column, std::size_t slice) {
    double sum = 0.0;
    for (int i = 0; i < kSamples; ++i) {
      const double depth = (static_cast<double>(slice) + (i + 0.5) / kSamples) * kSlice;
      sum += 1.0 / ground.velocity(x(column), depth);
    }
    return sum / kSamples;
  };
  out << std::setprecision(6) << "{\"title\": " << std::quoted(ground.title)
      << ", \"left\": " << left << ", \"column\": " << kColumn << ", \"slice\": " << kSlice
      << ",\n\"refractors\": [";
  for (std::size_t i = 0; i < ground.refractors.size(); ++i) {
    const auto depth = [&](std::size_t column) { return ground.refractors[i](x(column)); };
    const double first = ground.refractors[i](spread.geophones.front());
    const auto beside = [&](double by) {
      return ground.velocity(spread.geophones.front(), first + by);
    };
    out << (i > 0 ? ",\n" : "") << "{\"above\": " << beside(-0.01)
        << ", \"below\": " << beside(0.01) << ", ";
    writeList("depths", columns, depth, out);
    out << "}";
  }
  out << "],\n\"slownesses\": [\n";
  for (std::size_t column = 0; column < columns; ++column) {
    out << (column > 0 ? ",\n[" : "[");
    for (std::size_t i = 0; i < slices; ++i) out << (i > 0 ? "," : "") << slowness(column, i);
    out << "]";
  }
  out << "]}\n";
}

}  // namespace talvesk::synthetic
