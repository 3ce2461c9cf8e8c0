#pragma once

#include "doctor/ReciprocityTable.h"
#include "widgets/MatrixView.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

/// The differences of times there and back as a picture: a row and a column for each shot in the
/// order of the line, in each cell by how much the time from the shot of its row to that of its
/// column is longer than the way back. A shot that is late is a row of one colour.
class ReciprocityMatrix : public MatrixView {
  Q_OBJECT

 public:
  explicit ReciprocityMatrix(QWidget* parent = nullptr);

  /// The current cell stays, where its shots still have pairs.
  void setTable(doctor::ReciprocityTable table);

  /// Shots from 0, as the survey has them.
  struct Cell {
    std::size_t from = 0;  ///< of the row
    std::size_t to = 0;    ///< of the column

    bool operator==(const Cell& other) const { return from == other.from && to == other.to; }
  };
  std::optional<Cell> current() const;
  void setCurrent(const Cell& cell);  ///< tells nobody

  /// Seconds, there less back; none where the shots have no pair.
  std::optional<double> difference(const Cell& cell) const;
  QRectF rectOf(const Cell& cell) const;  ///< on the widget; null for a shot without pairs

 signals:
  void chosen(std::size_t from, std::size_t to);  ///< a cell that has a difference

 private:
  void arrange();
  MatrixPicture pictureOfTable() const;
  QString describe(const Cell& cell) const;
  const doctor::ReciprocalTimes* pairOf(const Cell& cell) const;
  Cell cellOf(const Place& place) const { return {mOrder[place.row], mOrder[place.column]}; }
  std::optional<Place> placeOf(const Cell& cell) const;

  doctor::ReciprocityTable mTable;
  std::vector<std::size_t> mOrder;    ///< shots with pairs, along the line
  std::vector<std::size_t> mRank;     ///< of each shot in it; mOrder.size() without pairs
  std::vector<std::uint32_t> mPairs;  ///< by ranks: index of the pair, from 1; 0 is none
};

}  // namespace talvesk
