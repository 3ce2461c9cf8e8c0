#include "app/dialogs/KnownTables.h"

#include "app/LengthText.h"
#include "app/NumberText.h"
#include "app/UnitWords.h"

#include <QBrush>
#include <QColor>
#include <QGuiApplication>
#include <QPalette>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kEmpty = std::numeric_limits<double>::quiet_NaN();

KnownColumn columnOf(KnownKind kind, int column) {
  return layoutOf(kind).columns[static_cast<std::size_t>(column - 1)];
}

/// With its unit in brackets, in metres.
QString headerOf(KnownKind kind, KnownColumn column) {
  switch (column) {
    case KnownColumn::kX:
      return KnownTable::tr("Position [m]");
    case KnownColumn::kOffset:
      return KnownTable::tr("Offset [m]");
    case KnownColumn::kDepth:
      return kind == KnownKind::kBorehole ? KnownTable::tr("Top [m]") : KnownTable::tr("Depth [m]");
    case KnownColumn::kBottom:
      return KnownTable::tr("Bottom [m]");
    case KnownColumn::kVelocity:
      return kind == KnownKind::kDepth ? KnownTable::tr("Isovalue [m/s]")
                                       : KnownTable::tr("Velocity [m/s]");
    case KnownColumn::kError:
      return kind == KnownKind::kDepth ? KnownTable::tr("Error [m]")
                                       : KnownTable::tr("Error [m/s]");
    case KnownColumn::kRefractor:
      return KnownTable::tr("Refractor");
    case KnownColumn::kAbove:
      return KnownTable::tr("Above [m/s]");
    case KnownColumn::kBelow:
      break;
  }
  return KnownTable::tr("Below [m/s]");
}

/// A breath of red over the background, dark or light.
QColor mistakenBackground() {
  const QColor base = QGuiApplication::palette().color(QPalette::Base);
  return {std::min(255, (base.red() * 4 + 255) / 5), base.green() * 4 / 5, base.blue() * 4 / 5};
}

/// What a cell holds, which may be nothing.
std::optional<double> known(double number) {
  return std::isnan(number) ? std::nullopt : std::make_optional(number);
}

KnownSession::Rows sorted(const KnownGround& known) {
  KnownSession::Rows rows;
  for (KnownRow& row : rowsOf(known)) {
    rows[static_cast<std::size_t>(row.kind)].push_back(std::move(row));
  }
  return rows;
}

}  // namespace

KnownSession::KnownSession(const KnownGround& known, QObject* parent)
    : QObject(parent), mNow(sorted(known)) {
  check();
}

std::optional<KnownGround> KnownSession::ground() const {
  return mMistake ? std::nullopt : std::make_optional(mGround);
}

void KnownSession::check() {
  mMistake.reset();
  mGround = {};
  for (const std::vector<KnownRow>& rows : mNow) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const Message fault = addRow(rows[i], mGround);
      if (fault.empty()) continue;
      mMistake = Mistake{rows[i].kind, static_cast<int>(i), fault};
      return;
    }
  }
  const Message fault = faultOf(mGround);
  if (fault.empty()) return;
  // What rows one by one do not show is that a body has too few of them.
  const auto& bodies = rows(KnownKind::kBody);
  const auto& all = mGround.bodies;
  const auto lacks = std::find_if(all.begin(), all.end(),
                                  [](const KnownBody& body) { return !faultOf(body).empty(); });
  int row = 0;
  for (std::size_t i = 0; i < bodies.size() && lacks != all.end(); ++i) {
    if (bodies[i].name == lacks->name) row = static_cast<int>(i);
  }
  mMistake = Mistake{lacks != all.end() ? KnownKind::kBody : KnownKind::kBorehole, row, fault};
}

void KnownSession::show(Rows rows) {
  mNow = std::move(rows);
  check();
  emit changed();
}

void KnownSession::edit(const std::function<void(Rows&)>& change) {
  Rows next = mNow;
  change(next);
  mBack.push_back(mNow);
  mForth.clear();
  show(std::move(next));
}

void KnownSession::take(const KnownGround& known) {
  edit([&](Rows& rows) { rows = sorted(known); });
}

void KnownSession::undo() {
  if (mBack.empty()) return;
  mForth.push_back(mNow);
  Rows rows = std::move(mBack.back());
  mBack.pop_back();
  show(std::move(rows));
}

void KnownSession::redo() {
  if (mForth.empty()) return;
  mBack.push_back(mNow);
  Rows rows = std::move(mForth.back());
  mForth.pop_back();
  show(std::move(rows));
}

KnownTable::KnownTable(KnownSession& session, KnownKind kind, QObject* parent)
    : QAbstractTableModel(parent), mSession(session), mKind(kind), mRows(rowsNow()) {
  connect(&mSession, &KnownSession::changed, this, &KnownTable::follow);
}

/// Rows come and go at the end, so that selection and scroll position stay where they are.
void KnownTable::follow() {
  const int rows = rowsNow();
  if (rows > mRows) {
    beginInsertRows({}, mRows, rows - 1);
    mRows = rows;
    endInsertRows();
  } else if (rows < mRows) {
    beginRemoveRows({}, rows, mRows - 1);
    mRows = rows;
    endRemoveRows();
  }
  emit dataChanged(index(0, 0), index(mRows - 1, columnCount() - 1));
  emit headerDataChanged(Qt::Vertical, 0, mRows - 1);
}

int KnownTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : mRows;
}

int KnownTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(layoutOf(mKind).columns.size()) + 1;
}

