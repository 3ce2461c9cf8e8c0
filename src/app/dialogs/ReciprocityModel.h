#pragma once

#include "doctor/ReciprocityTable.h"

#include <QAbstractTableModel>
#include <cstddef>
#include <vector>

namespace talvesk {

/// The pairs of a table of reciprocity as lines of a view that sorts them, the largest differences
/// first until somebody wants another order.
class ReciprocityModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kFirst, kFirstAt, kThere, kSecond, kSecondAt, kBack, kDifference, kSigmas };

  explicit ReciprocityModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  void setTable(doctor::ReciprocityTable table);
  const doctor::ReciprocityTable& table() const { return mTable; }
  const doctor::ReciprocalTimes& pairAt(int row) const;
  int rowOf(std::size_t shot, std::size_t other) const;  ///< -1 without such a pair

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  void sort(int column, Qt::SortOrder order) override;

 private:
  double valueOf(const doctor::ReciprocalTimes& pair, int column) const;
  void arrange();

  doctor::ReciprocityTable mTable;
  std::vector<std::size_t> mOrder;  ///< pairs, by row
  int mColumn = kDifference;
  Qt::SortOrder mSortOrder = Qt::DescendingOrder;
};

}  // namespace talvesk
