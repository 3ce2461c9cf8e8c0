#include "export/SurferGrid.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "view/SectionValues.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <vector>

namespace talvesk {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr const char* kBlank = "1.70141e+38";
constexpr int kPlaceDigits = 12;  ///< of the raster's ends
constexpr int kValueDigits = 7;   ///< of the velocities; the readers of this format have no more
constexpr std::uint32_t kPerLine = 10;

struct Extent {
  double least = kInfinity;
  double most = -kInfinity;
  void take(double value) {
    least = std::min(least, value);
    most = std::max(most, value);
  }
};

/// Nodes at low, low + step, ... along one axis.
struct Axis {
  double low = 0.0;
  double step = 0.0;
  std::uint32_t count = 0;
  double at(std::uint32_t i) const { return low + i * step; }
};

class Raster {
 public:
  explicit Raster(const TomoDocument& document)
      : mGrid(*document.model->grid), mMesh(sectionMesh(mGrid, document.model->xOffset)) {
    for (std::uint32_t row = 0; row < mMesh.rows; ++row) {
      for (std::uint32_t column = 0; column < mMesh.columns; ++column) {
        if (!hasValue(row, column)) continue;
        mColumns.take(column);
        mHeights.take(height(row, column));
        mHeights.take(height(row + 1, column));
        mValues.take(velocity(row, column));
      }
    }
  }

  bool empty() const { return mColumns.least > mColumns.most; }
  double nodes() const {
    return (mColumns.most - mColumns.least + 1.0) *
           std::max(2.0, (mHeights.most - mHeights.least) / mGrid.aLato());
  }
  void print(std::ostream& out) const;

 private:
  double velocity(std::uint32_t row, std::uint32_t column) const {
    return mGrid.velocity(mGrid.cellIndex(row, column));
  }
  bool hasValue(std::uint32_t row, std::uint32_t column) const {
    return mMesh.isDrawn(row, column) && std::isfinite(velocity(row, column)) &&
           std::isfinite(height(row, column)) && std::isfinite(height(row + 1, column));
  }
  /// Elevation of a line of corners in the middle of a column.
  double height(std::uint32_t line, std::uint32_t column) const {
    return 0.5 * (mMesh.corners[mMesh.corner(line, column)].z +
                  mMesh.corners[mMesh.corner(line, column + 1)].z);
  }
  double middle(std::uint32_t column) const {
    return 0.5 * (mMesh.corners[mMesh.corner(0, column)].x +
                  mMesh.corners[mMesh.corner(0, column + 1)].x);
  }
  /// From the lowest node to the highest, which lies half a cell below the top.
  Axis heights() const {
    const double step = mGrid.aLato();
    const double steps = (mHeights.most - mHeights.least) / step;
    const auto count = static_cast<std::uint32_t>(std::max(2.0, std::round(steps)));
    return {mHeights.most - (count - 0.5) * step, step, count};
  }
  /// Moves `row` up to the one that holds an elevation of the column; whether it does.
  bool findRow(std::uint32_t column, double elevation, std::uint32_t& row) const {
    while (row > 0 && elevation > height(row, column)) --row;
    return elevation <= height(row, column) && elevation > height(row + 1, column);
  }

  const Grid& mGrid;
  SectionMesh mMesh;
  Extent mColumns;
  Extent mHeights;  ///< metres
  Extent mValues;   ///< m/s
};

void Raster::print(std::ostream& out) const {
  const auto first = static_cast<std::uint32_t>(mColumns.least);
  const auto last = static_cast<std::uint32_t>(mColumns.most);
  // A raster has two nodes at least along each axis; a second column of one is blank.
  const Axis x{middle(first), mGrid.aLato(), std::max(last - first + 1, 2U)};
  const Axis y = heights();
  const auto ends = [&out](double low, double high, int digits) {
    out << formatDouble(low, digits) << ' ' << formatDouble(high, digits) << '\n';
  };
  out << "DSAA\n" << x.count << ' ' << y.count << '\n';
  ends(x.low, x.at(x.count - 1), kPlaceDigits);
  ends(y.low, y.at(y.count - 1), kPlaceDigits);
  ends(mValues.least, mValues.most, kValueDigits);
  // Lines of the raster go up, and so does the row that each column is in.
  std::vector<std::uint32_t> rows(x.count, mMesh.rows - 1);
  for (std::uint32_t j = 0; j < y.count; ++j) {
    for (std::uint32_t i = 0; i < x.count; ++i) {
      const std::uint32_t column = first + i;
      if (column <= last && findRow(column, y.at(j), rows[i]) && hasValue(rows[i], column)) {
        out << formatDouble(velocity(rows[i], column), kValueDigits);
      } else {
        out << kBlank;
      }
      out << ((i + 1) % kPerLine == 0 || i + 1 == x.count ? '\n' : ' ');
    }
    out << '\n';
  }
}

}  // namespace

Status writeSurferGrid(const std::string& path, const TomoDocument& document) {
  if (!document.model->grid) {
    return cannotWrite(path, noGrid());
  }
  const Raster raster(document);
  if (raster.empty()) return cannotWrite(path, noCellDrawn());
  if (!(raster.nodes() <= kMaxSurferNodes)) {
    return cannotWrite(
        path,
        Message::tr("the raster would have %1 nodes; choose larger cells").arg(raster.nodes()));
  }
  return told(writeTextAtomically(path, [&](std::ostream& out) { raster.print(out); }));
}

}  // namespace talvesk
