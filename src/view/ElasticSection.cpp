#include "view/ElasticSection.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "tomo/CellDepth.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

/// A column of cells with the depths of their middles, from the surface down.
class Column {
 public:
  Column(const Grid& grid, std::uint32_t column) : mGrid(grid), mColumn(column) {
    for (std::uint32_t row = 0; row < grid.righe(); ++row) {
      mDepths.push_back(cellDepth(grid.geometry(), grid.cellIndex(row, column)));
    }
  }

  /// The drawn cell in which a depth lies.
  std::optional<std::uint32_t> drawnAt(double depth) const {
    const double half = mGrid.aLato() / 2.0;
    const auto next = std::lower_bound(mDepths.begin(), mDepths.end(), depth - half);
    if (next == mDepths.end() || std::fabs(*next - depth) > half) return std::nullopt;
    const auto cell = mGrid.cellIndex(static_cast<std::uint32_t>(next - mDepths.begin()), mColumn);
    return mGrid.draw(cell) ? std::optional(cell) : std::nullopt;
  }

 private:
  const Grid& mGrid;
  std::uint32_t mColumn;
  std::vector<double> mDepths;
};

/// Elevation of the surface in the middle of a column, metres.
double surfaceAt(const GridGeometry& geometry, std::uint32_t column) {
  const std::uint32_t first = column * (geometry.nV() - 1);
  return -(geometry.lineZ(0, first) + geometry.lineZ(0, first + geometry.nV() - 1)) / 2.0;
}

bool hasCells(const TomoDocument& document) {
  return document.model->grid != nullptr && document.model->grid->cellCount() > 0;
}

/// What does not fit, beside that of the cells.
struct Tally {
  std::size_t drawn = 0;  ///< cells of P
  double apart = 0.0;     ///< of the surfaces, metres
  double where = 0.0;     ///< distance, metres
};

void matchColumn(const Grid& grid, std::uint32_t column, double x, const Column* twin,
                 const Grid& other, const DensityRule& density, ElasticSection& section,
                 Tally& tally) {
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    const std::uint32_t cell = grid.cellIndex(row, column);
    if (!grid.draw(cell)) continue;
    ++tally.drawn;
    if (twin == nullptr) continue;
    ElasticCell own;
    own.cell = cell;
    own.depth = cellDepth(grid.geometry(), cell);
    own.centre = {x, -grid.cellCentre(cell).z};
    const auto there = twin->drawnAt(own.depth);
    if (!there) continue;
    const double unknown = Estimate().sigma;
    own.state =
        elasticState({grid.velocity(cell), unknown}, {other.velocity(*there), unknown}, density, 0);
    section.cells.push_back(own);
  }
}

void addRemarks(const Tally& tally, const ElasticOptions& options, ElasticSection& section) {
  const std::size_t both = section.cells.size();
  std::vector<Message>& remarks = section.remarks;
  if (both < tally.drawn) {
    remarks.push_back(Message::tr("%1 of the %2 cells of P lie where the section of S shows none.")
                          .arg(tally.drawn - both)
                          .arg(tally.drawn));
  }
  const auto count = [&section](ElasticVerdict verdict) {
    return std::count_if(
        section.cells.begin(), section.cells.end(),
        [verdict](const ElasticCell& one) { return one.state.verdict == verdict; });
  };
  if (const auto n = count(ElasticVerdict::kSNotSlower); n > 0) {
    remarks.push_back(Message::tr("In %1 of %2 cells S is not slower than P, which no ground is: "
                                  "no Poisson's ratio, E0 and K there.")
                          .arg(n)
                          .arg(both));
  }
  if (const auto n = count(ElasticVerdict::kNegativePoisson); n > 0) {
    remarks.push_back(Message::tr("In %1 of %2 cells Vp/Vs is below 1.41 and Poisson's ratio "
                                  "negative, which soil and rock are not.")
                          .arg(n)
                          .arg(both));
  }
  if (tally.apart > ElasticOptions::kPlaceTolerance) {
    remarks.push_back(Message::tr("The surfaces of the sections of P and S lie up to %1 apart, "
                                  "at %2; cells are matched by their depths below them.")
                          .arg(Message::length(tally.apart, 3))
                          .arg(Message::length(tally.where, 4)));
  }
  if (!options.density.gardner && options.density.layers.size() > 1) {
    remarks.push_back(Message::tr("A section has no layers: all of it has the first density."));
  }
}

}  // namespace

Status matchSections(const TomoDocument& p, const TomoDocument& s, const ElasticOptions& options,
                     ElasticSection& out) {
  if (!hasCells(p)) return Status::failure(Message::tr("The project of P has no section."));
  if (!hasCells(s)) return Status::failure(Message::tr("The project of S has no section."));
  const Grid& grid = *p.model->grid;
  const Grid& other = *s.model->grid;
  ElasticSection section;
  Tally tally;
  for (std::uint32_t column = 0; column < grid.col(); ++column) {
    const double x = grid.cellCentre(column).x - p.model->xOffset;
    const double at = std::floor((x - options.shift + s.model->xOffset) / other.aLato());
    const bool inside = at >= 0.0 && at < other.col();
    std::optional<Column> twin;
    if (inside) {
      const auto number = static_cast<std::uint32_t>(at);
      twin.emplace(other, number);
      const double gap =
          std::fabs(surfaceAt(grid.geometry(), column) - surfaceAt(other.geometry(), number));
      if (gap > tally.apart) tally.where = x;
      tally.apart = std::max(tally.apart, gap);
    }
    matchColumn(grid, column, x, twin ? &*twin : nullptr, other, options.density, section, tally);
  }
  if (section.cells.empty()) {
    return Status::failure(Message::tr("The sections of P and S have no cell in common."));
  }
  std::sort(section.cells.begin(), section.cells.end(),
            [](const ElasticCell& a, const ElasticCell& b) { return a.cell < b.cell; });
  addRemarks(tally, options, section);
  out = std::move(section);
  return {};
}

CellValues cellValuesOf(const ElasticSection& section, ElasticQuantity quantity, Message name,
                        std::string unit, std::size_t cells) {
  CellValues values;
  values.name = std::move(name);
  values.unit = std::move(unit);
  values.values.assign(cells, std::numeric_limits<double>::quiet_NaN());
  const double factor = kElasticColumns[static_cast<std::size_t>(quantity)].factor;
  for (const ElasticCell& one : section.cells) {
    if (one.cell < cells) values.values[one.cell] = factor * one.state[quantity].value;
  }
  return values;
}

}  // namespace talvesk
