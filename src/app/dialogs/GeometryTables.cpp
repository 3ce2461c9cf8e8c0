#include "app/dialogs/GeometryTables.h"

#include "app/LengthText.h"
#include "app/MessageText.h"
#include "app/TableTexts.h"
#include "app/UnitWords.h"
#include "app/dialogs/GeometrySession.h"
#include "app/dialogs/GeometryTexts.h"
#include "base/TypedTable.h"
#include "figures/ShownLength.h"

#include <QBrush>
#include <QColor>
#include <QComboBox>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

void setX(GeometryPlace& place, double x) {
  place.x = x;
}

void setZ(GeometryPlace& place, double z) {
  place.z = z;
  place.typed = !std::isnan(z);
}

bool tooFar(double value) {
  return std::fabs(value) > kFarthestPosition;
}

/// A breath of red over the background, dark or light.
QColor mistakenBackground() {
  const QColor base = QGuiApplication::palette().color(QPalette::Base);
  return {std::min(255, (base.red() * 4 + 255) / 5), base.green() * 4 / 5, base.blue() * 4 / 5};
}

QString fileName(const std::string& path) {
  return QFileInfo(QString::fromStdString(path)).fileName();
}

}  // namespace

GeometryTable::GeometryTable(GeometrySession& session, QObject* parent)
    : QAbstractTableModel(parent), mSession(session) {
  connect(&mSession, &GeometrySession::changed, this, &GeometryTable::follow);
}

int GeometryTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : mRows;
}

/// Rows come and go at the end, so that selection and scroll position stay where they are.
void GeometryTable::follow() {
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
  if (mRows > 0) emit dataChanged(index(0, 0), index(mRows - 1, columnCount() - 1));
}

QVariant GeometryTable::data(const QModelIndex& index, int role) const {
  // Between an edit and its announcement the views may ask for rows that are gone.
  if (!index.isValid() || index.row() >= rowsNow()) return {};
  const bool number = index.column() < numberColumns();
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return cell(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return number ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::FontRole: {
      if (!isInterpolated(index.row(), index.column())) return {};
      QFont font;
      font.setItalic(true);
      return font;
    }
    case Qt::BackgroundRole:
      return number && isMistaken(index.row()) ? QVariant(QBrush(mistakenBackground()))
                                               : QVariant();
    default:
      return {};
  }
}

QVariant GeometryTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return QAbstractTableModel::headerData(section, orientation, role);
  return orientation == Qt::Vertical ? QVariant(section + 1) : QVariant(header(section));
}

bool GeometryTable::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid() || index.column() >= numberColumns()) return false;
  const QString text = value.toString().trimmed();
  if (text == cell(index.row(), index.column()).toString()) return true;
  double number = kNone;
  if (!text.isEmpty() && !readGeometryNumber(text, number)) {
    emit refused(tr("\"%1\" is not a number.").arg(text));
    return false;
  }
  if (!text.isEmpty()) number = taken(index.row(), index.column(), number);
  if (const QString why = refusal(index.column(), number); !why.isEmpty()) {
    emit refused(why);
    return false;
  }
  put(index.row(), index.column(), {{number}});
  return true;
}

/// Metres of a length that was typed or pasted into a cell, which may be what it shows already.
double GeometryTable::taken(int row, int column, double typed) const {
  return isLength(column) ? metresTyped(typed, length(row, column)) : typed;
}

void GeometryTable::paste(int row, int column, const QString& text) {
  TypedTable rows;
  const auto room = static_cast<std::size_t>(std::max(0, mostRows() - row));
  TableRemarks remarks;
  const Status read =
      parseTypedTable(text.toStdString(), usesDecimalComma(), kMostGeophones, rows, remarks);
  if (!read.ok()) {
    emit refused(tr("Nothing was pasted: %1.").arg(textOf(read.text())));
    return;
  }
  if (rows.empty()) return;
  if (rows.size() > room) {
    emit refused(tr("Nothing was pasted: %1 rows do not fit from row %2 on, of %3.")
                     .arg(rows.size())
                     .arg(row + 1)
                     .arg(mostRows()));
    return;
  }
  for (auto& fields : rows) {
    if (column + static_cast<int>(fields.size()) > numberColumns()) {
      emit refused(tr("Nothing was pasted: %1 columns do not fit from column \"%2\" on.")
                       .arg(fields.size())
                       .arg(header(column)));
      return;
    }
    const int at = row + static_cast<int>(&fields - rows.data());
    for (std::size_t i = 0; i < fields.size(); ++i) {
      fields[i] = taken(at, column + static_cast<int>(i), fields[i]);
      const QString why = refusal(column + static_cast<int>(i), fields[i]);
      if (why.isEmpty()) continue;
      emit refused(tr("Nothing was pasted: %1").arg(why));
      return;
    }
  }
  put(row, column, rows);
  if (remarks.skippedHeading) emit told(headingText(remarks));
}

int GeophoneTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

Qt::ItemFlags GeophoneTable::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

int GeophoneTable::rowsNow() const {
  return static_cast<int>(mSession.string().size());
}

int GeophoneTable::mostRows() const {
  return mSession.currentString() < 0 ? 0 : static_cast<int>(kMostGeophones);
}

QString GeophoneTable::header(int column) const {
  return column == kX ? inShownUnits(tr("x (m)")) : inShownUnits(tr("Elevation (m)"));
}

QVariant GeophoneTable::cell(int row, int column) const {
  const GeometryPlace& place = mSession.string()[static_cast<std::size_t>(row)];
  return geometryLength(column == kX ? place.x : place.z);
}

double GeophoneTable::length(int row, int column) const {
  if (row >= rowsNow()) return kNone;
  const GeometryPlace& place = mSession.string()[static_cast<std::size_t>(row)];
  return column == kX ? place.x : place.z;
}

bool GeophoneTable::isInterpolated(int row, int column) const {
  return column == kZ && !mSession.string()[static_cast<std::size_t>(row)].typed;
}

bool GeophoneTable::isMistaken(int row) const {
  return std::any_of(mSession.mistakes().begin(), mSession.mistakes().end(),
                     [&](const GeometryMistake& mistake) {
                       return mistake.string == mSession.currentString() &&
                              std::binary_search(mistake.geophones.begin(), mistake.geophones.end(),
                                                 static_cast<std::size_t>(row));
                     });
}

QString GeophoneTable::refusal(int /*column*/, double value) const {
  return tooFar(value) ? tr("%1 is too far away.").arg(withLengthUnit(geometryLength(value)))
                       : QString();
}

void GeophoneTable::put(int row, int column, const std::vector<std::vector<double>>& rows) {
  const auto first = static_cast<std::size_t>(row);
  mSession.edit([&](SurveyGeometry& geometry) {
    GeophoneString& string = geometry.strings[static_cast<std::size_t>(mSession.currentString())];
    string.resize(std::max(string.size(), first + rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      for (std::size_t k = 0; k < rows[i].size(); ++k) {
        const bool x = column + static_cast<int>(k) == kX;
        (x ? setX : setZ)(string[first + i], rows[i][k]);
      }
    }
  });
}

void GeophoneTable::clear(const QModelIndexList& cells) {
  if (cells.isEmpty()) return;
  mSession.edit([&](SurveyGeometry& geometry) {
    GeophoneString& string = geometry.strings[static_cast<std::size_t>(mSession.currentString())];
    for (const QModelIndex& cell : cells) {
      (cell.column() == kX ? setX : setZ)(string[static_cast<std::size_t>(cell.row())], kNone);
    }
  });
}

void GeophoneTable::insertGeophone(int row) {
  if (mSession.currentString() < 0 || mSession.string().size() >= kMostGeophones) return;
  mSession.edit([&](SurveyGeometry& geometry) {
    GeophoneString& string = geometry.strings[static_cast<std::size_t>(mSession.currentString())];
    const auto at = std::min(string.size(), static_cast<std::size_t>(row));
    string.insert(string.begin() + static_cast<std::ptrdiff_t>(at), GeometryPlace());
  });
}

void GeophoneTable::removeGeophones(const QList<int>& rows) {
  if (mSession.currentString() < 0 || rows.isEmpty()) return;
  mSession.edit([&](SurveyGeometry& geometry) {
    GeophoneString& string = geometry.strings[static_cast<std::size_t>(mSession.currentString())];
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
      if (*row >= 0 && static_cast<std::size_t>(*row) < string.size()) {
        string.erase(string.begin() + *row);
      }
    }
  });
}

int ShotTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

Qt::ItemFlags ShotTable::flags(const QModelIndex& index) const {
  const Qt::ItemFlags plain = QAbstractTableModel::flags(index);
  return index.column() < kFile ? plain | Qt::ItemIsEditable : plain;
}

int ShotTable::rowsNow() const {
  return static_cast<int>(mSession.geometry().shots.size());
}

QString ShotTable::header(int column) const {
  switch (column) {
    case kString:
      return tr("String");
    case kX:
      return inShownUnits(tr("x (m)"));
    case kZ:
      return inShownUnits(tr("Elevation (m)"));
    case kFile:
      return tr("File");
    case kFileDX:
      return tr("DX file");
    default:
      return tr("SX file");
  }
}

QVariant ShotTable::cell(int row, int column) const {
  const GeometryShot& shot = mSession.geometry().shots[static_cast<std::size_t>(row)];
  switch (column) {
    case kString:
      return shot.string < 0 ? QString() : QString::number(shot.string + 1);
    case kX:
      return geometryLength(shot.place.x);
    case kZ:
      return geometryLength(shot.place.z);
    case kFile:
      return fileName(shot.file);
    case kFileDX:
      return fileName(shot.fileDX);
    default:
      return fileName(shot.fileSX);
  }
}

double ShotTable::length(int row, int column) const {
  if (row >= rowsNow()) return kNone;
  const GeometryPlace& place = mSession.geometry().shots[static_cast<std::size_t>(row)].place;
  return column == kX ? place.x : place.z;
}

bool ShotTable::isInterpolated(int row, int column) const {
  return column == kZ && !mSession.geometry().shots[static_cast<std::size_t>(row)].place.typed;
}

bool ShotTable::isMistaken(int row) const {
  return std::any_of(mSession.mistakes().begin(), mSession.mistakes().end(),
                     [row](const GeometryMistake& mistake) {
                       return std::binary_search(mistake.shots.begin(), mistake.shots.end(),
                                                 static_cast<std::size_t>(row));
                     });
}

QString ShotTable::refusal(int column, double value) const {
  if (column != kString) {
    return tooFar(value) ? tr("%1 is too far away.").arg(withLengthUnit(geometryLength(value)))
                         : QString();
  }
  const auto count = static_cast<double>(mSession.geometry().strings.size());
  if (value >= 1.0 && value <= count && value == std::floor(value)) return {};
  return tr("There is no string %1.").arg(geometryNumber(value));
}

void ShotTable::put(int row, int column, const std::vector<std::vector<double>>& rows) {
  mSession.edit([&](SurveyGeometry& geometry) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      GeometryShot& shot = geometry.shots[static_cast<std::size_t>(row) + i];
      for (std::size_t k = 0; k < rows[i].size(); ++k) {
        const double value = rows[i][k];
        const int to = column + static_cast<int>(k);
        if (to == kString) shot.string = static_cast<int>(value) - 1;
        if (to == kX) setX(shot.place, value);
        if (to == kZ) setZ(shot.place, value);
      }
    }
  });
}

void ShotTable::clear(const QModelIndexList& cells) {
  mSession.edit([&](SurveyGeometry& geometry) {
    for (const QModelIndex& cell : cells) {
      GeometryPlace& place = geometry.shots[static_cast<std::size_t>(cell.row())].place;
      if (cell.column() == kX) setX(place, kNone);
      if (cell.column() == kZ) setZ(place, kNone);
    }
  });
}

StringDelegate::StringDelegate(GeometrySession& session, QObject* parent)
    : QStyledItemDelegate(parent), mSession(session) {}

QWidget* StringDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                      const QModelIndex& /*index*/) const {
  auto* box = new QComboBox(parent);
  for (std::size_t i = 0; i < mSession.geometry().strings.size(); ++i) {
    box->addItem(QString::number(i + 1));
  }
  return box;
}

void StringDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* box = qobject_cast<QComboBox*>(editor);
  if (box != nullptr) box->setCurrentText(index.data(Qt::EditRole).toString());
}

void StringDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                  const QModelIndex& index) const {
  const auto* box = qobject_cast<QComboBox*>(editor);
  if (box != nullptr) model->setData(index, box->currentText(), Qt::EditRole);
}

}  // namespace talvesk
