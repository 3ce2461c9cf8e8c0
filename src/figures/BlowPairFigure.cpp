#include "figures/BlowPairFigure.h"

#include "figures/FigureItem.h"
#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"

#include <QByteArray>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

constexpr double kPageOfPoints = 120000.0;  ///< of a vector file, shared out among the layers
constexpr double kClip = 1.0;               ///< distances between traces
constexpr double kLineWidth = 0.9;          ///< of coloured traces, points of 1/96 inch

// Blue and vermilion, which most of those who are colour-blind tell apart; lighter for what they
// fill. Picks are darker than their traces.
constexpr RgbColor kFirstLine{0.0, 0.35, 0.70};
constexpr RgbColor kSecondLine{0.84, 0.30, 0.0};
constexpr RgbColor kFirstPick{0.0, 0.15, 0.45};
constexpr RgbColor kSecondPick{0.55, 0.10, 0.0};

using Scene = std::shared_ptr<GatherScene>;

struct Scenes {
  std::array<Scene, 4> of;  ///< by BlowPair::Set; null where there is none
  TimeWindow window;
};

/// All panels reach as far, so that both shots have their place in each.
void shareAxis(Scenes& scenes) {
  GatherScene& wide = *scenes.of[BlowPair::kFirst];
  const GatherScene& second = *scenes.of[BlowPair::kSecond];
  wide.low = std::min(wide.low, second.low);
  wide.high = std::max(wide.high, second.high);
  for (const Scene& scene : scenes.of) {
    if (scene == nullptr) continue;
    scene->low = wide.low;
    scene->high = wide.high;
  }
}

/// Of both shots, where they are near.
std::vector<GatherStar> starsOf(const Scenes& scenes) {
  std::vector<GatherStar> stars;
  const auto add = [&](BlowPair::Set set, const RgbColor& color) {
    const std::optional<double>& x = scenes.of[set]->shotX;
    if (x) stars.push_back({*x, toColor(color)});
  };
  add(BlowPair::kFirst, kFirstLine);
  add(BlowPair::kSecond, kSecondLine);
  return stars;
}

Status build(const BlowPair& pair, const GatherFigureOptions& options, Scenes& scenes) {
  const std::size_t sets = pair.hasSum() ? 4 : 2;
  for (std::size_t set = 0; set < sets; ++set) {
    scenes.of[set] = std::make_shared<GatherScene>();
    Status status = buildGatherScene(pair.document, set, options, *scenes.of[set]);
    if (!status.ok()) return status;
  }
  shareAxis(scenes);
  const TimeWindow& first = scenes.of[BlowPair::kFirst]->window;
  const TimeWindow& second = scenes.of[BlowPair::kSecond]->window;
  scenes.window = {0.0, std::max(first.endMs, second.endMs)};
  return {};
}

/// Gives all scenes the measure of the two blows.
void scaleAlike(Scenes& scenes, bool trueAmplitudes) {
  std::vector<double> measures;
  double largest = GatherTrace::kFlat;
  for (const std::size_t set : {BlowPair::kFirst, BlowPair::kSecond}) {
    for (const GatherTrace& trace : scenes.of[set]->traces) {
      if (measures.size() <= trace.channel) {
        measures.resize(trace.channel + 1, GatherTrace::kFlat);
      }
      measures[trace.channel] = std::max(measures[trace.channel], trace.scale);
      largest = std::max(largest, trace.scale);
    }
  }
  for (const Scene& scene : scenes.of) {
    if (scene == nullptr) continue;
    for (GatherTrace& trace : scene->traces) {
      const bool known = trace.channel < measures.size();
      trace.scale = trueAmplitudes ? largest : known ? measures[trace.channel] : trace.scale;
    }
  }
}

GatherLayer layerOf(const Scene& scene, const BlowPairLook& look, double layers) {
  GatherLayer layer;
  layer.scene = scene;
  layer.style.gain = look.gain;
  layer.style.clip = kClip;
  layer.style.mostVectorPoints = kPageOfPoints / layers;
  layer.picks = toColor(kFirstPick);
  return layer;
}

