#include "widgets/traces/WigglePainter.h"

#include "widgets/traces/RowExtremes.h"

#include <QRgb>
#include <algorithm>
#include <cmath>
#include <vector>

namespace talvesk {
namespace {

constexpr int kLargestSide = 16384;  // device pixels

/// One row of pixels, with what is drawn covering parts of pixels.
class Row {
 public:
  Row(QRgb* pixels, int width) : mPixels(pixels), mWidth(width) {}

  void span(double from, double to, QRgb color) {
    from = std::max(from, 0.0);
    to = std::min(to, static_cast<double>(mWidth));
    if (!(from < to)) return;
    const int first = static_cast<int>(from);
    const int last = std::min(static_cast<int>(to), mWidth - 1);
    if (first == last) {
      blend(first, to - from, color);
      return;
    }
    blend(first, first + 1 - from, color);
    std::fill(mPixels + first + 1, mPixels + last, color);
    blend(last, to - last, color);
  }

 private:
  void blend(int x, double cover, QRgb color) {
    const int part = static_cast<int>(cover * 256.0);
    const QRgb old = mPixels[x];
    const auto mix = [part](int a, int b) { return b + (((a - b) * part) >> 8); };
    mPixels[x] = qRgb(mix(qRed(color), qRed(old)), mix(qGreen(color), qGreen(old)),
                      mix(qBlue(color), qBlue(old)));
  }

  QRgb* mPixels;
  int mWidth;
};

/// Where a trace may be drawn, device pixels from the left of the image.
struct Lane {
  double base = 0.0;
  double left = 0.0;
  double right = 0.0;
};

struct Brush {
  QRgb line = 0;
  QRgb positive = 0;
  QRgb negative = 0;
  bool fillPositive = true;
  bool fillNegative = false;
  double width = 1.0;  ///< of the line, device pixels
};

void paintRow(Row row, const Lane& lane, double low, double high, const Brush& brush) {
  const double base = lane.base;
  const double from = std::clamp(base + low, lane.left, lane.right);
  const double to = std::clamp(base + high, lane.left, lane.right);
  const double half = 0.5 * brush.width;
  row.span(from - half, to + half, brush.line);
  if (brush.fillPositive) row.span(base, from - half, brush.positive);
  if (brush.fillNegative) row.span(to + half, base, brush.negative);
  // Where a whole swing falls into one row the line would hide the colours of the lobes.
  if (!brush.fillNegative || from > base || to < base) return;
  row.span(base, to - half, brush.positive);
  row.span(from + half, base, brush.negative);
}

class Painter {
 public:
  Painter(const WiggleScene& scene, const TraceMapping& mapping, double ratio, QImage& image)
      : mScene(scene), mMapping(mapping), mRatio(ratio), mImage(image) {
    const TraceColors& colors = scene.colors;
    mBrush.line = colors.wiggle.rgb();
    mBrush.positive = colors.positive.rgb();
    mBrush.negative = colors.negative.rgb();
    mBrush.fillPositive = scene.options.fillWiggle;
    mBrush.fillNegative = scene.options.fillWiggle && scene.options.twoColors;
    mBrush.width = ratio;
  }

  void paint() {
    for (const int trace : mScene.layout.order()) {
      if (trace < mScene.traces.count() && !mScene.traces.samples(trace).empty()) paint(trace);
    }
  }

 private:
  double device(double position) const {
    return (mMapping.x(position) - mMapping.plot.left()) * mRatio;
  }

  Lane laneOf(int trace) const {
    const TraceLayout& layout = mScene.layout;
    const double position = layout.position(trace);
    Lane lane;
    lane.base = device(position);
    if (mScene.options.cutHorizontal) {
      lane.left = device(position - layout.leftRoom(trace));
      lane.right = device(position + layout.rightRoom(trace));
    } else {
      lane.left = -1.0;
      lane.right = mImage.width() + 1.0;
    }
    return lane;
  }

  /// Swings about the mean, of rows from a time on.
  void amplify(double mean, double top, double timeOfRow) {
    for (std::size_t r = 0; r < mRows.size(); ++r) {
      if (!mRows[r].known()) continue;
      const double gain =
          mScene.traces.mapping().gain(top + (static_cast<double>(r) + 0.5) * timeOfRow);
      mRows[r].low = mean + (mRows[r].low - mean) * gain;
      mRows[r].high = mean + (mRows[r].high - mean) * gain;
    }
  }

  void paint(int trace) {
    Lane lane = laneOf(trace);
    if (lane.right < -1.0 || lane.left > mImage.width() + 1.0) return;
    const ShotTraces& traces = mScene.traces;
    const double interval = traces.interval(trace);
    const double perRow = mMapping.window.height() / mImage.height() / interval;
    const double top = traces.trueTime(trace, mMapping.window.top);
    rowExtremes(traces.samples(trace), top / interval, perRow, mImage.height(), mRows);
    const double mean = traces.mean(trace);
    if (traces.mapping().amplifies()) amplify(mean, top, perRow * interval);
    double peak = mScene.options.normalise == TraceNormalise::EachTrace
                      ? traces.peak(trace) / traces.gain(trace)
                      : traces.shotPeak();
    if (!(peak > 0.0)) peak = 1.0;
    const double reach =
        kFullScale * mScene.options.gain * (device(mScene.layout.spacing()) - device(0.0));
    auto* pixels = reinterpret_cast<QRgb*>(mImage.bits());
    const int stride = mImage.bytesPerLine() / static_cast<int>(sizeof(QRgb));
    for (int r = 0; r < mImage.height(); ++r, pixels += stride) {
      const RowExtremes& row = mRows[static_cast<std::size_t>(r)];
      if (!row.known()) continue;
      paintRow(Row(pixels, mImage.width()), lane, (row.low - mean) / peak * reach,
               (row.high - mean) / peak * reach, mBrush);
    }
  }

  const WiggleScene& mScene;
  const TraceMapping& mMapping;
  double mRatio;
  QImage& mImage;
  Brush mBrush;
  std::vector<RowExtremes> mRows;
};

int devicePixels(double length, double ratio) {
  const double pixels = std::round(length * ratio);
  return pixels >= 1.0 ? static_cast<int>(std::min(pixels, double(kLargestSide))) : 0;
}

}  // namespace

QImage wiggleCanvas(const QSizeF& size, double ratio, const QColor& background) {
  const int width = devicePixels(size.width(), ratio);
  const int height = devicePixels(size.height(), ratio);
  if (width == 0 || height == 0) return {};
  QImage image(width, height, QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.setDevicePixelRatio(ratio);
  image.fill(background);
  return image;
}

void paintWiggles(const WiggleScene& scene, const TraceMapping& mapping, QImage& canvas) {
  if (canvas.isNull() || canvas.depth() != 32) return;
  Painter(scene, mapping, canvas.devicePixelRatioF(), canvas).paint();
}

}  // namespace talvesk
