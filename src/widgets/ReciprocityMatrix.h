#pragma once

#include "doctor/ReciprocityTable.h"

#include <QColor>
#include <QRectF>
#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

/// The differences of times there and back as a picture: a row and a column for each shot in the
/// order of the line, in each cell by how much the time from the shot of its row to that of its
/// column is longer than the way back. A shot that is late is a row of one colour.
///
/// The arrow keys, Home and End walk over the cells; Return or a click chooses one.
class ReciprocityMatrix : public QWidget {
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
  std::optional<Cell> current() const { return mCurrent; }
  void setCurrent(const Cell& cell);  ///< tells nobody

  /// Seconds, there less back; none where the shots have no pair.
  std::optional<double> difference(const Cell& cell) const;
  double limit() const { return mLimit; }  ///< seconds, from which on the colour is full
  QRectF rectOf(const Cell& cell) const;   ///< on the widget; null for a shot without pairs
  std::optional<Cell> cellAt(const QPointF& point) const;

  QSize sizeHint() const override { return {420, 380}; }
  QSize minimumSizeHint() const override { return {180, 160}; }

 signals:
  void currentChanged();                          ///< by the user
  void chosen(std::size_t from, std::size_t to);  ///< a cell that has a difference

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QRectF grid() const;
  QColor colorOf(double seconds) const;
  QString describe(const Cell& cell) const;
  QString legendText(double share) const;
  const doctor::ReciprocalTimes* pairOf(const Cell& cell) const;
  void walk(std::ptrdiff_t down, std::ptrdiff_t right);
  void moveTo(const Cell& cell);
  void paintCells(QPainter& painter, const QRectF& area) const;
  void paintNumbers(QPainter& painter, const QRectF& area) const;
  void paintLegend(QPainter& painter, const QRectF& area) const;

  doctor::ReciprocityTable mTable;
  std::vector<std::size_t> mOrder;    ///< shots with pairs, along the line
  std::vector<std::size_t> mRank;     ///< of each shot in it; mOrder.size() without pairs
  std::vector<std::uint32_t> mPairs;  ///< by rank and rank: the number of the pair from 1, or 0
  std::optional<Cell> mCurrent;
  double mLimit = 1e-3;
};

}  // namespace talvesk
