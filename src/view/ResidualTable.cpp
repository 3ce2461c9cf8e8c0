#include "view/ResidualTable.h"

#include "base/RoundStep.h"
#include "model/ChiSquare.h"
#include "model/Residuals.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <utility>

namespace talvesk {
namespace {

constexpr double kLow = 0.16;
constexpr double kHigh = 0.84;
constexpr double kMostInColour = 0.95;
constexpr double kLeastMilliseconds = 0.5;

// A group stands out where it is off as one, and not only as much as the others are.
constexpr std::size_t kLeastInGroup = 3;
constexpr double kOffByErrors = 1.0;
constexpr double kOffByDeviations = 3.0;  // of its median
constexpr double kOffByOthers = 2.0;      // times what groups are off by as a rule
constexpr double kMedianOfNormal = 1.2533;

constexpr std::size_t kLeastBeside = 9;  // picks of a window along the offset
constexpr std::size_t kWindows = 12;     // that would stand beside each other

/// The place of geophone `receiver` of a record, and the how-manieth of its string it is there.
using Place = std::pair<double, std::size_t>;

class Builder {
 public:
  explicit Builder(const TomoDocument& document) : mDocument(document) {}

  ResidualTable build() {
    mTable.known = sectionMisfitOf(mDocument).count > 0;
    if (!mTable.known) return std::move(mTable);
    mTable.picksChanged = picksChangedSince(mDocument);
    placeRows();
    placeColumns();
    takePicks();
    return std::move(mTable);
  }

 private:
  void placeRows() {
    for (std::size_t i = 0; i < mDocument.ttArray.size(); ++i) {
      mTable.rows.push_back({i, mDocument.ttArray[i].shotPos2d.x, false});
    }
    std::stable_sort(mTable.rows.begin(), mTable.rows.end(),
                     [](const ResidualRow& a, const ResidualRow& b) { return a.x < b.x; });
  }

  const std::vector<Place>& placesOf(const TravelTime& record) {
    const auto known = mPlaces.find(record.indexStesa);
    if (known != mPlaces.end() && known->second.size() >= record.ttMisurati.size()) {
      return known->second;
    }
    const auto& strings = mDocument.line->goephonesStringSet;
    const auto string = static_cast<std::size_t>(std::max(record.indexStesa, 0));
    const bool has = record.indexStesa >= 0 && string < strings.size();
    std::vector<Place> places;
    std::map<double, std::size_t> before;
    for (std::size_t j = 0; j < record.ttMisurati.size(); ++j) {
      const double x = has && j < strings[string].size() && std::isfinite(strings[string][j].x)
                           ? strings[string][j].x
                           : std::numeric_limits<double>::infinity();
      places.emplace_back(x, before[x]++);
    }
    return mPlaces[record.indexStesa] = std::move(places);
  }

  void placeColumns() {
    for (const TravelTime& record : mDocument.ttArray) {
      for (const Place& place : placesOf(record)) mColumns.emplace(place, 0);
    }
    for (auto& [place, column] : mColumns) {
      column = mTable.columns.size();
      mTable.columns.push_back({place.first, false});
    }
  }

  void takePicks() {
    const PickErrorRule rule = errorRuleOf(mDocument);
    const std::vector<Residual> residuals = sectionResidualsOf(mDocument);
    mTable.cells.assign(mTable.rows.size() * mTable.columns.size(), ResidualTable::kNone);
    std::vector<std::size_t> rows(mTable.rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row) rows[mTable.rows[row].record] = row;
    for (const Residual& each : residuals) {
      const TravelTime& record = mDocument.ttArray[each.record];
      const std::size_t column = mColumns[placesOf(record)[each.receiver]];
      mTable.cells[rows[each.record] * mTable.columns.size() + column] = mTable.picks.size();
      mTable.picks.push_back({each.record, each.receiver, column, each.offset, each.measured,
                              each.residual, sigmaOf(record, each.receiver, rule), false});
      mTable.shifted = mTable.shifted || outstandingShift(mDocument, each.record) != 0.0;
    }
    for (const std::size_t i : chiSquareOf(mDocument, residuals, rule).suspects) {
      mTable.picks[i].suspect = true;
    }
  }

