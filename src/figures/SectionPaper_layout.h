#pragma once

#include "figures/SectionPaper.h"
#include "view/AxisTicks.h"

#include <QPointF>
#include <QRectF>
#include <QStringList>
#include <functional>
#include <vector>

class QFontMetricsF;

namespace talvesk {

struct DrawnIsoline;
struct MarkedIsoline;

/// What the parts of a sheet agree on, logical pixels.
namespace section_paper {
constexpr double kTick = 6.0;
constexpr double kMinorTick = 3.0;
constexpr double kGap = 6.0;
constexpr double kBarWidth = 18.0;
constexpr double kBarGap = 16.0;
constexpr double kBarSpacing = 2.2;  ///< lines, between numbers of an upright bar
constexpr double kSymbol = 20.0;     ///< room of a symbol in the legend
constexpr double kSymbolGap = 6.0;   ///< between it and its text

QStringList numbers(const AxisTicks& ticks, const QLocale& locale);
double widest(const QStringList& texts, const QFontMetricsF& metrics);
/// Marks at the colour bar: between the bands, where each has room for its number.
/// \param spacing of numbers, pixels
AxisTicks barTicks(const SectionScene& scene, const ColorTable& colors, double length,
                   double spacing);
}  // namespace section_paper

/// A symbol and what it stands for.
struct LegendEntry {
  QString text;
  std::function<void(QPainter&, const QPointF& middle)> symbol;
};
std::vector<LegendEntry> sectionLegend(const SectionScene& scene, const SectionDress& dress);
/// Of what is drawn of its certainty.
std::vector<LegendEntry> certaintyLegend(const SectionScene& scene, const QLocale& locale);

/// Of what the user has drawn.
std::vector<LegendEntry> annotationLegend(const SectionScene& scene, const QLocale& locale);
/// What a marked isoline is called on a section: its name, else its velocity.
QString isolineName(const MarkedIsoline& mark, const QLocale& locale);
/// The same with its velocity behind its name, and whether the section does not reach it.
QString isolineText(const DrawnIsoline& isoline, const QLocale& locale);

/// What goes where on a sheet of some size.
struct SectionPaperLayout {
  /// A word below the section, and where its line begins; with a symbol before it in a legend.
  struct Word {
    QPointF at;  ///< upper left
    LegendEntry entry;
  };

  SectionPaperLayout(const SectionScene& scene, const SectionExtent& extent,
                     const ColorTable& colors, const SectionDress& dress, const QSizeF& size,
                     double exaggeration);

  QRect plot;
  QRectF bar;                ///< empty: none
  bool title = false;        ///< has room
  QString exaggeration;      ///< stands alone above a plot too small for a caption
  double numberWidth = 0.0;  ///< room of the numbers at the elevation axis
  std::vector<Word> words;

 private:
  void flow(const SectionDress& dress, std::vector<LegendEntry> entries, const QStringList& facts,
            double left, double right, double most);
  double mRows = 0.0;  ///< of words
};

}  // namespace talvesk
