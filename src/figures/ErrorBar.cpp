#include "figures/ErrorBar.h"

#include "model/PickGrades.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kBeyond = 20.0;  ///< how far ends out of sight are drawn at most

void paintStem(QPainter& painter, const ErrorBar& bar) {
  painter.drawLine(QPointF(bar.x, bar.top), QPointF(bar.x, bar.bottom));
}

/// The arrows of a doubtful one point outward: it may well be further off.
void paintEnds(QPainter& painter, const ErrorBar& bar, double half) {
  const double depth = bar.doubtful ? half : 0.0;
  const auto end = [&](double y, double wings) {
    painter.drawPolyline(QPolygonF({{bar.x - half, wings}, {bar.x, y}, {bar.x + half, wings}}));
  };
  end(bar.top, bar.top + depth);
  end(bar.bottom, bar.bottom - depth);
}

}  // namespace

ErrorBar::ErrorBar(double at, double from, double to, double sigma, double seenFrom, double seenTo)
    : x(at), doubtful(isDoubtfulPick(sigma)) {
  const double low = std::min(seenFrom, seenTo) - kBeyond;
  const double high = std::max(seenFrom, seenTo) + kBeyond;
  top = std::clamp(std::min(from, to), low, high);
  bottom = std::clamp(std::max(from, to), low, high);
}

void paintErrorBar(QPainter& painter, const ErrorBar& bar, const ErrorBarLook& look) {
  painter.setBrush(Qt::NoBrush);
  if (look.halo.isValid()) {
    painter.setPen(QPen(look.halo, look.width + 2.0, Qt::SolidLine, Qt::FlatCap));
    paintStem(painter, bar);
    paintEnds(painter, bar, look.half);
  }
  QPen pen(look.color, look.width, Qt::SolidLine, Qt::FlatCap);
  painter.setPen(pen);
  paintEnds(painter, bar, look.half);
  if (bar.doubtful) pen.setDashPattern({2.5, 1.5});
  painter.setPen(pen);
  paintStem(painter, bar);
}

}  // namespace talvesk
