#include "figures/web/WebPicture.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <algorithm>
#include <limits>
#include <unordered_map>
#include <vector>

namespace talvesk::web {
namespace {

constexpr int kMostColors = 256;
constexpr int kUsualColors = 128;   ///< of them, those that most pixels have
constexpr int kHardlyAnother = 25;  ///< distance() of colours that one can stand for

int distance(QRgb a, QRgb b) {
  const int red = qRed(a) - qRed(b);
  const int green = qGreen(a) - qGreen(b);
  const int blue = qBlue(a) - qBlue(b);
  return red * red + green * green + blue * blue;
}

/// A colour of a picture, and what stands for it.
struct Seen {
  QRgb color = 0;
  int pixels = 0;
  int place = 0;  ///< in the table
  int away = std::numeric_limits<int>::max();
};

/// Half of the table are the usual colours, the rest what is furthest from those that are there: a
/// mark in a colour of its own stays.
class FewColors {
 public:
  explicit FewColors(const QImage& image) {
    std::unordered_map<QRgb, int> pixels;
    for (int y = 0; y < image.height(); ++y) {
      const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
      for (int x = 0; x < image.width(); ++x) ++pixels[line[x]];
    }
    for (const auto& [color, count] : pixels) mSeen.push_back({color, count});
    std::sort(mSeen.begin(), mSeen.end(), [](const Seen& a, const Seen& b) {
      return a.pixels != b.pixels ? a.pixels > b.pixels : a.color < b.color;
    });
    for (std::size_t i = 0; i < mSeen.size() && mTable.size() < kUsualColors; ++i) {
      if (mSeen[i].away > kHardlyAnother) take(mSeen[i].color);
    }
    while (mTable.size() < kMostColors) {
      const Seen& furthest = *std::max_element(
          mSeen.begin(), mSeen.end(), [](const Seen& a, const Seen& b) { return a.away < b.away; });
      if (furthest.away == 0) break;
      take(furthest.color);
    }
  }

  const QVector<QRgb>& table() const { return mTable; }
  std::unordered_map<QRgb, int> places() const {
    std::unordered_map<QRgb, int> places;
    for (const Seen& seen : mSeen) places[seen.color] = seen.place;
    return places;
  }

 private:
  void take(QRgb color) {
    for (Seen& seen : mSeen) {
      const int away = distance(seen.color, color);
      if (away >= seen.away) continue;
      seen.away = away;
      seen.place = mTable.size();
    }
    mTable.append(color);
  }

  std::vector<Seen> mSeen;  ///< those of most pixels first
  QVector<QRgb> mTable;
};

}  // namespace

QByteArray fewColors(const QByteArray& png) {
  const QImage image = QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32);
  if (image.isNull()) return png;
  const FewColors colors(image);
  const auto places = colors.places();
  QImage small(image.size(), QImage::Format_Indexed8);
  small.setColorTable(colors.table());
  for (int y = 0; y < image.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    uchar* to = small.scanLine(y);
    for (int x = 0; x < image.width(); ++x) to[x] = static_cast<uchar>(places.at(from[x]));
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  const bool written = small.save(&buffer, "PNG", 0);  // as small as it gets
  return written && bytes.size() < png.size() ? bytes : png;
}

}  // namespace talvesk::web
