#include "app/dialogs/ReciprocityModel.h"

#include "app/LengthText.h"
#include "app/UnitWords.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMilliseconds = 1e3;
constexpr int kColumns = 8;

}  // namespace

void ReciprocityModel::setTable(doctor::ReciprocityTable table) {
  beginResetModel();
  mTable = std::move(table);
  setEntries(mTable.pairs.size());
  endResetModel();
}

const doctor::ReciprocalTimes& ReciprocityModel::pairAt(int row) const {
  return mTable.pairs[entryAt(row)];
}

int ReciprocityModel::rowOf(std::size_t shot, std::size_t other) const {
  const std::size_t first = std::min(shot, other);
  const std::size_t second = std::max(shot, other);
  const auto& pairs = mTable.pairs;
  const auto found =
      std::find_if(pairs.begin(), pairs.end(), [&](const doctor::ReciprocalTimes& pair) {
        return pair.first == first && pair.second == second;
      });
  return found == pairs.end() ? -1 : rowOfEntry(static_cast<std::size_t>(found - pairs.begin()));
}

int ReciprocityModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

/// As it is shown: numbers from 1, metres, milliseconds; not a number where it is not known.
double ReciprocityModel::valueOf(const doctor::ReciprocalTimes& pair, int column) const {
  switch (column) {
    case kFirst:
      return static_cast<double>(pair.first + 1);
    case kFirstAt:
      return mTable.shots[pair.first].x;
    case kThere:
      return kMilliseconds * pair.there;
    case kSecond:
      return static_cast<double>(pair.second + 1);
    case kSecondAt:
      return mTable.shots[pair.second].x;
    case kBack:
      return kMilliseconds * pair.back;
    case kDifference:
      return kMilliseconds * pair.difference();
    default:
      return pair.error > 0.0 ? std::fabs(pair.difference()) / pair.error
                              : std::numeric_limits<double>::quiet_NaN();
  }
}

QVariant ReciprocityModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const doctor::ReciprocalTimes& pair = pairAt(index.row());
  if (role == Qt::TextAlignmentRole) return int(Qt::AlignRight | Qt::AlignVCenter);
  if (role == Qt::ToolTipRole) {
    const bool back = index.column() >= kSecond && index.column() <= kBack;
    return tr("Shows trace %1 of shot %2")
        .arg((back ? pair.backTrace : pair.thereTrace) + 1)
        .arg((back ? pair.second : pair.first) + 1);
  }
  if (role != Qt::DisplayRole) return {};
  const double value = valueOf(pair, index.column());
  if (std::isnan(value)) return tr("–", "not known");
  const bool whole = index.column() == kFirst || index.column() == kSecond;
  const bool sigmas = index.column() == kSigmas;
  const bool place = index.column() == kFirstAt || index.column() == kSecondAt;
  if (place) return lengthNumber(value, 2);
  return QLocale().toString(value, 'f', whole ? 0 : sigmas ? 1 : 2);
}

QVariant ReciprocityModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::ToolTipRole && section == kSigmas) {
    return tr("The difference in standard deviations, where both picks have an error");
  }
  if (role != Qt::DisplayRole) return {};
  switch (section) {
    case kFirst:
    case kSecond:
      return tr("Shot");
    case kFirstAt:
    case kSecondAt:
      return inShownUnits(tr("At [m]"));
    case kThere:
      return tr("There [ms]");
    case kBack:
      return tr("Back [ms]");
    case kDifference:
      return tr("Difference [ms]");
    default:
      return tr("Sigmas");
  }
}

/// Differences by their size: it does not matter which of two shots came first.
void ReciprocityModel::arrange(std::vector<std::size_t>& pairs, int column,
                               Qt::SortOrder order) const {
  std::vector<double> values;
  for (const doctor::ReciprocalTimes& pair : mTable.pairs) {
    const double value = valueOf(pair, column);
    values.push_back(column == kDifference ? std::fabs(value) : value);
  }
  arrangeBy(std::move(values), order, pairs);
}

}  // namespace talvesk
