#include "tomo/Smoothing.h"

#include "base/Console.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>

namespace talvesk {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

/// The window of a cell, cut at the edges of the grid.
class Windows {
 public:
  Windows(const Grid& grid, int radius, double ratio)
      : rows(static_cast<int>(grid.righe())),
        cols(static_cast<int>(grid.col())),
        mColumns(std::min(std::max(radius, 0), cols)),
        mRows(std::min(static_cast<int>(std::floor(std::max(radius, 0) * ratio)), rows)) {}

  int firstRow(int row) const { return std::max(row - mRows, 0); }
  int lastRow(int row) const { return std::min(row + mRows, rows - 1); }
  int firstColumn(int column) const { return std::max(column - mColumns, 0); }
  int lastColumn(int column) const { return std::min(column + mColumns, cols - 1); }
  int columnReach() const { return mColumns; }

  const int rows;
  const int cols;

 private:
  int mColumns;
  int mRows;
};

struct Centres {
  explicit Centres(const Grid& grid) : x(grid.cellCount()), z(grid.cellCount()) {
    for (std::uint32_t c = 0; c < grid.cellCount(); ++c) {
      const Point2D centre = grid.cellCentre(c);
      x[c] = centre.x;
      z[c] = centre.z;
    }
  }
  double squaredDistance(std::size_t a, std::size_t b) const {
    const double dx = x[a] - x[b];
    const double dz = z[a] - z[b];
    return dx * dx + dz * dz;
  }
  std::vector<double> x;
  std::vector<double> z;
};

/// Calls work(row) for every row; workers take a few thousand cells at once.
void forEachRow(WorkerPool& pool, int rows, int cols, const std::function<void(int row)>& work) {
  constexpr int kCells = 2048;
  const auto part = static_cast<std::size_t>(std::max(kCells / std::max(cols, 1), 1));
  forEachPart(pool, static_cast<std::size_t>(rows), part, [&](std::size_t first, std::size_t end) {
    for (std::size_t row = first; row < end; ++row) work(static_cast<int>(row));
  });
}

/// Works through a row of cells at once, but adds up every window in its own order: row by row,
/// left to right.
std::vector<double> uniform(const Windows& w, const std::vector<double>& in, WorkerPool& pool) {
  std::vector<double> out(in.size(), 0.0);
  const int reach = w.columnReach();
  forEachRow(pool, w.rows, w.cols, [&](int row) {
    double* sums = out.data() + std::size_t(row) * w.cols;
    for (int r = w.firstRow(row); r <= w.lastRow(row); ++r) {
      const double* values = in.data() + std::size_t(r) * w.cols;
      for (int offset = -reach; offset <= reach; ++offset) {
        const int end = std::min(w.cols, w.cols - offset);
        for (int column = std::max(0, -offset); column < end; ++column) {
          sums[column] += values[column + offset];
        }
      }
    }
    const int height = w.lastRow(row) - w.firstRow(row) + 1;
    for (int column = 0; column < w.cols; ++column) {
      sums[column] /= height * (w.lastColumn(column) - w.firstColumn(column) + 1);
    }
  });
  return out;
}

/// Weighted mean over every window; the weight is a function of the squared centre distance.
template <typename Weight>
std::vector<double> weighted(const Windows& w, const Centres& centres,
                             const std::vector<double>& in, WorkerPool& pool, Weight weightOf) {
  std::vector<double> out(in.size(), 0.0);
  forEachRow(pool, w.rows, w.cols, [&](int row) {
    for (int column = 0; column < w.cols; ++column) {
      const std::size_t cell = std::size_t(row) * w.cols + column;
      double sum = 0.0;
      double weights = 0.0;
      for (int r = w.firstRow(row); r <= w.lastRow(row); ++r) {
        for (int c = w.firstColumn(column); c <= w.lastColumn(column); ++c) {
          const std::size_t other = std::size_t(r) * w.cols + c;
          const double weight = weightOf(centres.squaredDistance(cell, other));
          sum += weight * in[other];
          weights += weight;
        }
      }
      out[cell] = weights > 0.0 ? sum / weights : 0.0;
    }
  });
  return out;
}

double inverseDistance(double squared) {
  const double d = std::sqrt(squared);
  return d == 0.0 ? 1.0 : 1.0 / d;
}

/// The parameter counts cells while distances are metres; kept, users know its effect.
auto gaussian(int radius) {
  const double sigma = radius / 1.4;
  return [sigma](double squared) {
    return std::exp(-squared / (2.0 * (sigma * sigma))) * 1.0 / (6.283 * (sigma * sigma));
  };
}

/// Rows of a column whose centres can lie within `reach` of a depth. All of them where centres do
/// not grow with the row, as below a cliff.
class ColumnRows {
 public:
  ColumnRows(const Grid& grid, const Centres& centres)
      : mRows(grid.righe()), mCols(grid.col()), mCentres(centres), mOrdered(mCols, 1) {
    for (std::size_t cell = mCols; cell < centres.z.size(); ++cell) {
      if (!(centres.z[cell] > centres.z[cell - mCols])) mOrdered[cell % mCols] = 0;
    }
  }

