#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"

#include <QPixmap>
#include <QWidget>
#include <functional>

class QScrollArea;

namespace talvesk {

/// A figure as wide as the widget, laid out anew for every width, so that its words keep their
/// size. Meant for a scroll area: it is as high as the figure asks for.
class FigureSheetWidget : public QWidget {
  Q_OBJECT

 public:
  /// Lays the figure out. \param widthMm of the sheet
  using Prepare = std::function<Status(double widthMm, FigureDrawing&)>;

  explicit FigureSheetWidget(QWidget* parent = nullptr);

  /// The area scrolls it, takes the keys for that, and has its name for screen readers.
  void putInto(QScrollArea& area);

  void setFigure(Prepare prepare);
  /// Says why there is none.
  void setNothing(const QString& why);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void draw();

  Prepare mPrepare;
  QString mWhyNot;
  QPixmap mPicture;  ///< of the present width; null before it is drawn
};

}  // namespace talvesk
