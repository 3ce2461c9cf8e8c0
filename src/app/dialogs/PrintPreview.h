#pragma once

#include "figures/print/PrintPages.h"

#include <QImage>
#include <QScrollArea>
#include <QTimer>
#include <optional>
#include <vector>

namespace talvesk {

/// Sheets as they will be printed, painted by what prints them and put together as they belong. One
/// is painted at a time, and the window lives in between; what waits for it says so. Ctrl with the
/// wheel, + and - make it larger and smaller, 0 shows all of it.
class PrintPreview : public QScrollArea {
  Q_OBJECT

 public:
  explicit PrintPreview(QWidget* parent = nullptr);

  void setPages(const PrintPages& pages);
  /// Says why there are none.
  void setNothing(const QString& why);
  /// Something is about to come; what is shown is no longer what is asked for.
  void setWaiting();

  void zoomBy(int steps);  ///< larger for a positive number
  void showWhole();        ///< all sheets are in view
  bool isWhole() const { return mZoom == 0; }
  bool isDrawn() const { return !mPages || mDrawn == mPages->count(); }
  const std::vector<QImage>& sheets() const { return mSheets; }  ///< as drawn

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Canvas;

  double chosenDpi() const;
  QSizeF sheetPixels(double dpi) const;  ///< in pixels of the window
  QRectF placeOf(std::size_t page) const;
  void begin();
  void drawNext();

  Canvas* mCanvas;
  std::optional<PrintPages> mPages;
  QString mWhyNot;
  bool mWaiting = false;
  int mZoom = 0;
  double mDpi = 0.0;  ///< of mSheets, device pixels
  std::size_t mDrawn = 0;
  std::vector<QImage> mSheets;
  QTimer mSoon;  ///< until the size stays
  QTimer mNext;
};

}  // namespace talvesk