GatherPanel overlayOf(const Scenes& scenes, const BlowPairLook& look, double layers) {
  GatherPanel panel;
  panel.heading = {{look.firstName, toColor(kFirstLine)}, {look.secondName, toColor(kSecondLine)}};
  GatherLayer first = layerOf(scenes.of[BlowPair::kFirst], look, layers);
  first.style.line = kFirstLine;
  first.style.width = kLineWidth;
  first.style.fillPositive = false;
  GatherLayer second = layerOf(scenes.of[BlowPair::kSecond], look, layers);
  second.style.line = kSecondLine;
  second.style.width = kLineWidth;
  second.style.fillPositive = false;
  second.picks = toColor(kSecondPick);
  panel.layers = {std::move(first), std::move(second)};
  return panel;
}

GatherPanel resultOf(const Scenes& scenes, BlowPair::Set set, const BlowPairLook& look,
                     double layers) {
  const bool sum = set == BlowPair::kSum;
  GatherPanel panel;
  panel.heading = {{sum ? FigureWords::tr("Sum") : FigureWords::tr("Difference")}};
  panel.layers = {layerOf(scenes.of[set], look, layers)};
  return panel;
}

std::vector<GatherPanel> panelsOf(const Scenes& scenes, const BlowPairLook& look, bool hasSum) {
  const double layers =
      (look.overlay ? 2.0 : 0.0) + (look.difference ? 1.0 : 0.0) + (look.sum ? 1.0 : 0.0);
  std::vector<GatherPanel> panels;
  if (look.overlay) panels.push_back(overlayOf(scenes, look, layers));
  if (look.difference && hasSum) {
    panels.push_back(resultOf(scenes, BlowPair::kDifference, look, layers));
  }
  if (look.sum && hasSum) panels.push_back(resultOf(scenes, BlowPair::kSum, look, layers));
  for (GatherPanel& panel : panels) panel.stars = starsOf(scenes);
  return panels;
}

QString captionOf(const BlowPair& pair, const BlowPairLook& look) {
  QStringList parts;
  for (const Message& line : describe(pair)) parts << FigureWords::message(line, look.locale);
  parts << (look.trueAmplitudes ? FigureWords::tr("All traces to one maximum, gain %1")
                                : FigureWords::tr("Each pair of traces to one maximum, gain %1"))
               .arg(look.locale.toString(look.gain, 'g', 3));
  return FigureWords::joined(parts);
}

}  // namespace

Status prepareBlowPair(const BlowPair& pair, const BlowPairLook& look, FigureDrawing& drawing,
                       std::vector<GatherPanelPlace>* places) {
  GatherFigureOptions options;
  options.picks = look.picks;
  Scenes scenes;
  Status status = build(pair, options, scenes);
  if (!status.ok()) return status;
  options.window = TimeWindow{0.0, look.endMs.value_or(scenes.window.endMs)};
  status = build(pair, options, scenes);
  if (!status.ok()) return status;
  scaleAlike(scenes, look.trueAmplitudes);
  auto made = std::make_shared<GatherPanelSheet>();
  made->panels = panelsOf(scenes, look, pair.hasSum());
  made->columns = made->panels.size();
  made->window = scenes.window;
  made->caption = captionOf(pair, look);
  made->locale = look.locale;
  if (made->panels.empty()) {
    return Status::failure(pair.hasSum() ? Message::tr("There is nothing chosen to be drawn.")
                                         : pair.noSum);
  }
  if (status = layOutPanels(*made, look.widthMm, look.heightMm, places); !status.ok()) {
    return status;
  }
  const QString title = look.firstName + QStringLiteral(", ") + look.secondName;
  drawing.sheet = {look.widthMm, look.heightMm, look.dpi, title.toStdString()};
  drawing.paint = [made](QPainter& painter, const QRectF& rect) {
    paintPanels(painter, rect, *made);
  };
  return {};
}

Status writeBlowPair(const std::string& path, const BlowPair& pair, const BlowPairLook& look) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    FigureDrawing drawing;
    Status status = prepareBlowPair(pair, look, drawing);
    return status.ok() ? paintFigure(format, drawing.sheet, drawing.paint, bytes) : status;
  });
}

}  // namespace talvesk
