#include "view/ColorPalette.h"

#include "base/Console.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <ostream>
#include <tuple>
#include <utility>

namespace talvesk {
namespace {

GradientColorPoint stop(double position, int red, int green, int blue) {
  return {red / 255.0, green / 255.0, blue / 255.0, position};
}

// Positions off the quarters have always been kept as single-precision numbers; projects hold them
// with those digits.
constexpr double k02 = 0.2F;
constexpr double k035 = 0.35F;
constexpr double k04 = 0.4F;
constexpr double k055 = 0.55F;
constexpr double k06 = 0.6F;
constexpr double k065 = 0.65F;
constexpr double k07 = 0.7F;
constexpr double k08 = 0.8F;

std::vector<GradientColorPoint> stopsOfType(int type) {
  switch (type) {
    case 0:
      return {stop(0, 0, 0, 0), stop(1, 255, 255, 255)};
    case 1:
      return {stop(0, 0, 0, 255), stop(1, 255, 0, 0)};
    case 2:
      return {stop(0, 139, 34, 0),      stop(k02, 204, 40, 43),  stop(k04, 241, 234, 52),
              stop(k06, 111, 182, 116), stop(k08, 98, 180, 237), stop(1, 43, 45, 111)};
    case 3:
      return {stop(0, 240, 240, 255),   stop(k02, 79, 33, 24),   stop(k04, 200, 68, 62),
              stop(k055, 219, 135, 62), stop(k07, 232, 194, 84), stop(k08, 189, 127, 36),
              stop(1, 139, 165, 37)};
    case 4:
      return {stop(0, 0, 0, 0),      stop(k02, 0, 0, 255),    stop(k035, 0, 255, 255),
              stop(0.5, 0, 255, 0),  stop(k065, 255, 255, 0), stop(k08, 255, 0, 0),
              stop(1, 255, 255, 255)};
    case 5:
      // The red of the third stop is the plain fraction, not a byte value.
      return {stop(0, 59, 43, 163),     stop(k02, 71, 71, 248),  {0.33, 1.0, 245 / 255.0, k04},
              stop(k06, 153, 224, 107), stop(k08, 255, 190, 20), stop(1, 255, 255, 0)};
    case 6:
      return {stop(0, 255, 255, 255), stop(1, 0, 0, 0)};
    case 7:
      return {stop(0, 0, 0, 39), stop(0.25, 0, 36, 141), stop(0.5, 149, 68, 114),
              stop(0.75, 244, 123, 46), stop(1, 227, 255, 60)};
    case 8:
      return {stop(0, 52, 0, 67), stop(0.25, 44, 60, 122), stop(0.5, 25, 128, 123),
              stop(0.75, 96, 202, 61), stop(1, 253, 231, 0)};
    default:
      return {};
  }
}

struct BuiltIn {
  const char* name;
  int type;
};
constexpr BuiltIn kBuiltIn[] = {
    {"Silva viridis", 8}, {"Vulcanic magma", 7},  {"Black to White", 0}, {"White to Black", 6},
    {"Blue to red", 1},   {"Tropical parula", 5}, {"Dark rainbow", 2},   {"Early winter", 3},
};

}  // namespace

bool GradientColorPoint::operator==(const GradientColorPoint& other) const {
  return std::tie(mr, mg, mb, mval) == std::tie(other.mr, other.mg, other.mb, other.mval);
}

void ColorGradient::sort() {
  std::stable_sort(mPoints.begin(), mPoints.end(),
                   [](const auto& a, const auto& b) { return a.mval < b.mval; });
}

RgbColor ColorGradient::colorAt(double t) const {
  if (mPoints.empty() || std::isnan(t)) return {};
  const auto right = std::find_if(mPoints.begin(), mPoints.end(),
                                  [t](const GradientColorPoint& p) { return p.mval >= t; });
  if (right == mPoints.end()) return {mPoints.back().mr, mPoints.back().mg, mPoints.back().mb};
  const auto left = right == mPoints.begin() ? right : std::prev(right);
  const double width = right->mval - left->mval;
  const double f = width > 0.0 ? (t - left->mval) / width : 0.0;
  const auto mix = [f](double a, double b) { return a + f * (b - a); };
  return {mix(left->mr, right->mr), mix(left->mg, right->mg), mix(left->mb, right->mb)};
}

void buildGradient(ColorGradient& gradient, int type) {
  const std::vector<GradientColorPoint> stops = stopsOfType(type);
  if (stops.empty()) console::error() << "Unknown gradient type. " << std::endl;
  for (const GradientColorPoint& point : stops) gradient.add(point);
}

bool ColorPalette::operator==(const ColorPalette& other) const {
  return std::tie(name, n_colors, is_editable, min_db, max_db, color_gradient) ==
         std::tie(other.name, other.n_colors, other.is_editable, other.min_db, other.max_db,
                  other.color_gradient);
}

ColorPaletteList::ColorPaletteList() {
  for (const BuiltIn& builtIn : kBuiltIn) {
    ColorPalette palette;
    palette.name = builtIn.name;
    palette.is_editable = false;
    buildGradient(palette.color_gradient, builtIn.type);
    mPalettes.push_back(std::move(palette));
  }
}

const ColorPalette* ColorPaletteList::find(const std::string& name) const {
  const auto found = std::find_if(mPalettes.begin(), mPalettes.end(),
                                  [&name](const ColorPalette& p) { return p.name == name; });
  return found == mPalettes.end() ? nullptr : &*found;
}

std::size_t ColorPaletteList::add(ColorPalette palette) {
  mPalettes.push_back(std::move(palette));
  return mPalettes.size() - 1;
}

bool ColorPaletteList::select(std::size_t index) {
  if (index >= mPalettes.size()) return false;
  curr_palette = index;
  return true;
}

bool ColorPaletteList::remove(std::size_t index) {
  if (index >= mPalettes.size() || !mPalettes[index].is_editable || mPalettes.size() == 1) {
    return false;
  }
  mPalettes.erase(mPalettes.begin() + static_cast<std::ptrdiff_t>(index));
  // What was current stays current; a removed current palette hands over to the one before it.
  if (curr_palette > 0 && curr_palette >= index) --curr_palette;
  return true;
}

bool ColorPaletteList::rename(std::size_t index, std::string name) {
  if (index >= mPalettes.size() || !mPalettes[index].is_editable) return false;
  mPalettes[index].name = std::move(name);
  return true;
}

bool ColorPaletteList::assign(std::vector<ColorPalette> palettes, std::size_t current) {
  if (palettes.empty()) return false;
  mPalettes = std::move(palettes);
  curr_palette = current < mPalettes.size() ? current : 0;
  return true;
}

ColorTable::ColorTable(const ColorPalette& palette, ValueRange range) : mRange(range) {
  const int n = std::clamp(palette.n_colors, 1, kMaxColors);
  mColors.reserve(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) mColors.push_back(palette.color_gradient.colorAt((i + 0.5) / n));
}

ColorTable::ColorTable(const ColorPalette& palette, ValueRange range,
                       const std::vector<double>& edges)
    : mRange(range), mEdges(edges) {
  mColors.resize(mEdges.size() + 1);
  for (int i = 0; i < size(); ++i) {
    const ValueRange band = classRange(i);
    const double middle = (0.5 * (band.min + band.max) - mRange.min) / mRange.span();
    mColors[static_cast<std::size_t>(i)] = palette.color_gradient.colorAt(middle);
  }
}

int ColorTable::indexOf(double value) const {
  if (std::isnan(value)) return -1;
  if (value <= mRange.min) return 0;
  if (value >= mRange.max) return size() - 1;
  if (!mEdges.empty()) {
    return static_cast<int>(std::upper_bound(mEdges.begin(), mEdges.end(), value) - mEdges.begin());
  }
  return std::min(static_cast<int>((value - mRange.min) / mRange.span() * size()), size() - 1);
}

ValueRange ColorTable::classRange(int index) const {
  const auto edge = [this](int i) {
    if (mEdges.empty()) return mRange.min + mRange.span() * i / size();
    if (i == 0) return mRange.min;
    return i == size() ? mRange.max : mEdges[static_cast<std::size_t>(i - 1)];
  };
  return {edge(index), edge(index + 1)};
}

}  // namespace talvesk
