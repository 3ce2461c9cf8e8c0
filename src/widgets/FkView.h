#pragma once

#include "processing/FkTransform.h"
#include "processing/VelocityFilter.h"

#include <QImage>
#include <QRectF>
#include <QWidget>

namespace talvesk {

/// A spectrum over wavenumber and frequency with the wedge of a velocity filter, whose sides are
/// straight lines from the origin that the mouse can turn.
class FkView : public QWidget {
  Q_OBJECT

 public:
  explicit FkView(QWidget* parent = nullptr);

  void setSpectrum(FkSpectrum spectrum);
  void setFilter(const VelocityFilter& filter);
  void setFiltered(bool filtered);  ///< shows what is left, else what there is, dim where it goes

  /// Where a wavenumber (1/m) and a frequency (Hz) are on the widget.
  QPointF pointOf(double wavenumber, double frequency) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  static constexpr double kQuietest = -40.0;  ///< dB below the largest amplitude that show

 signals:
  void slowestDragged(double velocity);  ///< m/s
  void fastestDragged(double velocity);  ///< m/s, 0: no limit

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  enum class Side { kNone, kSlowest, kFastest };

  void place();
  QImage drawn() const;
  void paintBar(QPainter& painter) const;
  void paintAxes(QPainter& painter) const;
  void paintWedge(QPainter& painter) const;
  double velocityAt(const QPointF& point) const;  ///< infinite at wavenumber 0
  Side sideNear(const QPointF& point) const;
  double highest() const;  ///< frequency, Hz
  double widest() const;   ///< wavenumber, 1/m

  FkSpectrum mSpectrum;
  VelocityFilter mFilter;
  bool mFiltered = false;
  QRectF mPlot;
  QImage mImage;
  Side mDragged = Side::kNone;
};

}  // namespace talvesk