QString KnownTable::cell(int row, int column) const {
  const std::vector<KnownRow>& rows = mSession.rows(mKind);
  if (row < 0 || row >= static_cast<int>(rows.size())) return {};
  const KnownRow& it = rows[static_cast<std::size_t>(row)];
  if (column == 0) return QString::fromStdString(it.name);
  const double number = it[columnOf(mKind, column)];
  if (std::isnan(number)) return {};
  return columnOf(mKind, column) == KnownColumn::kRefractor ? numberText(number)
                                                            : lengthText(number);
}

QVariant KnownTable::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole) return cell(index.row(), index.column());
  if (role == Qt::TextAlignmentRole && index.column() > 0) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  const auto& mistake = mSession.mistake();
  const bool wrong = mistake && mistake->kind == mKind && mistake->row == index.row();
  if (role == Qt::BackgroundRole && wrong) return QBrush(mistakenBackground());
  return {};
}

QVariant KnownTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return QAbstractTableModel::headerData(section, orientation, role);
  if (orientation == Qt::Vertical) {
    return section + 1 < rowCount() ? QVariant(section + 1) : QVariant(QStringLiteral("*"));
  }
  return section == 0 ? tr("Name") : inShownUnits(headerOf(mKind, columnOf(mKind, section)));
}

Qt::ItemFlags KnownTable::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

KnownRow KnownTable::begun() const {
  KnownRow row;
  row.kind = mKind;
  const std::vector<KnownRow>& rows = mSession.rows(mKind);
  if (rows.empty() || mKind == KnownKind::kDepth) return row;
  const KnownRow& above = rows.back();
  row.name = above.name;
  if (mKind == KnownKind::kBody) {
    row[KnownColumn::kVelocity] = above[KnownColumn::kVelocity];
    return row;
  }
  row[KnownColumn::kX] = above[KnownColumn::kX];
  row[KnownColumn::kOffset] = above[KnownColumn::kOffset];
  row[KnownColumn::kDepth] = above[KnownColumn::kBottom];
  return row;
}

QString KnownTable::put(KnownRow& row, int column, const QString& text) const {
  if (column == 0) {
    row.name = text.toStdString();
    return {};
  }
  double& number = row[columnOf(mKind, column)];
  if (text.isEmpty()) {
    number = kEmpty;
    return {};
  }
  const bool isCount = columnOf(mKind, column) == KnownColumn::kRefractor;
  const std::optional<double> typed = isCount ? numberFrom(text) : lengthFrom(text, known(number));
  if (!typed) return tr("\"%1\" is not a number.").arg(text);
  number = *typed;
  return {};
}

void KnownTable::edit(const std::function<void(std::vector<KnownRow>&)>& change) {
  mSession.edit([&](KnownSession::Rows& rows) { change(rows[static_cast<std::size_t>(mKind)]); });
}

bool KnownTable::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  const QString text = value.toString().trimmed();
  if (text == cell(index.row(), index.column())) return true;
  const bool isNew = index.row() + 1 == rowCount();
  KnownRow row = isNew ? begun() : mSession.rows(mKind)[static_cast<std::size_t>(index.row())];
  // Another name is the beginning of something else.
  if (isNew && index.column() == 0 && text.toStdString() != row.name) {
    row = KnownRow();
    row.kind = mKind;
  }
  if (const QString why = put(row, index.column(), text); !why.isEmpty()) {
    emit refused(why);
    return false;
  }
  const int at = index.row();
  edit([&](std::vector<KnownRow>& rows) {
    if (isNew) rows.emplace_back();
    rows[static_cast<std::size_t>(at)] = row;
  });
  return true;
}

void KnownTable::paste(int row, int column, const QString& text) {
  std::vector<KnownRow> rows = mSession.rows(mKind);
  QStringList lines = text.split(QLatin1Char('\n'));
  if (!lines.isEmpty() && lines.back().trimmed().isEmpty()) lines.removeLast();
  for (int i = 0; i < lines.size(); ++i) {
    const QStringList fields = lines[i].split(QLatin1Char('\t'));
    const auto at = static_cast<std::size_t>(row + i);
    if (at >= KnownGround::kMostParts || column + fields.size() > columnCount()) {
      emit refused(tr("Nothing was pasted: %1 rows of %2 columns do not fit from here on.")
                       .arg(lines.size())
                       .arg(fields.size()));
      return;
    }
    while (rows.size() <= at) rows.emplace_back().kind = mKind;
    for (int j = 0; j < fields.size(); ++j) {
      const QString why = put(rows[at], column + j, fields[j].trimmed());
      if (why.isEmpty()) continue;
      emit refused(tr("Nothing was pasted. Row %1: %2").arg(row + i + 1).arg(why));
      return;
    }
  }
  if (!lines.isEmpty()) edit([&](std::vector<KnownRow>& all) { all = std::move(rows); });
}

void KnownTable::clear(const QModelIndexList& cells) {
  edit([&](std::vector<KnownRow>& rows) {
    for (const QModelIndex& index : cells) {
      if (index.row() >= static_cast<int>(rows.size())) continue;
      put(rows[static_cast<std::size_t>(index.row())], index.column(), {});
    }
  });
}

void KnownTable::insertRow(int row) {
  edit([&](std::vector<KnownRow>& rows) {
    const auto at = std::min(static_cast<std::size_t>(std::max(row, 0)), rows.size());
    KnownRow fresh;
    fresh.kind = mKind;
    if (at < rows.size()) fresh.name = rows[at].name;
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(at), fresh);
  });
}

void KnownTable::removeRows(const QList<int>& rows) {
  edit([&](std::vector<KnownRow>& all) {
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
      if (*row < static_cast<int>(all.size())) all.erase(all.begin() + *row);
    }
  });
}

}  // namespace talvesk
