#include "app/LineIcon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace talvesk {
namespace {

const QByteArray kTextColour = "currentColor";
const QByteArray kAccent = "#2a82da";

QByteArray bytesOf(const QString& resource) {
  QFile file(resource);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class LineIconEngine : public QIconEngine {
 public:
  explicit LineIconEngine(QByteArray svg) : mSvg(std::move(svg)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QByteArray svg = mSvg;
    svg.replace(kTextColour, colour(mode).name().toLatin1());
    if (mode == QIcon::Disabled) svg.replace(kAccent, colour(mode).name().toLatin1());
    QSvgRenderer renderer(svg);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    const QString key = QStringLiteral("line-icon-%1-%2x%3-%4-%5")
                            .arg(qHash(mSvg))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(colour(mode).rgba())
                            .arg(static_cast<int>(mode));
    QPixmap result;
    if (QPixmapCache::find(key, &result)) return result;
    result = QPixmap(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(&painter, result.rect(), mode, state);
    painter.end();
    QPixmapCache::insert(key, result);
    return result;
  }

  QIconEngine* clone() const override { return new LineIconEngine(mSvg); }

 private:
  static QColor colour(QIcon::Mode mode) {
    const QPalette palette = QApplication::palette();
    if (mode == QIcon::Selected) return palette.color(QPalette::Active, QPalette::HighlightedText);
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                         QPalette::WindowText);
  }

  QByteArray mSvg;
};

}  // namespace

QIcon lineIcon(const QString& resource) {
  const QByteArray svg = bytesOf(resource);
  return svg.isEmpty() ? QIcon() : QIcon(new LineIconEngine(svg));
}

QPixmap picture(const QString& resource, qreal devicePixelRatio) {
  QSvgRenderer renderer(bytesOf(resource));
  if (!renderer.isValid()) return {};
  QPixmap result(renderer.defaultSize() * devicePixelRatio);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  renderer.render(&painter);
  painter.end();
  result.setDevicePixelRatio(devicePixelRatio);
  return result;
}

QIcon pictureIcon(const QString& resource) {
  QSvgRenderer renderer(bytesOf(resource));
  QIcon icon;
  if (!renderer.isValid()) return icon;
  for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace talvesk
