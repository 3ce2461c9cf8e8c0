#include "export/campaign/CampaignPictures.h"

#include "base/LengthUnit.h"
#include "base/WebText.h"
#include "view/ContourLines.h"
#include "view/SectionScene.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

namespace talvesk::web {
namespace {

struct CampaignWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::CampaignPage)
};

QString hex(const RgbColor& color) {
  const auto byte = [](double part) {
    return QStringLiteral("%1").arg(std::lround(255.0 * std::clamp(part, 0.0, 1.0)), 2, 16,
                                    QLatin1Char('0'));
  };
  return '#' + byte(color.r) + byte(color.g) + byte(color.b);
}

QString begin(double width, double height, const char* name, const QString& what) {
  return QStringLiteral("<svg class=\"%1\" viewBox=\"0 0 %2 %3\" role=\"img\" aria-label=\"%4\">")
      .arg(QLatin1String(name))
      .arg(width)
      .arg(height)
      .arg(escaped(what));
}

QString number(double value) {
  return QString::number(value, 'f', 1);
}

// The map, in units of its picture.
constexpr double kMapWidth = 640.0;
constexpr double kMapHeight = 400.0;
constexpr double kMapMargin = 60.0;
constexpr double kMetresPerDegree = 111320.0;  ///< of latitude

struct MapLine {
  std::size_t number = 0;
  std::array<Point2D, 2> ends;  ///< metres east and north of the first one's begin
};

/// On a plane around the first line, which is true enough for a campaign.
std::vector<MapLine> placedLines(const std::vector<CampaignLine>& lines) {
  std::vector<MapLine> placed;
  std::optional<LonLat> origin;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!lines[i].ends) continue;
    if (!origin) origin = lines[i].ends->front();
    MapLine line;
    line.number = i + 1;
    for (std::size_t end = 0; end < 2; ++end) {
      const LonLat& place = (*lines[i].ends)[end];
      const double east = std::remainder(place.longitude - origin->longitude, 360.0);
      line.ends[end] = {east * kMetresPerDegree * std::cos(origin->latitude * M_PI / 180.0),
                        (place.latitude - origin->latitude) * kMetresPerDegree};
    }
    placed.push_back(line);
  }
  return placed;
}

/// 1, 2 or 5 times a power of ten, at most so much.
double roundLength(double most) {
  const double power = std::pow(10.0, std::floor(std::log10(most)));
  for (const double factor : {5.0, 2.0}) {
    if (factor * power <= most) return factor * power;
  }
  return power;
}

/// From metres to the picture.
class MapFrame {
 public:
  explicit MapFrame(const std::vector<MapLine>& lines) {
    Point2D low = lines.front().ends[0];
    Point2D high = low;
    for (const MapLine& line : lines) {
      for (const Point2D& end : line.ends) {
        low = {std::min(low.x, end.x), std::min(low.z, end.z)};
        high = {std::max(high.x, end.x), std::max(high.z, end.z)};
      }
    }
    mMiddle = {(low.x + high.x) / 2.0, (low.z + high.z) / 2.0};
    mScale = std::min((kMapWidth - 2.0 * kMapMargin) / std::max(high.x - low.x, 1.0),
                      (kMapHeight - 2.0 * kMapMargin) / std::max(high.z - low.z, 1.0));
  }

  double x(const Point2D& place) const { return kMapWidth / 2.0 + (place.x - mMiddle.x) * mScale; }
  double y(const Point2D& place) const { return kMapHeight / 2.0 - (place.z - mMiddle.z) * mScale; }
  double scale() const { return mScale; }

 private:
  Point2D mMiddle;
  double mScale = 1.0;  ///< per metre
};

QString mapLineSvg(const MapLine& line, const MapFrame& frame, const QString& name) {
  const double x0 = frame.x(line.ends[0]);
  const double y0 = frame.y(line.ends[0]);
  const double x1 = frame.x(line.ends[1]);
  const double y1 = frame.y(line.ends[1]);
  // Its number stands beside its begin, away from the line.
  const double length = std::max(std::hypot(x1 - x0, y1 - y0), 1e-6);
  const double awayX = length > 1.0 ? (x0 - x1) / length : 0.0;
  const double awayY = length > 1.0 ? (y0 - y1) / length : -1.0;
  return QStringLiteral(
             "<a href=\"#line-%1\"><title>%2</title><line x1=\"%3\" y1=\"%4\" x2=\"%5\" "
             "y2=\"%6\"/><circle cx=\"%3\" cy=\"%4\" r=\"4\"/>")
             .arg(line.number)
             .arg(escaped(name), number(x0), number(y0), number(x1), number(y1)) +
         QStringLiteral("<text x=\"%1\" y=\"%2\">%3</text></a>")
             .arg(number(x0 + 16.0 * awayX), number(y0 + 16.0 * awayY + 5.0))
             .arg(line.number);
}

