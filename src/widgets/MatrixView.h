#pragma once

#include "figures/MatrixPicture.h"

#include <QWidget>
#include <cstddef>
#include <functional>
#include <optional>

namespace talvesk {

/// A picture of cells that is walked over: the arrow keys, Home and End move the current cell along
/// its row and column, Return or a click chooses one.
class MatrixView : public QWidget {
  Q_OBJECT

 public:
  explicit MatrixView(QWidget* parent = nullptr);

  struct Place {
    std::size_t row = 0;
    std::size_t column = 0;

    bool operator==(const Place& other) const { return row == other.row && column == other.column; }
  };

  /// The current cell stays, if there is still one in its place.
  void setPicture(MatrixPicture picture);
  const MatrixPicture& picture() const { return mPicture; }
  /// What is told of a cell, where the mouse stands still on it.
  void setTexts(std::function<QString(const Place&)> textOf) { mTextOf = std::move(textOf); }

  const std::optional<Place>& currentPlace() const { return mCurrent; }
  void setCurrentPlace(const std::optional<Place>& place);  ///< tells nobody
  bool hasValue(const Place& place) const;
  QRectF rectAt(const Place& place) const;  ///< on the widget; null for none of the cells
  std::optional<Place> placeAt(const QPointF& point) const;

  QSize sizeHint() const override { return {420, 380}; }
  QSize minimumSizeHint() const override { return {180, 160}; }

 signals:
  void currentChanged();                                      ///< by the user
  void placeChosen(const talvesk::MatrixView::Place& place);  ///< a cell that has a value

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QRectF area() const { return mPicture.area(rect(), font()); }
  void walk(std::ptrdiff_t down, std::ptrdiff_t right);
  void moveTo(const Place& place);

  MatrixPicture mPicture;
  std::function<QString(const Place&)> mTextOf;
  std::optional<Place> mCurrent;
};

}  // namespace talvesk