  void include(std::size_t column, double depth, double reach, std::size_t& first,
               std::size_t& last) const {
    if (mOrdered[column] == 0) {
      first = 0;
      last = mRows - 1;
      return;
    }
    std::size_t low = 0, high = mRows;  // first row not above depth - reach
    while (low < high) {
      const std::size_t middle = (low + high) / 2;
      if (mCentres.z[middle * mCols + column] < depth - reach)
        low = middle + 1;
      else
        high = middle;
    }
    first = std::min(first, low);
    std::size_t end = std::max(low, last);
    while (end + 1 < mRows && mCentres.z[(end + 1) * mCols + column] <= depth + reach) ++end;
    last = std::max(last, std::min(end, mRows - 1));
  }

 private:
  std::size_t mRows;
  std::size_t mCols;
  const Centres& mCentres;
  std::vector<std::uint8_t> mOrdered;
};

/// The cells that rays crossed: what lies next in a row, and between which depths they lie around a
/// column. Most ground without rays is far below all of them.
class CoveredCells {
 public:
  /// \param width columns to either side that count as around one
  CoveredCells(const Grid& grid, const Centres& centres, const std::vector<std::uint32_t>& hits,
               std::size_t width)
      : mCols(grid.col()), mNext(grid.righe() * (mCols + 1), grid.col()) {
    std::vector<double> top(mCols, kLargest), bottom(mCols, -kLargest);
    for (std::size_t row = 0; row < grid.righe(); ++row) {
      std::uint32_t* next = &mNext[row * (mCols + 1)];
      for (std::uint32_t column = grid.col(); column-- > 0;) {
        const std::size_t cell = row * mCols + column;
        next[column] = hits[cell] > 0 ? column : next[column + 1];
        if (hits[cell] == 0) continue;
        top[column] = std::min(top[column], centres.z[cell]);
        bottom[column] = std::max(bottom[column], centres.z[cell]);
      }
    }
    for (std::size_t column = 0; column < mCols; ++column) {
      const std::size_t first = column - std::min(column, width);
      const std::size_t end = std::min(column + width + 1, mCols);
      mTop.push_back(*std::min_element(&top[first], top.data() + end));
      mBottom.push_back(*std::max_element(&bottom[first], bottom.data() + end));
    }
  }

  /// The first covered cell of a row at or after a column, the number of columns for none.
  std::size_t next(std::size_t row, std::size_t column) const {
    return mNext[row * (mCols + 1) + column];
  }
  bool noneNear(std::size_t column, double depth, double reach) const {
    return depth - mBottom[column] > reach || mTop[column] - depth > reach;
  }

