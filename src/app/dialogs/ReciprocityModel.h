#pragma once

#include "app/dialogs/SortedTableModel.h"
#include "doctor/ReciprocityTable.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// The pairs of a table of reciprocity as lines of a view that sorts them, the largest differences
/// first until somebody wants another order.
class ReciprocityModel : public SortedTableModel {
  Q_OBJECT

 public:
  enum Column { kFirst, kFirstAt, kThere, kSecond, kSecondAt, kBack, kDifference, kSigmas };

  explicit ReciprocityModel(QObject* parent = nullptr)
      : SortedTableModel(kDifference, Qt::DescendingOrder, parent) {}

  void setTable(doctor::ReciprocityTable table);
  const doctor::ReciprocityTable& table() const { return mTable; }
  const doctor::ReciprocalTimes& pairAt(int row) const;
  int rowOf(std::size_t shot, std::size_t other) const;  ///< -1 without such a pair

  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 protected:
  void arrange(std::vector<std::size_t>& pairs, int column, Qt::SortOrder order) const override;

 private:
  double valueOf(const doctor::ReciprocalTimes& pair, int column) const;

  doctor::ReciprocityTable mTable;
};

}  // namespace talvesk