QString scaleBarSvg(double scale) {
  const double length = roundLength(shownLength(0.3 * kMapWidth / scale));
  const bool far = lengthUnit() == LengthUnit::kMetre && length >= 1000.0;
  const QString text =
      far ? CampaignWords::tr("%1 km").arg(QString::number(length / 1000.0, 'g', 6))
          : QString::number(length, 'g', 6) + QLatin1Char(' ') + QLatin1String(lengthUnitName());
  return QStringLiteral(
             "<path class=\"scale\" d=\"M20 %1v6h%2v-6\"/>"
             "<text class=\"left\" x=\"20\" y=\"%3\">%4</text>")
      .arg(number(kMapHeight - 22.0), number(metresOf(length) * scale), number(kMapHeight - 28.0),
           escaped(text));
}

}  // namespace

std::optional<ValueRange> velocitiesOf(const std::vector<CampaignLine>& lines) {
  ValueRange range{std::numeric_limits<double>::infinity(),
                   -std::numeric_limits<double>::infinity()};
  for (const CampaignLine& line : lines) {
    for (const double velocity : line.section.velocities) {
      if (!std::isfinite(velocity)) continue;
      range.min = std::min(range.min, velocity);
      range.max = std::max(range.max, velocity);
    }
  }
  if (range.min > range.max) return {};
  return niceRange(range);
}

QString smallSectionSvg(const SmallSection& section, const ColorTable& colors,
                        const QString& what) {
  std::vector<QString> paths(static_cast<std::size_t>(colors.size()));
  for (std::size_t row = 0; row < SmallSection::kRows; ++row) {
    const auto colorAt = [&](std::size_t column) {
      const double value = section.velocities[row * SmallSection::kColumns + column];
      return std::isfinite(value) ? colors.indexOf(value) : -1;
    };
    for (std::size_t from = 0; from < SmallSection::kColumns;) {
      const int color = colorAt(from);
      std::size_t to = from + 1;
      while (to < SmallSection::kColumns && colorAt(to) == color) ++to;
      if (color >= 0) {
        paths[static_cast<std::size_t>(color)] +=
            QStringLiteral("M%1 %2h%3v1H%1z").arg(from).arg(row).arg(to - from);
      }
      from = to;
    }
  }
  QString svg = begin(SmallSection::kColumns, SmallSection::kRows, "small-section", what);
  for (int i = 0; i < colors.size(); ++i) {
    const QString& path = paths[static_cast<std::size_t>(i)];
    if (!path.isEmpty()) {
      svg += QStringLiteral("<path fill=\"%1\" d=\"%2\"/>").arg(hex(colors[i]), path);
    }
  }
  return svg + QStringLiteral("</svg>");
}

QString colorBarSvg(const ColorTable& colors, const QString& what) {
  constexpr double kWidth = 320.0;
  constexpr double kSide = 20.0;  ///< of numbers at the ends
  constexpr int kMostTicks = 7;
  const double step = kWidth / colors.size();
  QString svg = begin(kWidth + 2.0 * kSide, 34.0, "color-bar", what);
  for (int i = 0; i < colors.size(); ++i) {
    svg += QStringLiteral("<path fill=\"%1\" d=\"M%2 0h%3v14h-%3z\"/>")
               .arg(hex(colors[i]), number(kSide + i * step), number(step));
  }
  for (const double value : shownRoundValues(colors.range(), kMostTicks, "m/s")) {
    const double part = (value - colors.range().min) / colors.range().span();
    svg += QStringLiteral("<text x=\"%1\" y=\"30\">%2</text>")
               .arg(number(kSide + part * kWidth))
               .arg(std::lround(shownLength(value)));
  }
  return svg + QStringLiteral("</svg>");
}

QString campaignMapSvg(const std::vector<CampaignLine>& lines, const QString& what) {
  const std::vector<MapLine> placed = placedLines(lines);
  if (placed.empty()) return {};
  const MapFrame frame(placed);
  // Its lines are links, so it is a group and no picture.
  QString svg = QStringLiteral(
                    "<svg class=\"campaign-map\" viewBox=\"0 0 %1 %2\" role=\"group\" "
                    "aria-label=\"%3\">")
                    .arg(kMapWidth)
                    .arg(kMapHeight)
                    .arg(escaped(what));
  for (const MapLine& line : placed) {
    svg += mapLineSvg(line, frame, QString::fromStdString(lines[line.number - 1].name));
  }
  svg += scaleBarSvg(frame.scale());
  svg += QStringLiteral(
             "<path class=\"north\" d=\"M615 16l8 22l-8-6l-8 6z\"/>"
             "<text x=\"615\" y=\"54\">%1</text>")
             .arg(escaped(CampaignWords::tr("N", "north")));
  return svg + QStringLiteral("</svg>");
}

}  // namespace talvesk::web
