#pragma once

#include "io/TraceHeaders.h"

#include <QAbstractTableModel>
#include <cstddef>
#include <vector>

namespace talvesk {

/// The table of trace headers as lines of a view that sorts them, as users have numbers, lengths in
/// the unit that is shown. Makes nothing of a cell before it is looked at.
class TraceHeadersModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit TraceHeadersModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  /// Another table in place of this one, in the order that is chosen.
  void setHeaders(TraceHeaders headers);
  const TraceHeaders& headers() const { return mHeaders; }

  std::size_t recordAt(int row) const;                   ///< row of the table of headers
  int rowOf(std::size_t shot, std::size_t trace) const;  ///< -1 without such a trace
  /// Lines with a heading, cells between tabs; rows ascending.
  QString textOfRows(const std::vector<int>& rows) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  void sort(int column, Qt::SortOrder order) override;

 private:
  QString titleOf(std::size_t column) const;
  QString cell(std::size_t record, std::size_t column) const;
  void arrange();
  void arrangeByText(std::size_t column);

  TraceHeaders mHeaders;
  std::vector<std::size_t> mOrder;  ///< rows of the headers, by row
  int mColumn = 0;
  Qt::SortOrder mSortOrder = Qt::AscendingOrder;
};

}  // namespace talvesk
