#include "tomo/fitted/Roughness.h"

#include "tomo/fitted/KnownCells.h"

#include <cmath>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

constexpr double kAlong = 1.0;    // squared weight of neighbours in a row
constexpr double kAcross = 0.25;  // in a column: ground is layered
/// Differences of ln slowness below this count by their squares.
constexpr double kSmallStep = 0.02;
/// Share of their weight that neighbours keep which may differ. Not nothing: ground that no ray
/// reaches is tied to the rest by it.
constexpr double kLoose = 1e-3;

}  // namespace

template <typename Visit>
void Roughness::forEachPair(Visit visit) const {
  for (std::uint32_t row = 0; row < mRows; ++row) {
    for (std::uint32_t column = 0; column < mColumns; ++column) {
      const Eigen::Index cell = static_cast<Eigen::Index>(row) * mColumns + column;
      const int loose = mLoose.empty() ? 0 : mLoose[static_cast<std::size_t>(cell)];
      const auto share = [loose](int side) { return (loose & side) != 0 ? kLoose : 1.0; };
      if (column + 1 < mColumns) visit(cell, cell + 1, kAlong * share(KnownCells::kRight));
      if (row + 1 < mRows) visit(cell, cell + mColumns, kAcross * share(KnownCells::kBelow));
    }
  }
}

template <typename Weight>
void Roughness::assemble(Weight weight) {
  const Eigen::Index cells = static_cast<Eigen::Index>(mRows) * mColumns;
  std::vector<Eigen::Triplet<double>> entries;
  entries.reserve(static_cast<std::size_t>(cells) * 8);
  forEachPair([&](Eigen::Index a, Eigen::Index b, double base) {
    const double w = weight(a, b, base);
    entries.emplace_back(a, a, w);
    entries.emplace_back(b, b, w);
    entries.emplace_back(a, b, -w);
    entries.emplace_back(b, a, -w);
  });
  mMatrix.resize(cells, cells);
  mMatrix.setFromTriplets(entries.begin(), entries.end());
}

Roughness::Roughness(std::uint32_t rows, std::uint32_t columns) : mRows(rows), mColumns(columns) {
  assemble([](Eigen::Index, Eigen::Index, double base) { return base; });
}

void Roughness::loosen(std::vector<std::uint8_t> loose) {
  mLoose = std::move(loose);
  assemble([](Eigen::Index, Eigen::Index, double base) { return base; });
}

void Roughness::sharpen(const Eigen::VectorXd& values) {
  const auto sharpness = [&](Eigen::Index a, Eigen::Index b) {
    const double step = values[b] - values[a];
    return 1.0 / std::sqrt(step * step + kSmallStep * kSmallStep);
  };
  double squares = 0.0;
  double sharpened = 0.0;
  forEachPair([&](Eigen::Index a, Eigen::Index b, double base) {
    const double square = base * (values[b] - values[a]) * (values[b] - values[a]);
    squares += square;
    sharpened += square * sharpness(a, b);
  });
  const double scale = sharpened > 0.0 ? squares / sharpened : kSmallStep;
  assemble(
      [&](Eigen::Index a, Eigen::Index b, double base) { return base * scale * sharpness(a, b); });
}

}  // namespace talvesk
