#pragma once

#include "model/KnownRows.h"

#include <QAbstractTableModel>
#include <QObject>
#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace talvesk {

/// The rows of known ground that a dialog edits, one list for each kind, with the steps back and
/// forth and what is wrong with them. Any rows may stand there while they are typed.
class KnownSession : public QObject {
  Q_OBJECT

 public:
  using Rows = std::array<std::vector<KnownRow>, kKnownKinds.size()>;
  struct Mistake {
    KnownKind kind;
    int row;  ///< from 0, of its kind
    Message text;
  };

  explicit KnownSession(const KnownGround& known, QObject* parent = nullptr);

  const std::vector<KnownRow>& rows(KnownKind kind) const {
    return mNow[static_cast<std::size_t>(kind)];
  }
  /// What the rows say; none while there is a mistake.
  std::optional<KnownGround> ground() const;
  const std::optional<Mistake>& mistake() const { return mMistake; }  ///< the first

  void edit(const std::function<void(Rows&)>& change);  ///< one step
  void take(const KnownGround& known);                  ///< instead of all there is; one step
  bool canUndo() const { return !mBack.empty(); }
  bool canRedo() const { return !mForth.empty(); }
  void undo();
  void redo();

 signals:
  void changed();

 private:
  void show(Rows rows);
  void check();

  Rows mNow;
  std::vector<Rows> mBack;
  std::vector<Rows> mForth;
  KnownGround mGround;
  std::optional<Mistake> mMistake;
};

/// The rows of one kind, with an empty one below them to go on. A row that is begun there repeats
/// what it has in common with the one above; a layer begins where the one above ends.
class KnownTable : public QAbstractTableModel {
  Q_OBJECT

 public:
  KnownTable(KnownSession& session, KnownKind kind, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Takes a block as it is copied from a spreadsheet, from a cell on; all of it or nothing.
  void paste(int row, int column, const QString& text);
  void clear(const QModelIndexList& cells);
  void insertRow(int row);
  void removeRows(const QList<int>& rows);

 signals:
  void refused(const QString& why);

 private:
  KnownRow begun() const;
  /// \return why a text cannot stand in a cell; empty when it was put
  QString put(KnownRow& row, int column, const QString& text) const;
  void edit(const std::function<void(std::vector<KnownRow>&)>& change);
  QString cell(int row, int column) const;

  void follow();
  int rowsNow() const { return static_cast<int>(mSession.rows(mKind).size()) + 1; }

  KnownSession& mSession;
  const KnownKind mKind;
  int mRows = 0;  ///< as the views know them
};

}  // namespace talvesk
