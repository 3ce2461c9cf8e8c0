#include "figures/SectionPaper_layout.h"

#include "base/LengthUnit.h"
#include "figures/FigureWords.h"
#include "view/SectionScene.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

using namespace section_paper;

QStringList section_paper::numbers(const AxisTicks& ticks, const QLocale& locale) {
  QStringList texts;
  for (const double value : ticks.major) {
    texts << locale.toString(value * ticks.factor + 0.0, 'f',
                             ticks.decimals);  // no minus before a zero
  }
  return texts;
}

double section_paper::widest(const QStringList& texts, const QFontMetricsF& metrics) {
  double width = 0.0;
  for (const QString& text : texts) width = std::max(width, metrics.horizontalAdvance(text));
  return width;
}

AxisTicks section_paper::barTicks(const SectionScene& scene, const ColorTable& colors,
                                  double length, double spacing) {
  const ValueRange& range = colors.range();
  // A low bar needs two numbers to be read, closer to each other than those of a high one.
  const double most = std::max(length / spacing, std::min(2.0 * length / spacing, 4.0));
  const std::string unit = scene.values ? scene.values->unit : quantityUnit(scene.quantity);
  AxisTicks ticks = shownTicks(range.min, range.max, std::max(static_cast<int>(most), 1), unit);
  if (scene.fill != SectionFill::kBands) return ticks;
  const std::vector<double> levels = scene.bandLevels();
  double least = range.span();
  for (std::size_t i = 1; i < levels.size(); ++i)
    least = std::min(least, levels[i] - levels[i - 1]);
  if (levels.empty() || least / range.span() * length < 0.5 * spacing) return ticks;
  ticks.minor.clear();
  ticks.major = levels;
  ticks.decimals = shownTicks(range.min, range.max, 20, unit).decimals;
  const auto broken = [&ticks](double value) {
    const double shown = value * ticks.factor * std::pow(10.0, ticks.decimals);
    return std::abs(shown - std::round(shown)) > 1e-6;
  };
  if (ticks.decimals > 0 && std::any_of(levels.begin(), levels.end(), broken)) ++ticks.decimals;
  return ticks;
}

namespace {

constexpr double kSmallWindow = 14.0;     ///< lines; too low for legend and title
constexpr double kLowWindow = 24.0;       ///< lines; too low for more caption than the exaggeration
constexpr double kNarrowWindow = 26.0;    ///< lines; too narrow for a colour bar
constexpr double kRowHeight = 1.3;        ///< lines
constexpr double kMostOfWindow = 0.35;    ///< of its height, for the words below the section
constexpr double kNarrowestEntry = 0.25;  ///< of a row, for an entry of the legend
constexpr double kWordGap = 18.0;

/// The widest number that the elevation axis must have room for.
double elevationWidth(const SectionExtent& extent, const SectionDress& dress,
                      const QFontMetricsF& metrics) {
  QStringList texts{QStringLiteral("-888.8")};
  for (const double z : {extent.low.z, extent.high.z})
    texts << dress.locale.toString(shownLength(z), 'f', 1);
  return widest(texts, metrics);
}

}  // namespace

/// Sets words one after the other and begins a row where the next has no room. The caption follows
/// in the last row when all of it fits, else in rows of its own. \param most how wide an entry may
/// be, as a part of a row
void SectionPaperLayout::flow(const SectionDress& dress, std::vector<LegendEntry> entries,
                              const QStringList& facts, double left, double right, double most) {
  words.clear();
  const QFontMetricsF metrics(dress.font);
  const double rowHeight = kRowHeight * metrics.height();
  double x = left;
  double y = 0.0;
  for (LegendEntry& entry : entries) {
    // A name that there is no room for gives up its middle, and keeps the velocity at its end.
    entry.text = metrics.elidedText(entry.text, Qt::ElideMiddle,
                                    std::max(most * (right - left) - kSymbol - kSymbolGap, 0.0));
    const double width = kSymbol + kSymbolGap + metrics.horizontalAdvance(entry.text);
    if (x > left && x + width > right) {
      x = left;
      y += rowHeight;
    }
    words.push_back({{x, y}, std::move(entry)});
    x += width + kWordGap;
  }
  QString row;
  const auto widthWith = [&metrics](const QString& text) {
    return metrics.horizontalAdvance(text);
  };
  const double whole = widthWith(FigureWords::joined(facts));
  if (!facts.isEmpty() && x + whole <= right) {
    words.push_back({{right - whole, y}, {FigureWords::joined(facts), {}}});
  } else {
    const auto endRow = [&] {
      y += words.empty() ? 0.0 : rowHeight;
      words.push_back({{left, y}, {row, {}}});
    };
    for (const QString& fact : facts) {
      const QString longer = row.isEmpty() ? fact : FigureWords::joined({row, fact});
      if (!row.isEmpty() && left + widthWith(longer) > right) {
        endRow();
        row = fact;
      } else {
        row = longer;
      }
    }
    if (!row.isEmpty()) endRow();
  }
  mRows = words.empty() ? 0.0 : y / rowHeight + 1.0;
}