 private:
  std::size_t mCols;
  std::vector<std::uint32_t> mNext;  ///< one more per row than it has cells
  std::vector<double> mTop;          ///< depth of the highest covered cell around a column
  std::vector<double> mBottom;       ///< of the lowest
};

/// Gives the cells that no ray crossed a mean of covered cells near by; looks only at the columns
/// and rows in which such cells can lie, in cell order. \param in what a cell keeps; \param values
/// what is averaged, read where hits are
std::vector<double> fillUncovered(const Grid& grid, const std::vector<std::uint32_t>& hits,
                                  int radius, const std::vector<double>& in,
                                  const std::vector<double>& values, WorkerPool& pool) {
  std::vector<double> out = in;
  if (out.empty()) return out;
  const Centres centres(grid);
  const ColumnRows columnRows(grid, centres);
  const std::size_t rows = grid.righe(), cols = grid.col();
  const double limit = 2.0 * (radius * grid.aLato()) * (radius * grid.aLato());
  // One cell wider than the circle, beyond any rounding of the centres.
  const double reach = std::sqrt(limit) + grid.aLato();
  const auto width =
      static_cast<std::size_t>(std::min(reach / grid.aLato() + 1.0, static_cast<double>(cols)));
  const CoveredCells covered(grid, centres, hits, width);

  const auto fill = [&](std::size_t cell, std::size_t column) {
    const std::size_t firstColumn = column - std::min(column, width);
    const std::size_t lastColumn = std::min(column + width, cols - 1);
    std::size_t firstRow = rows - 1, lastRow = 0;
    for (std::size_t c = firstColumn; c <= lastColumn; ++c) {
      columnRows.include(c, centres.z[cell], reach, firstRow, lastRow);
    }
    const double slowness = grid.slowness(static_cast<std::uint32_t>(cell));
    const double velocity = slowness == 0.0 ? kLargest : 1.0 / slowness;
    const double spread = -2.0 * (std::log(velocity) * std::log(velocity));
    double sum = 0.0;
    double weights = 0.0;
    for (std::size_t r = firstRow; r <= lastRow; ++r) {
      for (std::size_t c = covered.next(r, firstColumn); c <= lastColumn;
           c = covered.next(r, c + 1)) {
        const std::size_t other = r * cols + c;
        const double squared = centres.squaredDistance(cell, other);
        if (!(squared < limit)) continue;
        const double weight = std::exp(squared / spread);
        sum += weight * values[other];
        weights += weight;
      }
    }
    // No weight at all: nothing near by, or a cell of 1 m/s, whose logarithm leaves no width.
    if (weights > 0.0) out[cell] = 1.0 / (sum / weights);
  };
  forEachRow(pool, static_cast<int>(rows), static_cast<int>(cols), [&](int row) {
    for (std::size_t column = 0; column < cols; ++column) {
      const std::size_t cell = static_cast<std::size_t>(row) * cols + column;
      if (hits[cell] > 0 || covered.noneNear(column, centres.z[cell], reach)) continue;
      fill(cell, column);
    }
  });
  return out;
}

std::vector<double> smooth(SmoothingType type, const Grid& grid, const std::vector<double>& in,
                           int radius, double ratio, WorkerPool& pool) {
  const Windows windows(grid, radius, ratio);
  if (type == SmoothingType::kLinear) {
    return weighted(windows, Centres(grid), in, pool, inverseDistance);
  }
  if (type == SmoothingType::kGaussian) {
    return weighted(windows, Centres(grid), in, pool, gaussian(radius));
  }
  return uniform(windows, in, pool);
}

const char* nameOf(SmoothingType type) {
  switch (type) {
    case SmoothingType::kLinear:
      return "Linear";
    case SmoothingType::kGaussian:
      return "Gaussian";
    default:
      return "Uniform";
  }
}

void checkHits(const Grid& grid, const std::vector<std::uint32_t>& hits) {
  if (hits.size() == grid.cellCount()) return;
  throw std::out_of_range(std::to_string(hits.size()) + " hit counts for " +
                          std::to_string(grid.cellCount()) + " cells");
}

}  // namespace

std::vector<double> smoothSlowness(SmoothingType type, const Grid& grid,
                                   const std::vector<std::uint32_t>& hits, int radius, double ratio,
                                   WorkerPool& pool) {
  checkHits(grid, hits);
  if (type == SmoothingType::kRayBased) {
    std::vector<double> velocities = grid.slownesses();
    for (double& v : velocities) v = v == 0.0 ? kLargest : 1.0 / v;
    const auto filled = fillUncovered(grid, hits, radius, grid.slownesses(), velocities, pool);
    return smooth(SmoothingType::kUniform, grid, filled, radius, ratio, pool);
  }
  console::out() << nameOf(type) << " Smoothing..." << std::endl;
  return smooth(type, grid, grid.slownesses(), radius, ratio, pool);
}

std::vector<double> smoothSlowness(SmoothingType type, const Grid& grid,
                                   const std::vector<std::uint32_t>& hits, int radius,
                                   double ratio) {
  WorkerPool alone(1);
  return smoothSlowness(type, grid, hits, radius, ratio, alone);
}

std::vector<double> smoothRayDensity(SmoothingType type, const Grid& grid,
                                     const std::vector<std::uint32_t>& hits, int radius,
                                     double ratio, Log& log, WorkerPool& pool) {
  checkHits(grid, hits);
  const std::vector<double> counts(hits.begin(), hits.end());
  if (type == SmoothingType::kRayBased) {
    // The fill turns a mean hit count into its reciprocal, as it does with velocities; kept, so
    // that uncovered ground stands apart in the layer.
    const auto filled = fillUncovered(grid, hits, radius, counts, counts, pool);
    return smooth(SmoothingType::kUniform, grid, filled, radius, ratio, pool);
  }
  log.write(std::string(nameOf(type)) + " RayDensity Smoothing");
  log.write(std::to_string(radius));
  return smooth(type, grid, counts, radius, ratio, pool);
}

std::vector<double> smoothRayDensity(SmoothingType type, const Grid& grid,
                                     const std::vector<std::uint32_t>& hits, int radius,
                                     double ratio, Log& log) {
  WorkerPool alone(1);
  return smoothRayDensity(type, grid, hits, radius, ratio, log, alone);
}

}  // namespace talvesk
