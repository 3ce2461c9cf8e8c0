#include "app/dialogs/TraceHeadersModel.h"

#include "app/MessageText.h"
#include "base/LengthUnit.h"

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace talvesk {
namespace {

using Kind = HeaderColumn::Kind;

constexpr int kDigits = 8;  ///< of what single precision holds, one more than it surely does

}  // namespace

void TraceHeadersModel::setHeaders(TraceHeaders headers) {
  beginResetModel();
  mHeaders = std::move(headers);
  mOrder.resize(mHeaders.rows());
  if (mColumn >= columnCount()) mColumn = 0;
  arrange();
  endResetModel();
}

std::size_t TraceHeadersModel::recordAt(int row) const {
  return mOrder[static_cast<std::size_t>(row)];
}

int TraceHeadersModel::rowOf(std::size_t shot, std::size_t trace) const {
  const std::size_t record = mHeaders.rowOf(shot, trace);
  const auto found = std::find(mOrder.begin(), mOrder.end(), record);
  return found == mOrder.end() ? -1 : static_cast<int>(found - mOrder.begin());
}

QString TraceHeadersModel::titleOf(std::size_t column) const {
  const HeaderColumn& known = mHeaders.columns()[column];
  const QString title = textOf(known.title);
  switch (known.kind) {
    case Kind::kLength:
      return tr("%1 [%2]", "quantity, unit").arg(title, QLatin1String(lengthUnitName()));
    case Kind::kMilliseconds:
      return tr("%1 [ms]", "quantity").arg(title);
    default:
      return title;
  }
}

QString TraceHeadersModel::cell(std::size_t record, std::size_t column) const {
  const HeaderColumn& known = mHeaders.columns()[column];
  if (known.kind == Kind::kText) {
    return linesOf(mHeaders.words(record, column)).join(QStringLiteral("; "));
  }
  const double value = mHeaders.number(record, column);
  if (!std::isfinite(value)) return {};
  if (known.kind == Kind::kCount) return QLocale().toString(value, 'f', 0);
  // No remainder of binary fractions, and no -0.
  double shown = known.kind == Kind::kLength ? shownLength(value) : value;
  // Metres are told as they are; in feet they would have digits without end.
  if (shown != value) shown = std::round(1e3 * shown) / 1e3;
  return QLocale().toString(shown + 0.0, 'g', kDigits);
}

QString TraceHeadersModel::textOfRows(const std::vector<int>& rows) const {
  const std::size_t columns = mHeaders.columns().size();
  QStringList lines;
  QStringList cells;
  for (std::size_t column = 0; column < columns; ++column) cells << titleOf(column);
  lines << cells.join(QLatin1Char('\t'));
  for (const int row : rows) {
    cells.clear();
    for (std::size_t column = 0; column < columns; ++column) {
      cells << cell(recordAt(row), column).replace(QLatin1Char('\t'), QLatin1Char(' '));
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

int TraceHeadersModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mOrder.size());
}

int TraceHeadersModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mHeaders.columns().size());
}

QVariant TraceHeadersModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::TextAlignmentRole) {
    const bool text = mHeaders.columns()[column].kind == Kind::kText;
    return int((text ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
  }
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  const QString text = cell(recordAt(index.row()), column);
  // Long texts are cut in their cells.
  return role == Qt::DisplayRole ? text : text.toHtmlEscaped();
}

QVariant TraceHeadersModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  if (role == Qt::DisplayRole) return titleOf(static_cast<std::size_t>(section));
  return {};
}

/// What is not known stands last, whatever the order.
void TraceHeadersModel::arrange() {
  std::iota(mOrder.begin(), mOrder.end(), std::size_t{0});
  if (mOrder.empty()) return;
  const auto column = static_cast<std::size_t>(mColumn);
  if (mHeaders.columns()[column].kind == Kind::kText) return arrangeByText(column);
  const double sign = mSortOrder == Qt::DescendingOrder ? -1.0 : 1.0;
  std::vector<double> keys(mOrder.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const double value = mHeaders.number(i, column);
    keys[i] = std::isfinite(value) ? sign * value : std::numeric_limits<double>::infinity();
  }
  std::stable_sort(mOrder.begin(), mOrder.end(),
                   [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
}

/// Numbers within texts count as such: 9.dat stands before 10.dat. Most cells of a column are
/// alike, so texts are compared once each.
void TraceHeadersModel::arrangeByText(std::size_t column) {
  std::vector<QString> texts(mOrder.size());
  for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = cell(i, column);
  std::vector<QString> distinct = texts;
  std::sort(distinct.begin(), distinct.end());
  distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
  QCollator collator;
  collator.setNumericMode(true);
  std::vector<std::size_t> byWords(distinct.size());
  std::iota(byWords.begin(), byWords.end(), std::size_t{0});
  const bool down = mSortOrder == Qt::DescendingOrder;
  std::stable_sort(byWords.begin(), byWords.end(), [&](std::size_t a, std::size_t b) {
    if (distinct[a].isEmpty() || distinct[b].isEmpty()) return distinct[b].isEmpty() && a != b;
    const int order = collator.compare(distinct[a], distinct[b]);
    return down ? order > 0 : order < 0;
  });
  std::vector<std::size_t> rank(distinct.size());
  for (std::size_t i = 0; i < byWords.size(); ++i) rank[byWords[i]] = i;
  std::vector<std::size_t> keys(texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const auto at = std::lower_bound(distinct.begin(), distinct.end(), texts[i]);
    keys[i] = rank[static_cast<std::size_t>(at - distinct.begin())];
  }
  std::stable_sort(mOrder.begin(), mOrder.end(),
                   [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
}

void TraceHeadersModel::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= columnCount()) return;
  emit layoutAboutToBeChanged();
  std::vector<std::size_t> records;
  const QModelIndexList before = persistentIndexList();
  for (const QModelIndex& index : before) records.push_back(recordAt(index.row()));
  mColumn = column;
  mSortOrder = order;
  arrange();
  std::vector<int> rows(mOrder.size());
  for (std::size_t i = 0; i < mOrder.size(); ++i) rows[mOrder[i]] = static_cast<int>(i);
  QModelIndexList after;
  for (int i = 0; i < before.size(); ++i) {
    after << index(rows[records[static_cast<std::size_t>(i)]], before[i].column());
  }
  changePersistentIndexList(before, after);
  emit layoutChanged();
}

}  // namespace talvesk
