#include "app/dialogs/TraceHeadersModel.h"

#include "app/MessageText.h"
#include "base/LengthUnit.h"

#include <QCollator>
#include <QHash>
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
  setEntries(mHeaders.rows());
  endResetModel();
}

int TraceHeadersModel::rowOf(std::size_t set, std::size_t trace) const {
  return rowOfEntry(mHeaders.rowOf(set, trace));
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

void TraceHeadersModel::arrange(std::vector<std::size_t>& records, int column,
                                Qt::SortOrder order) const {
  const auto at = static_cast<std::size_t>(column);
  if (mHeaders.columns()[at].kind == Kind::kText) return arrangeBy(ranksOf(at), order, records);
  std::vector<double> numbers(records.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = mHeaders.number(i, at);
  arrangeBy(std::move(numbers), order, records);
}

/// Where the text of every record stands among all; not a number where there is none. Numbers
/// within texts count as such: 9.dat stands before 10.dat. Most cells of a column are alike, so
/// texts are compared once each.
std::vector<double> TraceHeadersModel::ranksOf(std::size_t column) const {
  std::vector<std::size_t> textAt(mHeaders.rows());
  std::vector<QString> texts;
  QHash<QString, std::size_t> known;
  for (std::size_t i = 0; i < textAt.size(); ++i) {
    const QString text = cell(i, column);
    const auto found = known.constFind(text);
    textAt[i] = found == known.constEnd() ? texts.size() : *found;
    if (found != known.constEnd()) continue;
    known.insert(text, texts.size());
    texts.push_back(text);
  }
  QCollator collator;
  collator.setNumericMode(true);
  std::vector<std::size_t> byWords(texts.size());
  std::iota(byWords.begin(), byWords.end(), std::size_t{0});
  std::stable_sort(byWords.begin(), byWords.end(), [&](std::size_t a, std::size_t b) {
    return collator.compare(texts[a], texts[b]) < 0;
  });
  std::vector<double> rank(texts.size(), std::numeric_limits<double>::quiet_NaN());
  for (std::size_t i = 0; i < byWords.size(); ++i) {
    if (!texts[byWords[i]].isEmpty()) rank[byWords[i]] = static_cast<double>(i);
  }
  std::vector<double> ranks(textAt.size());
  for (std::size_t i = 0; i < ranks.size(); ++i) ranks[i] = rank[textAt[i]];
  return ranks;
}

}  // namespace talvesk