  const TomoDocument& mDocument;
  ResidualTable mTable;
  std::map<std::int32_t, std::vector<Place>> mPlaces;  ///< by string
  std::map<Place, std::size_t> mColumns;
};

/// \param ascending at least one
double quantile(const std::vector<double>& ascending, double share) {
  const double at = share * static_cast<double>(ascending.size() - 1);
  const auto below = static_cast<std::size_t>(at);
  const std::size_t above = std::min(below + 1, ascending.size() - 1);
  return ascending[below] +
         (at - static_cast<double>(below)) * (ascending[above] - ascending[below]);
}

using Picks = std::vector<std::size_t>;

ResidualSpread spreadOf(const ResidualTable& table, const Picks& picks, ResidualUnit unit) {
  ResidualSpread spread;
  spread.count = picks.size();
  spread.worst = *std::max_element(picks.begin(), picks.end(), [&](std::size_t a, std::size_t b) {
    return std::fabs(table.picks[a].value(ResidualUnit::kErrors)) <
           std::fabs(table.picks[b].value(ResidualUnit::kErrors));
  });
  std::vector<double> values;
  for (const std::size_t pick : picks) values.push_back(table.picks[pick].value(unit));
  std::sort(values.begin(), values.end());
  spread.median = quantile(values, 0.5);
  spread.low = quantile(values, kLow);
  spread.high = quantile(values, kHigh);
  return spread;
}

/// \param of the group that a pick belongs to
template <typename Of>
std::vector<Picks> grouped(const ResidualTable& table, std::size_t groups, Of of) {
  std::vector<Picks> found(groups);
  for (std::size_t i = 0; i < table.picks.size(); ++i) found[of(table.picks[i])].push_back(i);
  return found;
}

std::vector<Picks> byShot(const ResidualTable& table) {
  return grouped(table, table.rows.size(), [](const PickResidual& pick) { return pick.record; });
}

std::vector<Picks> byGeophone(const ResidualTable& table) {
  return grouped(table, table.columns.size(), [](const PickResidual& pick) { return pick.column; });
}

/// Judged by the errors of the picks, so that it does not depend on what they are shown in.
std::vector<bool> standingOut(const ResidualTable& table, const std::vector<Picks>& groups) {
  std::vector<ResidualSpread> spreads(groups.size());
  std::vector<double> sizes;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (groups[i].empty()) continue;
    spreads[i] = spreadOf(table, groups[i], ResidualUnit::kErrors);
    sizes.push_back(std::fabs(spreads[i].median));
  }
  const double usual = medianOf(std::move(sizes), 0.0);
  std::vector<bool> out(groups.size(), false);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const ResidualSpread& own = spreads[i];
    if (own.count < kLeastInGroup) continue;
    const double off = std::fabs(own.median);
    const double deviation =
        kMedianOfNormal * (own.high - own.low) / 2.0 / std::sqrt(static_cast<double>(own.count));
    out[i] = off > kOffByErrors && off > kOffByDeviations * deviation && off > kOffByOthers * usual;
  }
  return out;
}

}  // namespace

std::size_t ResidualTable::rowOf(std::size_t record) const {
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const ResidualRow& row) { return row.record == record; });
  return found == rows.end() ? kNone : static_cast<std::size_t>(found - rows.begin());
}

std::size_t ResidualTable::pickOf(std::size_t record, std::size_t receiver) const {
  const auto found = std::find_if(picks.begin(), picks.end(), [&](const PickResidual& pick) {
    return pick.record == record && pick.receiver == receiver;
  });
  return found == picks.end() ? kNone : static_cast<std::size_t>(found - picks.begin());
}

ResidualTable residualTableOf(const TomoDocument& document) {
  ResidualTable table = Builder(document).build();
  const std::vector<bool> shots = standingOut(table, byShot(table));
  for (ResidualRow& row : table.rows) row.standsOut = shots[row.record];
  const std::vector<bool> geophones = standingOut(table, byGeophone(table));
  for (std::size_t i = 0; i < geophones.size(); ++i) table.columns[i].standsOut = geophones[i];
  return table;
}

std::vector<ResidualSpread> spreadOfShots(const ResidualTable& table, ResidualUnit unit) {
  std::vector<ResidualSpread> spreads;
  const std::vector<Picks> groups = byShot(table);
  for (std::size_t record = 0; record < groups.size(); ++record) {
    if (groups[record].empty()) continue;
    spreads.push_back(spreadOf(table, groups[record], unit));
    spreads.back().at = static_cast<double>(record + 1);
    spreads.back().standsOut = table.rows[table.rowOf(record)].standsOut;
  }
  return spreads;
}

std::vector<ResidualSpread> spreadOfGeophones(const ResidualTable& table, ResidualUnit unit) {
  std::vector<ResidualSpread> spreads;
  const std::vector<Picks> groups = byGeophone(table);
  for (std::size_t column = 0; column < groups.size(); ++column) {
    if (groups[column].empty()) continue;
    spreads.push_back(spreadOf(table, groups[column], unit));
    spreads.back().at = table.columns[column].x;
    spreads.back().standsOut = table.columns[column].standsOut;
  }
  return spreads;
}

std::vector<ResidualSpread> spreadOverOffset(const ResidualTable& table, ResidualUnit unit) {
  Picks order;
  for (std::size_t i = 0; i < table.picks.size(); ++i) {
    if (std::isfinite(table.picks[i].offset)) order.push_back(i);
  }
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return table.picks[a].offset < table.picks[b].offset;
  });
  const std::size_t width = std::max(kLeastBeside, order.size() / kWindows);
  std::vector<ResidualSpread> spreads;
  if (order.size() < width) return spreads;
  const std::size_t step = std::max<std::size_t>(1, width / 4);
  for (std::size_t first = 0; first + width <= order.size(); first += step) {
    const auto from = order.begin() + static_cast<std::ptrdiff_t>(first);
    const Picks window(from, from + static_cast<std::ptrdiff_t>(width));
    const double at = table.picks[window[width / 2]].offset;
    // Many picks may have one offset, which gets one value only.
    if (!spreads.empty() && at <= spreads.back().at) continue;
    spreads.push_back(spreadOf(table, window, unit));
    spreads.back().at = at;
  }
  return spreads;
}

double residualLimit(const std::vector<double>& values, ResidualUnit unit) {
  std::vector<double> sizes;
  for (const double value : values) {
    if (std::isfinite(value)) sizes.push_back(std::fabs(value));
  }
  const double least = unit == ResidualUnit::kErrors ? 1.0 : kLeastMilliseconds;
  if (sizes.empty()) return least;
  std::sort(sizes.begin(), sizes.end());
  return roundStep(std::max(least, quantile(sizes, kMostInColour)));
}

}  // namespace talvesk
