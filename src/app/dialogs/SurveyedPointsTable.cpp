#include "app/dialogs/SurveyedPointsTable.h"

#include "app/UnitWords.h"
#include "base/LengthUnit.h"

#include <QCoreApplication>
#include <QFont>
#include <QLocale>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr int kDecimals = 2;  ///< centimetres, which no survey of geophones is finer than

}  // namespace

QString nameOf(const SurveyedPoint& point) {
  return point.shot ? SurveyedPointsTable::tr("Shot %1").arg(point.index + 1)
                    : SurveyedPointsTable::tr("Geophone %1").arg(point.index + 1);
}

void SurveyedPointsTable::show(std::vector<SurveyedPoint> points,
                               const std::vector<SurveyedRow>& rows,
                               const std::vector<std::size_t>& doubtful) {
  beginResetModel();
  mPoints = std::move(points);
  mRows.clear();
  for (const SurveyedPoint& point : mPoints) {
    if (point.row == SurveyedPoint::kNoRow) {
      mRows.push_back(tr("none", "row of a table"));
      continue;
    }
    const SurveyedRow& row = rows[point.row];
    const QString line = QString::number(row.line);
    mRows.push_back(row.name.empty()
                        ? line
                        : tr("%1: %2", "line, name").arg(line, QString::fromStdString(row.name)));
  }
  mDoubtful.assign(mPoints.size(), false);
  for (const std::size_t i : doubtful) mDoubtful[i] = true;
  endResetModel();
}

int SurveyedPointsTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mPoints.size());
}

int SurveyedPointsTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

double SurveyedPointsTable::value(const SurveyedPoint& point, int column) const {
  switch (column) {
    case kAcross:
      return point.across;
    case kXBefore:
      return point.before.x;
    case kX:
      return point.after.x;
    case kXDifference:
      return point.after.x - point.before.x;
    case kZBefore:
      return point.before.z;
    case kZ:
      return point.after.z;
    default:
      return point.after.z - point.before.z;
  }
}

QVariant SurveyedPointsTable::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if (!index.isValid() || row >= mPoints.size()) return {};
  const bool text = index.column() == kName || index.column() == kRow;
  if (role == Qt::TextAlignmentRole && !text) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role == Qt::FontRole && mDoubtful[row]) {
    QFont font;
    font.setBold(true);
    return font;
  }
  if (role != Qt::DisplayRole) return {};
  if (index.column() == kName) return nameOf(mPoints[row]);
  if (index.column() == kRow) return mRows[row];
  const double number = shownLength(value(mPoints[row], index.column()));
  if (!std::isfinite(number)) return QStringLiteral("\u2013");
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  // What is no difference to the centimetre is none, whatever its sign.
  const double shown = std::fabs(number) < 0.005 ? 0.0 : number;
  return locale.toString(shown, 'f', kDecimals);
}

QVariant SurveyedPointsTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  switch (section) {
    case kName:
      return tr("Point");
    case kRow:
      return tr("Row", "of a table");
    case kAcross:
      return inShownUnits(tr("Across\n(m)"));
    case kXBefore:
      return inShownUnits(tr("x before\n(m)"));
    case kX:
      return inShownUnits(tr("x\n(m)"));
    case kXDifference:
    case kZDifference:
      return inShownUnits(tr("change\n(m)"));
    case kZBefore:
      return inShownUnits(tr("z before\n(m)"));
    case kZ:
      return inShownUnits(tr("z\n(m)"));
    default:
      return {};
  }
}

}  // namespace talvesk
