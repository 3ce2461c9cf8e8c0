#include "view/PaletteRepair.h"

#include "base/PlainText.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

bool isFinite(const GradientColorPoint& point) {
  return std::isfinite(point.mr) && std::isfinite(point.mg) && std::isfinite(point.mb) &&
         std::isfinite(point.mval);
}

Status checkGradient(const ColorGradient& gradient) {
  const auto& points = gradient.points();
  if (points.empty()) return Status::failure(Message::tr("its gradient has no colours"));
  if (!std::all_of(points.begin(), points.end(), isFinite)) {
    return Status::failure(Message::tr("a colour stop of its gradient is not a finite number"));
  }
  return {};
}

ColorGradient repaired(const ColorGradient& gradient) {
  ColorGradient inside;
  for (GradientColorPoint point : gradient.points()) {
    for (double* part : {&point.mr, &point.mg, &point.mb, &point.mval}) {
      *part = std::clamp(*part, 0.0, 1.0);
    }
    inside.add(point);
  }
  inside.sort();
  GradientColorPoint first = inside.points().front();
  GradientColorPoint last = inside.points().back();
  // What a gradient shows before its first stop and behind its last one becomes stops of its own.
  if (first.mval > 0.0) {
    first.mval = 0.0;
    inside.add(first);
  }
  if (last.mval < 1.0) {
    last.mval = 1.0;
    inside.add(last);
  }
  inside.sort();
  return inside;
}

void repairScale(ColorPalette& palette) {
  if (palette.min_db > palette.max_db) std::swap(palette.min_db, palette.max_db);
  if (palette.min_db < palette.max_db) return;
  const double half = std::max(0.5, 1e-3 * std::abs(palette.min_db));
  palette.min_db = std::max(palette.min_db - half, -kLargestPaletteValue);
  palette.max_db = std::min(palette.max_db + half, kLargestPaletteValue);
}

}  // namespace

Status repairPalette(ColorPalette& palette) {
  if (Status checked = checkGradient(palette.color_gradient); !checked.ok()) return checked;
  if (palette.name.size() > kMostPaletteNameBytes) {
    return Status::failure(Message::tr("its name is too long"));
  }
  for (const double end : {palette.min_db, palette.max_db}) {
    if (!(std::abs(end) <= kLargestPaletteValue)) {
      return Status::failure(Message::tr("its range of values is out of bounds"));
    }
  }
  ColorGradient gradient = repaired(palette.color_gradient);
  if (const std::size_t stops = gradient.points().size(); stops > kMostGradientStops) {
    return Status::failure(Message::tr("its gradient has %1 colour stops, more than %2")
                               .arg(stops)
                               .arg(kMostGradientStops));
  }
  palette.name = withoutControls(std::move(palette.name));
  palette.color_gradient = std::move(gradient);
  palette.n_colors = std::clamp(palette.n_colors, 1, ColorTable::kMaxColors);
  repairScale(palette);
  return {};
}

}  // namespace talvesk
