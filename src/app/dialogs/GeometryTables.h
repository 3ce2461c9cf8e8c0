#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>
#include <vector>

namespace talvesk {

class GeometrySession;
struct GeometryPlace;

/// What the two tables of the geometry dialog have in common. Every edit is one step of the
/// session; what cannot be done changes nothing and is told by refused().
class GeometryTable : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit GeometryTable(GeometrySession& session, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  /// Takes a block of numbers as they are copied from a spreadsheet, from a cell on.
  void paste(int row, int column, const QString& text);
  virtual void clear(const QModelIndexList& cells) = 0;

  /// Takes the rows of the session as they are now; a table is empty before the first time.
  void follow();

 signals:
  void refused(const QString& why);
  void told(const QString& what);  ///< of a paste that was taken

 protected:
  virtual int rowsNow() const = 0;
  virtual int mostRows() const = 0;       ///< that a paste can make of them
  virtual int numberColumns() const = 0;  ///< the first ones
  virtual QString header(int column) const = 0;
  virtual QVariant cell(int row, int column) const = 0;
  virtual bool isLength(int column) const = 0;
  /// Of a column of lengths, metres; not a number where there is none.
  virtual double length(int row, int column) const = 0;
  virtual bool isInterpolated(int row, int column) const = 0;
  virtual bool isMistaken(int row) const = 0;
  /// Why a number cannot stand in a column; empty when it can.
  virtual QString refusal(int column, double value) const = 0;
  /// Puts the rows, which are checked, from a cell on.
  virtual void put(int row, int column, const std::vector<std::vector<double>>& rows) = 0;

  GeometrySession& mSession;

 private:
  double taken(int row, int column, double typed) const;

  int mRows = 0;  ///< as the views know them
};

/// The geophones of the string in view: x and elevation. Pasting beyond the end adds geophones.
class GeophoneTable : public GeometryTable {
  Q_OBJECT

 public:
  enum Column { kX, kZ, kColumns };

  using GeometryTable::GeometryTable;
  int columnCount(const QModelIndex& parent = {}) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  void clear(const QModelIndexList& cells) override;
  void insertGeophone(int row);
  void removeGeophones(const QList<int>& rows);

 protected:
  int rowsNow() const override;
  int mostRows() const override;
  int numberColumns() const override { return kColumns; }
  QString header(int column) const override;
  QVariant cell(int row, int column) const override;
  bool isLength(int /*column*/) const override { return true; }
  double length(int row, int column) const override;
  bool isInterpolated(int row, int column) const override;
  bool isMistaken(int row) const override;
  QString refusal(int column, double value) const override;
  void put(int row, int column, const std::vector<std::vector<double>>& rows) override;
};

/// The shots: string, x, elevation, and the files that they come from.
class ShotTable : public GeometryTable {
  Q_OBJECT

 public:
  enum Column { kString, kX, kZ, kFile, kFileDX, kFileSX, kColumns };

  using GeometryTable::GeometryTable;
  int columnCount(const QModelIndex& parent = {}) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  void clear(const QModelIndexList& cells) override;

 protected:
  int rowsNow() const override;
  int mostRows() const override { return rowsNow(); }
  int numberColumns() const override { return kFile; }
  QString header(int column) const override;
  QVariant cell(int row, int column) const override;
  bool isLength(int column) const override { return column == kX || column == kZ; }
  double length(int row, int column) const override;
  bool isInterpolated(int row, int column) const override;
  bool isMistaken(int row) const override;
  QString refusal(int column, double value) const override;
  void put(int row, int column, const std::vector<std::vector<double>>& rows) override;
};

/// Offers the strings of the survey where a shot names its own.
class StringDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  StringDelegate(GeometrySession& session, QObject* parent);
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;

 private:
  GeometrySession& mSession;
};

}  // namespace talvesk
