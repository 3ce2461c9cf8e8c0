#include "export/DxfColor.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kBlackOrWhite = 7;
constexpr int kFirstHue = 10;
constexpr int kFirstGrey = 250;

struct Rgb {
  int red = 0;
  int green = 0;
  int blue = 0;
};

/// A colour of the circle of hues. \param hue of 24, from red over yellow
Rgb hueOf(int hue, int value, int least) {
  const double sixth = hue / 4.0;
  const auto part = [&](double away) {
    const double distance = std::fabs(std::remainder(sixth - away, 6.0));
    const double share = std::clamp(2.0 - distance, 0.0, 1.0);
    return static_cast<int>(std::lround(least + (value - least) * share));
  };
  return {part(0.0), part(2.0), part(4.0)};
}

/// By tens the hues; in each five strengths, full and, at odd numbers, half mixed with white; at
/// the end the greys.
Rgb indexed(int index) {
  constexpr std::array<int, 5> kValues = {255, 165, 127, 76, 38};
  constexpr std::array<int, 6> kGreys = {51, 80, 105, 130, 190, 255};
  if (index >= kFirstGrey) {
    const int grey = kGreys[static_cast<std::size_t>(index - kFirstGrey)];
    return {grey, grey, grey};
  }
  const int value = kValues[static_cast<std::size_t>(index % 10 / 2)];
  return hueOf(index / 10 - 1, value, index % 2 == 0 ? 0 : value / 2);
}

int farness(const Rgb& a, const Rgb& b) {
  const auto square = [](int d) { return d * d; };
  return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

}  // namespace

int nearestDxfColor(std::uint32_t rgb) {
  const Rgb wanted{static_cast<int>(rgb >> 16 & 0xffU), static_cast<int>(rgb >> 8 & 0xffU),
                   static_cast<int>(rgb & 0xffU)};
  int nearest = kBlackOrWhite;
  int least = farness(wanted, {});
  for (int index = kFirstHue; index <= 255; ++index) {
    const int far = farness(wanted, indexed(index));
    if (far >= least) continue;
    nearest = index;
    least = far;
  }
  return nearest;
}

}  // namespace talvesk
