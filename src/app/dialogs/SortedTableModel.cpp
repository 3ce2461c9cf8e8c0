#include "app/dialogs/SortedTableModel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace talvesk {

int SortedTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mOrder.size());
}

int SortedTableModel::rowOfEntry(std::size_t entry) const {
  const auto found = std::find(mOrder.begin(), mOrder.end(), entry);
  return found == mOrder.end() ? -1 : static_cast<int>(found - mOrder.begin());
}

void SortedTableModel::setEntries(std::size_t count) {
  mOrder.resize(count);
  if (mColumn >= columnCount()) mColumn = 0;
  arrangeAll();
}

void SortedTableModel::arrangeAll() {
  std::iota(mOrder.begin(), mOrder.end(), std::size_t{0});
  if (!mOrder.empty()) arrange(mOrder, mColumn, mSortOrder);
}

void SortedTableModel::arrangeBy(std::vector<double> numbers, Qt::SortOrder order,
                                 std::vector<std::size_t>& entries) {
  const double sign = order == Qt::DescendingOrder ? -1.0 : 1.0;
  for (double& number : numbers) {
    number = std::isnan(number) ? std::numeric_limits<double>::infinity() : sign * number;
  }
  const auto lower = [&numbers](std::size_t a, std::size_t b) { return numbers[a] < numbers[b]; };
  if (std::is_sorted(entries.begin(), entries.end(), lower)) return;
  std::stable_sort(entries.begin(), entries.end(), lower);
}

void SortedTableModel::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= columnCount()) return;
  emit layoutAboutToBeChanged();
  std::vector<std::size_t> entries;
  const QModelIndexList before = persistentIndexList();
  for (const QModelIndex& index : before) entries.push_back(entryAt(index.row()));
  mColumn = column;
  mSortOrder = order;
  arrangeAll();
  std::vector<int> rows(mOrder.size());
  for (std::size_t i = 0; i < mOrder.size(); ++i) rows[mOrder[i]] = static_cast<int>(i);
  QModelIndexList after;
  for (int i = 0; i < before.size(); ++i) {
    after << index(rows[entries[static_cast<std::size_t>(i)]], before[i].column());
  }
  changePersistentIndexList(before, after);
  emit layoutChanged();
}

}  // namespace talvesk
