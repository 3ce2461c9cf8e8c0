// Throws any bytes at the reader of palette files. What it accepts must be fit to be shown and
// edited, and must come back as it was written.
#include "Demand.h"
#include "base/Console.h"
#include "io/PaletteFile.h"
#include "view/PaletteRepair.h"

#include <cstdint>
#include <string_view>

namespace {

using namespace talvesk;

bool isFraction(double value) {
  return value >= 0.0 && value <= 1.0;
}

void demandFit(const ColorPalette& palette) {
  const auto& points = palette.color_gradient.points();
  demand(points.size() >= 2 && points.size() <= kMostGradientStops, "a bounded gradient");
  demand(points.front().mval == 0.0 && points.back().mval == 1.0, "a stop at either end");
  double before = 0.0;
  for (const GradientColorPoint& point : points) {
    demand(point.mval >= before, "ascending stops");
    before = point.mval;
    for (const double part : {point.mr, point.mg, point.mb, point.mval}) {
      demand(isFraction(part), "colours and positions from 0 to 1");
    }
  }
  demand(palette.min_db < palette.max_db, "a range");
  demand(ColorTable(palette).size() == palette.n_colors, "as many colours as it says");
  for (const double value : {-1e308, palette.min_db, palette.max_db, 1e308}) {
    const int index = ColorTable(palette).indexOf(value);
    demand(index >= 0 && index < palette.n_colors, "a colour for every value");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  const std::string_view text(reinterpret_cast<const char*>(bytes), size);
  ColorPalette palette;
  const Status status = parsePalette(text, "a.xml", palette);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  if (!status.ok()) return 0;
  demandFit(palette);
  const std::string written = formatPalette(palette);
  ColorPalette again;
  demand(parsePalette(written, "a.xml", again).ok(), "what was written can be read");
  demand(formatPalette(again) == written, "the same text after reading");
  return 0;
}