SectionPaperLayout::SectionPaperLayout(const SectionScene& scene, const SectionExtent& extent,
                                       const ColorTable& colors, const SectionDress& dress,
                                       const QSizeF& size, double factor) {
  const QFontMetricsF metrics(dress.font);
  const double line = metrics.height();
  const bool small = dress.mayShrink && size.height() < kSmallWindow * line;
  const bool low = dress.mayShrink && size.height() < kLowWindow * line;
  const bool hasBar = dress.colorBar != ColorBar::kNone && scene.fill != SectionFill::kNone &&
                      !(dress.mayShrink && size.width() < kNarrowWindow * line);
  const bool upright = dress.colorBar == ColorBar::kVertical;
  title = !dress.title.isEmpty() && !small;
  numberWidth = elevationWidth(extent, dress, metrics);

  const double left = kGap + line + kGap + numberWidth + 3.0 + kTick;
  if (small) {
    exaggeration = FigureWords::exaggeration(factor, dress.locale);
  } else {
    QStringList facts;
    if (!low) {
      facts = FigureWords::sectionFacts(scene, factor, dress.locale);
    } else {
      facts = FigureWords::certaintyWarnings(scene, dress.locale);
      if (factor != 1.0) facts << FigureWords::exaggeration(factor, dress.locale);
    }
    // In a window the section is what is looked at, and not a legend of long names.
    const double room = kMostOfWindow * size.height() / (kRowHeight * line);
    double part = 1.0;
    do {
      flow(dress, sectionLegend(scene, dress), facts, left, size.width() - kGap, part);
      part *= 0.7;
    } while (dress.mayShrink && mRows > room && part > kNarrowestEntry);
  }
  const double wordsHeight = mRows > 0.0 ? kGap + mRows * kRowHeight * line : 0.0;
  const double bottom = kTick + 2.0 + line + 2.0 + line + (small ? 2.0 : wordsHeight + kGap);
  double top = title ? 2.4 * line : exaggeration.isEmpty() ? 0.9 * line : 1.7 * line;
  if (hasBar && !upright) top += line + 2.0 + line + kTick + kBarWidth + kBarGap;
  // The last number of the distance axis stands half beyond the plot.
  double right = std::max(1.6 * line, 0.5 * numberWidth + kGap);
  if (hasBar && upright) {
    const AxisTicks ticks =
        barTicks(scene, colors, size.height() - top - bottom, kBarSpacing * line);
    right = kBarGap + kBarWidth + kTick + 3.0 + widest(numbers(ticks, dress.locale), metrics) +
            kGap + line + kGap;
  }
  plot = {static_cast<int>(left), static_cast<int>(top),
          std::max(static_cast<int>(size.width() - left - right), 1),
          std::max(static_cast<int>(size.height() - top - bottom), 1)};
  if (hasBar) {
    bar = upright ? QRectF(plot.right() + 1 + kBarGap, plot.top(), kBarWidth, plot.height())
                  : QRectF(plot.left(), plot.top() - kBarGap - kBarWidth, plot.width(), kBarWidth);
  }
  for (Word& word : words) word.at.ry() += size.height() - 0.5 * kGap - mRows * kRowHeight * line;
}

}  // namespace talvesk
