#pragma once

#include "app/dialogs/SortedTableModel.h"
#include "io/TraceHeaders.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// The table of trace headers as lines of a view that sorts them, as users have numbers, lengths in
/// the unit that is shown. Makes nothing of a cell before it is looked at.
class TraceHeadersModel : public SortedTableModel {
  Q_OBJECT

 public:
  explicit TraceHeadersModel(QObject* parent = nullptr)
      : SortedTableModel(0, Qt::AscendingOrder, parent) {}

  /// Another table in place of this one, in the order that is chosen.
  void setHeaders(TraceHeaders headers);
  const TraceHeaders& headers() const { return mHeaders; }

  std::size_t recordAt(int row) const { return entryAt(row); }  ///< row of the table of headers
  int rowOf(std::size_t set, std::size_t trace) const;          ///< -1 without such a trace
  /// Lines with a heading, cells between tabs; rows ascending.
  QString textOfRows(const std::vector<int>& rows) const;

  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 protected:
  void arrange(std::vector<std::size_t>& records, int column, Qt::SortOrder order) const override;

 private:
  QString titleOf(std::size_t column) const;
  QString cell(std::size_t record, std::size_t column) const;
  std::vector<double> ranksOf(std::size_t column) const;

  TraceHeaders mHeaders;
};

}  // namespace talvesk
