#pragma once

#include "view/GradientHandles.h"

#include <QWidget>
#include <cstddef>

class QFrame;
class QLabel;
class QPushButton;
class QSpinBox;

namespace talvesk {

class HandleTrack;

/// Edits a colour gradient: its colours as a bar, below them one handle per colour stop to drag, to
/// colour, to add and to remove, and the two ends of the value scale. The rules of the handles are
/// those of GradientHandles. Where the palette cannot be edited, only the scale can.
class ColorPaletteWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ColorPaletteWidget(QWidget* parent = nullptr);
  ~ColorPaletteWidget() override;

  /// Shows another palette; tells no change.
  void setColorPalette(const ColorPalette& palette);
  const ColorGradient& gradient() const { return mHandles.gradient(); }
  int minimum() const { return mHandles.minimum(); }
  int maximum() const { return mHandles.maximum(); }

  std::size_t selectedHandle() const { return mSelected; }
  void selectHandle(std::size_t index);
  /// Where a handle stands, in pixels of handleTrack().
  QPoint handlePosition(std::size_t index) const;
  QWidget* handleTrack() const;

  /// Sets both ends of the scale at once, unless maximum <= minimum.
  void setScale(int minimum, int maximum);

 public slots:
  void addHandle();          ///< beside the selected one, in the gradient's colour there
  void updateHandleColor();  ///< asks for the colour of the selected one
  void deleteHandle();       ///< removes the selected one; the ends stay
  void updateMinValue(int value);
  void updateMaxValue(int value);

 signals:
  void changed_max_value(int value);
  void changed_min_value(int value);
  void modified();  ///< of the gradient

 private:
  void buildEditor();
  void moveHandle(std::size_t index, int wanted);
  void moveSelectedTo(int wanted);
  void refresh();
  void refreshScale();
  void tell(const QString& message);
  void tellCreated(std::size_t index) const;

  GradientHandles mHandles;
  std::size_t mSelected = 0;
  bool mEditable = false;
  QFrame* mPreview = nullptr;
  HandleTrack* mTrack = nullptr;
  QSpinBox* mSelectedBox = nullptr;
  QSpinBox* mValueBox = nullptr;
  QSpinBox* mMinimumBox = nullptr;
  QSpinBox* mMaximumBox = nullptr;
  QPushButton* mAdd = nullptr;
  QPushButton* mColor = nullptr;
  QPushButton* mDelete = nullptr;
  QLabel* mMessage = nullptr;
};

}  // namespace talvesk
