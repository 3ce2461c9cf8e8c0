#include "view/GradientHandles.h"

#include "view/PaletteRepair.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

int truncated(double value) {
  return std::isnan(value)
             ? 0
             : static_cast<int>(std::clamp(value, -kLargestPaletteValue, kLargestPaletteValue));
}

}  // namespace

GradientHandles::GradientHandles(const ColorPalette& palette) : mGradient(palette.color_gradient) {
  const int minimum = truncated(palette.min_db);
  // A range within one unit still needs a scale to put handles on.
  setScale(minimum, std::max(truncated(palette.max_db), minimum + 1));
}

bool GradientHandles::setScale(int minimum, int maximum) {
  if (maximum <= minimum) return false;
  mMinimum = minimum;
  mMaximum = maximum;
  return true;
}

int GradientHandles::value(std::size_t index) const {
  const double span = static_cast<double>(mMaximum) - mMinimum;
  return static_cast<int>(std::lround(mMinimum + mGradient.points()[index].mval * span));
}

double GradientHandles::positionOf(int value) const {
  return (static_cast<double>(value) - mMinimum) / (static_cast<double>(mMaximum) - mMinimum);
}

int GradientHandles::move(std::size_t index, int wanted) {
  if (isEnd(index)) return value(index);
  const int before = value(index - 1);
  const int after = value(index + 1);
  int moved = wanted;
  if (moved <= before) moved = before + kHandleGap;
  if (moved >= after) moved = after - kHandleGap;
  // The margin of two close neighbours reaches across both.
  if (moved <= before || moved >= after) moved = before + (after - before) / 2;
  if (moved <= before || moved >= after) return value(index);
  std::vector<GradientColorPoint> points = mGradient.points();
  points[index].mval = positionOf(moved);
  mGradient.assign(std::move(points));
  return moved;
}

std::optional<std::size_t> GradientHandles::insertBeside(std::size_t index) {
  if (count() < 2 || count() >= kMostGradientStops) return std::nullopt;
  const std::size_t left = std::min(index, count() - 2);
  const int before = value(left);
  const int middle = before + (value(left + 1) - before) / 2;
  if (middle <= before) return std::nullopt;
  const double position = positionOf(middle);
  const RgbColor color = mGradient.colorAt(position);
  std::vector<GradientColorPoint> points = mGradient.points();
  points.insert(points.begin() + static_cast<std::ptrdiff_t>(left) + 1,
                {color.r, color.g, color.b, position});
  mGradient.assign(std::move(points));
  return left + 1;
}

bool GradientHandles::remove(std::size_t index) {
  if (isEnd(index)) return false;
  std::vector<GradientColorPoint> points = mGradient.points();
  points.erase(points.begin() + static_cast<std::ptrdiff_t>(index));
  mGradient.assign(std::move(points));
  return true;
}

void GradientHandles::setColor(std::size_t index, const RgbColor& color) {
  std::vector<GradientColorPoint> points = mGradient.points();
  points[index] = {color.r, color.g, color.b, points[index].mval};
  mGradient.assign(std::move(points));
}

}  // namespace talvesk
