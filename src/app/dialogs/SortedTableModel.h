#pragma once

#include <QAbstractTableModel>
#include <cstddef>
#include <vector>

namespace talvesk {

/// Entries of a table as lines of a view that sorts them by a column: which entry stands in which
/// row. The entries themselves are of the class below, which says in what order a column puts them.
class SortedTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  int rowCount(const QModelIndex& parent = {}) const override;
  void sort(int column, Qt::SortOrder order) override;

 protected:
  /// \param column by which they stand until somebody wants another order
  SortedTableModel(int column, Qt::SortOrder order, QObject* parent)
      : QAbstractTableModel(parent), mColumn(column), mSortOrder(order) {}

  /// Other entries, in the order that is chosen. To be called while the model is reset.
  void setEntries(std::size_t count);
  std::size_t entryAt(int row) const { return mOrder[static_cast<std::size_t>(row)]; }
  int rowOfEntry(std::size_t entry) const;  ///< -1 without such an entry

  /// Puts 0 to n - 1, which come ascending, into the order of a column that exists. What is alike
  /// stays ascending.
  virtual void arrange(std::vector<std::size_t>& entries, int column,
                       Qt::SortOrder order) const = 0;

  /// The same by a number per entry; what is not a number stands last, whatever the order.
  static void arrangeBy(std::vector<double> numbers, Qt::SortOrder order,
                        std::vector<std::size_t>& entries);

 private:
  void arrangeAll();

  std::vector<std::size_t> mOrder;  ///< entries, by row
  int mColumn;
  Qt::SortOrder mSortOrder;
};

}  // namespace talvesk
