#include "figures/SectionPaper.h"

#include "figures/FigureItem.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/SectionItems.h"
#include "figures/SectionPaper_painter.h"
#include "view/SectionScene.h"

#include <QFontInfo>
#include <cmath>
#include <utility>

namespace talvesk {

using namespace section_paper;

SectionExtent::SectionExtent(const SectionScene& scene) {
  const Point2D lower = scene.lowerLeft();
  const Point2D upper = scene.upperRight();
  if (!std::isfinite(lower.x + lower.z + upper.x + upper.z)) return;
  low = lower;
  high = upper;
}

QRectF SectionExtent::rect() const {
  return {QPointF(low.x, low.z), QPointF(high.x, high.z)};
}

SectionPaper::SectionPaper(const SectionScene& scene, const SectionExtent& extent,
                           const ColorTable& colors, SectionDress dress)
    : mScene(scene), mExtent(extent), mColors(colors), mDress(std::move(dress)) {
  // A size in points would count in the resolution of the device.
  if (mDress.font.pixelSize() < 0) mDress.font.setPixelSize(QFontInfo(mDress.font).pixelSize());
  mDress.locale.setNumberOptions(QLocale::OmitGroupSeparator);
}

QRect SectionPaper::plotRect(const QSizeF& size, double exaggeration) const {
  return SectionPaperLayout(mScene, mExtent, mColors, mDress, size, exaggeration).plot;
}

SectionCamera::Padding SectionPaper::padding() const {
  SectionCamera::Padding padding;
  padding.top = 10.0 + section_items::markerSize(mDress.geophones);
  return padding;
}

void SectionPaper::fit(SectionCamera& camera, const QSizeF& plotSize) const {
  camera.fit(mExtent.low, mExtent.high, plotSize, padding());
}

double SectionPaper::heightToFill(double plotWidth, double exaggeration) const {
  const SectionCamera::Padding free = padding();
  return (mExtent.high.z - mExtent.low.z) * exaggeration / (mExtent.high.x - mExtent.low.x) *
             (plotWidth - 2.0 * free.side) +
         free.top + free.bottom;
}

std::vector<PlacedText> SectionPaper::paint(QPainter& painter, const QSizeF& size,
                                            const SectionCamera& camera,
                                            const SectionWhole* whole) const {
  painter.save();
  painter.setFont(mDress.font);
  SectionPaperPainter sheet(mScene, mExtent, mColors, mDress, painter, size, camera);
  if (whole != nullptr) sheet.showPartOf(*whole);
  sheet.paintMarks();
  sheet.paintMargins();
  sheet.paintAxes();
  sheet.paintColorBar();
  sheet.paintTitle();
  sheet.paintWords();
  painter.restore();
  return std::move(sheet.texts);
}

SectionPaperPainter::SectionPaperPainter(const SectionScene& scene, const SectionExtent& extent,
                                         const ColorTable& colors, const SectionDress& dress,
                                         QPainter& painter, const QSizeF& size,
                                         const SectionCamera& camera)
    : mScene(scene),
      mExtent(extent),
      mColors(colors),
      mDress(dress),
      mPainter(painter),
      mSize(size),
      mCamera(camera),
      mLayout(scene, extent, colors, dress, size, camera.exaggeration),
      mPlot(mLayout.plot),
      mWhole(mPlot),
      mMap(camera.toPicture(mPlot.size()) * QTransform::fromTranslate(mPlot.left(), mPlot.top())),
      mMetrics(dress.font),
      mLine(mMetrics.height()) {}

void SectionPaperPainter::showPartOf(const SectionWhole& whole) {
  mWhole = whole.plot.translated(mPlot.topLeft());
  mMeet = whole.meet;
}

/// What of the plot is this sheet's when all are joined.
QRectF SectionPaperPainter::ownPart() const {
  const auto beyond = [this](double outward) { return outward > 0.5 * mMeet ? mMeet : 0.0; };
  return mPlot.adjusted(beyond(mPlot.left() - mWhole.left()), beyond(mPlot.top() - mWhole.top()),
                        -beyond(mWhole.right() - mPlot.right()),
                        -beyond(mWhole.bottom() - mPlot.bottom()));
}

/// Of a line in the painter's font, turned by degrees about its middle.
QPolygonF SectionPaperPainter::outlineOf(const QString& text, const QPointF& middle,
                                         double angle) const {
  const QFontMetricsF metrics(mPainter.font());
  QRectF line(0.0, 0.0, metrics.horizontalAdvance(text), metrics.height());
  line.moveCenter({0.0, 0.0});
  QTransform place;
  place.translate(middle.x(), middle.y());
  place.rotate(angle);
  return place.map(QPolygonF(line));
}

void SectionPaperPainter::put(const QString& text, const QPointF& middle, double angle) {
  const QFontMetricsF metrics(mPainter.font());
  texts.push_back({text, outlineOf(text, middle, angle)});
  mPainter.save();
  mPainter.translate(middle);
  if (angle != 0.0) mPainter.rotate(angle);
  mPainter.drawText(
      QPointF(-0.5 * metrics.horizontalAdvance(text), metrics.ascent() - 0.5 * metrics.height()),
      text);
  mPainter.restore();
}

/// A text on a plate that covers what is below it. One on another part of the whole only takes its
/// place.
void SectionPaperPainter::putOnPlate(const QString& text, const QPointF& middle, double beside,
                                     const QColor& color) {
  const QPolygonF outline = outlineOf(text, middle, 0.0);
  const QRectF plate = outline.boundingRect().adjusted(-beside, 0, beside, 0);
  if (!plate.intersects(mPlot)) {
    texts.push_back({text, outline});
    return;
  }
  mPainter.setPen(Qt::NoPen);
  mPainter.setBrush(QColor(255, 255, 255, 190));
  mPainter.drawRect(plate);
  mPainter.setBrush(Qt::NoBrush);
  mPainter.setPen(color);
  put(text, middle);
}

/// What lies beyond a part of the plot stands on other sheets, and in nobody's way here.
void SectionPaperPainter::dropTextsBeyond() {
  std::vector<PlacedText> seen;
  for (PlacedText& text : texts) {
    text.outline = text.outline.intersected(QPolygonF(mPlot));
    if (!text.outline.isEmpty()) seen.push_back(std::move(text));
  }
  texts = std::move(seen);
}

void SectionPaperPainter::paintMargins() {
  const QRectF all(QPointF(0, 0), mSize);
  mPainter.fillRect(QRectF(all.topLeft(), QPointF(all.right(), mPlot.top())), Qt::white);
  mPainter.fillRect(QRectF(QPointF(0, mPlot.bottom()), all.bottomRight()), Qt::white);
  mPainter.fillRect(QRectF(0, mPlot.top(), mPlot.left(), mPlot.height()), Qt::white);
  mPainter.fillRect(QRectF(mPlot.topRight(), QPointF(all.right(), mPlot.bottom())), Qt::white);
}

void SectionPaperPainter::paintColorBar() {
  const QRectF& bar = mLayout.bar;
  if (bar.isEmpty()) return;
  const bool upright = mDress.colorBar == ColorBar::kVertical;
  const auto share = [this](double value) {
    return (value - mColors.range().min) / mColors.range().span();
  };
  mPainter.save();
  mPainter.setRenderHint(QPainter::Antialiasing, false);
  for (int i = 0; i < mColors.size(); ++i) {
    // From the far end to the class's lower one: those above paint over it without a seam.
    const double low = share(mColors.classRange(i).min);
    QRectF part = bar;
    if (upright) {
      part.setBottom(bar.bottom() - bar.height() * low);
    } else {
      part.setLeft(bar.left() + bar.width() * low);
    }
    mPainter.fillRect(part, toColor(mColors[i]));
  }
  paintFigureFrame(mPainter, bar.adjusted(-0.5, -0.5, 0.5, 0.5));
  mPainter.restore();

  Axis axis;
  axis.room = QRectF(QPointF(0.0, 0.0), mSize);
  axis.title = FigureWords::quantityAxis(mScene);
  if (upright) {
    axis.ticks = barTicks(mScene, mColors, bar.height(), kBarSpacing * mLine);
    axis.outward = {1.0, 0.0};
    axis.at = [&](double value) {
      return QPointF(bar.right() + 1.0, bar.bottom() - bar.height() * share(value));
    };
    axis.titleMiddle = {mSize.width() - kGap - 0.5 * mLine, bar.center().y()};
    axis.titleAngle = -90.0;
  } else {
    axis.ticks = barTicks(mScene, mColors, bar.width(), 60.0);
    axis.outward = {0.0, -1.0};
    axis.at = [&](double value) {
      return QPointF(bar.left() + bar.width() * share(value), bar.top() - 1.0);
    };
    axis.titleMiddle = {bar.center().x(), bar.top() - kTick - 4.0 - 1.5 * mLine};
  }
  mPainter.setPen(QPen(Qt::black, 1.0));
  paintAxis(axis);
}

void SectionPaperPainter::paintTitle() {
  if (!mLayout.title) return;
  mPainter.save();
  QFont font = mDress.font;
  font.setBold(true);
  font.setPixelSize(static_cast<int>(std::lround(1.3 * font.pixelSize())));
  mPainter.setFont(font);
  mPainter.setPen(Qt::black);
  const QString title =
      QFontMetricsF(font).elidedText(mDress.title, Qt::ElideRight, mSize.width() - 2.0 * kGap);
  put(title, {0.5 * mSize.width(), 1.2 * mLine});
  mPainter.restore();
}

void SectionPaperPainter::paintWords() {
  mPainter.save();
  mPainter.setRenderHint(QPainter::Antialiasing);
  for (const SectionPaperLayout::Word& word : mLayout.words) {
    const double width = mMetrics.horizontalAdvance(word.entry.text);
    const QPointF start = word.at + QPointF(0.0, 0.5 * mLine);
    if (word.entry.symbol) word.entry.symbol(mPainter, start + QPointF(0.5 * kSymbol, 0.0));
    const double indent = word.entry.symbol ? kSymbol + kSymbolGap : 0.0;
    mPainter.setPen(Qt::black);
    put(word.entry.text, start + QPointF(indent + 0.5 * width, 0.0));
  }
  mPainter.setPen(Qt::black);
  if (const QString& text = mLayout.exaggeration; !text.isEmpty()) {
    // A picture too small for a caption must say at least that it is not true to scale.
    put(text, {mSize.width() - kGap - 0.5 * mMetrics.horizontalAdvance(text), 0.6 * mLine});
  }
  mPainter.restore();
}

}  // namespace talvesk
