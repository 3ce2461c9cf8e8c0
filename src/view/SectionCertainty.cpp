#include "view/SectionCertainty.h"

#include "base/TextNumber.h"
#include "model/GroundModel.h"
#include "model/PickFingerprint.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <sstream>
#include <string_view>

namespace talvesk {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// One column of cells of a grid.
struct Column {
  const GridGeometry& geometry;
  std::uint32_t number;

  std::uint32_t cell(std::uint32_t row) const { return row * geometry.col() + number; }
  double top() const { return geometry.cellCentre(number).z - 0.5 * geometry.aLato(); }
  double depthOf(std::uint32_t row) const { return geometry.cellCentre(cell(row)).z - top(); }
  /// The cell in which a depth lies, the lowest for all below.
  std::uint32_t cellAt(double depth) const {
    std::uint32_t row = 0;
    while (row + 1 < geometry.righe() && depthOf(row) + 0.5 * geometry.aLato() < depth) ++row;
    return cell(row);
  }
};

/// The least depth at which velocities reach one from above, linear between the centres of cells.
double firstDepthOf(double velocity, const Column& column, const std::vector<double>& velocities) {
  double above = 0.0;
  for (std::uint32_t row = 0; row < column.geometry.righe(); ++row) {
    const double here = velocities[column.cell(row)];
    if (here >= velocity) {
      if (row == 0) return 0.0;
      const double upper = column.depthOf(row - 1);
      return upper + (velocity - above) / (here - above) * (column.depthOf(row) - upper);
    }
    above = here;
  }
  return kNone;
}

/// Puts a point behind the last one of the last piece; what is no place ends that.
class Pieces {
 public:
  void add(const Point2D& point) {
    if (!isFinite(point)) return end();
    if (!mOpen) mPieces.emplace_back();
    mOpen = true;
    mPieces.back().push_back(point);
  }
  void end() { mOpen = false; }
  /// A single point is no line.
  std::vector<std::vector<Point2D>> take() {
    mPieces.erase(std::remove_if(mPieces.begin(), mPieces.end(),
                                 [](const auto& piece) { return piece.size() < 2; }),
                  mPieces.end());
    return std::move(mPieces);
  }

 private:
  std::vector<std::vector<Point2D>> mPieces;
  bool mOpen = false;
};

}  // namespace

std::vector<double> certaintySpreads(const Certainty& certainty) {
  std::vector<double> spreads(certainty.touched.size(), kNone);
  for (std::size_t cell = 0; cell < spreads.size(); ++cell) {
    if (certainty.touched[cell] > 0) spreads[cell] = certainty.spread(cell);
  }
  return spreads;
}

std::vector<double> fadingOf(const Certainty& certainty) {
  std::vector<double> fading = certaintySpreads(certainty);
  for (double& each : fading) {
    const double unsure =
        std::isnan(each)
            ? 1.0
            : std::clamp((each - kSureSpread) / (kUnsureSpread - kSureSpread), 0.0, 1.0);
    each = kMostFading * std::round(unsure * kFadingSteps) / kFadingSteps;
  }
  return fading;
}

Quantiles depthsOfVelocity(const Certainty& certainty, const GridGeometry& geometry,
                           double velocity) {
  for (const IsovalueBand& band : certainty.bands) {
    if (band.velocity == velocity) return band.depths;
  }
  Quantiles depths;
  for (std::uint32_t number = 0; number < geometry.col(); ++number) {
    const Column column{geometry, number};
    depths.low.push_back(firstDepthOf(velocity, column, certainty.velocities.high));
    depths.median.push_back(firstDepthOf(velocity, column, certainty.velocities.median));
    depths.high.push_back(firstDepthOf(velocity, column, certainty.velocities.low));
  }
  return depths;
}

DepthBand depthBandOf(const Certainty& certainty, const GridGeometry& geometry, double xOffset,
                      double velocity) {
  const Quantiles depths = depthsOfVelocity(certainty, geometry, velocity);
  Pieces shallow, deep;
  DepthBand band;
  band.velocity = velocity;
  std::vector<Point2D> upper, lower;
  const auto endArea = [&] {
    if (upper.size() >= 2) {
      upper.insert(upper.end(), lower.rbegin(), lower.rend());
      band.areas.push_back(std::move(upper));
    }
    upper.clear();
    lower.clear();
  };
  for (std::uint32_t number = 0; number < geometry.col(); ++number) {
    const Column column{geometry, number};
    const double x = geometry.cellCentre(number).x - xOffset;
    const auto at = [&](double depth) {
      const bool known = !std::isnan(depth) && certainty.touched[column.cellAt(depth)] > 0;
      return Point2D{x, known ? -(column.top() + depth) : kNone};
    };
    const Point2D low = at(depths.low[number]);
    const Point2D high = at(depths.high[number]);
    shallow.add(low);
    deep.add(high);
    if (isFinite(low) && isFinite(high)) {
      upper.push_back(low);
      lower.push_back(high);
    } else {
      endArea();
    }
  }
  endArea();
  band.shallow = shallow.take();
  band.deep = deep.take();
  return band;
}

CertaintyNote certaintyNoteOf(const TomoDocument& document) {
  const Certainty& certainty = *document.result->certainty;
  CertaintyNote note;
  note.members = certainty.members;
  note.leftOut = certainty.leftOut;
  note.picksChanged = certainty.picks != fingerprintOfPicks(document.ttArray);
  note.percentBeyond = certainty.percentBeyond(document.model->grid->velocities());
  return note;
}

bool areBandVelocities(const std::vector<double>& velocities) {
  return velocities.size() <= kMostDepthBands &&
         std::all_of(velocities.begin(), velocities.end(),
                     [](double v) { return std::isfinite(v) && v > 0.0; });
}

std::optional<std::vector<double>> bandVelocitiesIn(const std::string& text) {
  std::vector<double> velocities;
  std::istringstream words(text);
  for (std::string list; words >> list;) {
    std::replace(list.begin(), list.end(), ',', ';');
    for (const std::string_view word : splitFields(list, ';')) {
      if (word.empty()) continue;
      double velocity = 0.0;
      if (parseWholeDouble(word, velocity) != NumberError::kNone) return std::nullopt;
      velocities.push_back(velocity);
    }
  }
  std::sort(velocities.begin(), velocities.end());
  velocities.erase(std::unique(velocities.begin(), velocities.end()), velocities.end());
  if (!areBandVelocities(velocities)) return std::nullopt;
  return velocities;
}

ColorPalette certaintyPalette(int colors) {
  ColorPalette palette;
  palette.name = "Certainty";
  palette.n_colors = colors;
  palette.color_gradient.assign({{0.98, 0.95, 0.84, 0.0},
                                 {0.95, 0.80, 0.53, 0.25},
                                 {0.84, 0.55, 0.35, 0.5},
                                 {0.58, 0.31, 0.40, 0.75},
                                 {0.22, 0.11, 0.31, 1.0}});
  return palette;
}

}  // namespace talvesk
