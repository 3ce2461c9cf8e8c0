#include "figures/FigureItem.h"

#include "view/ColorPalette.h"

#include <QPainter>
#include <utility>

#include <qwt_graphic.h>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>

namespace talvesk {
namespace {

class FigureItem : public QwtPlotItem {
 public:
  FigureItem(const QString& name, double z, PaintItem paint, PaintIcon icon)
      : QwtPlotItem(QwtText(name, QwtText::PlainText)),
        mPaint(std::move(paint)),
        mIcon(std::move(icon)) {
    setItemAttribute(Legend, !name.isEmpty());
    setLegendIconSize(QSize(22, 12));
    setZ(z);
  }

  void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
            const QRectF& canvas) const override {
    painter->save();
    mPaint(*painter, xMap, yMap, canvas);
    painter->restore();
  }

  QwtGraphic legendIcon(int /*index*/, const QSizeF& size) const override {
    QwtGraphic graphic;
    graphic.setDefaultSize(size);
    graphic.setRenderHint(QwtGraphic::RenderPensUnscaled, true);
    if (!mIcon) return graphic;
    QPainter painter(&graphic);
    painter.setRenderHint(QPainter::Antialiasing);
    mIcon(painter, size);
    return graphic;
  }

 private:
  PaintItem mPaint;
  PaintIcon mIcon;
};

}  // namespace

QwtPlotItem* figureItem(const QString& name, double z, PaintItem paint, PaintIcon icon) {
  return new FigureItem(name, z, std::move(paint), std::move(icon));
}

QColor toColor(const RgbColor& color) {
  return QColor::fromRgbF(color.r, color.g, color.b);
}

bool paintsVectors(const QPainter& painter) {
  const QPaintEngine::Type type = painter.paintEngine()->type();
  return type == QPaintEngine::SVG || type == QPaintEngine::Pdf || type == QPaintEngine::Picture;
}

}  // namespace talvesk
