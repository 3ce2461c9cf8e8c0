#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "support/TestGrids.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"
#include "widgets/section/SectionSurface.h"
#include "widgets/section/SectionView.h"

#include <QApplication>
#include <cmath>
#include <cstdint>
#include <memory>

#include <benchmark/benchmark.h>

// Frames need a display, which scripts/bench --programs provides.

namespace talvesk {
namespace {

/// 100 000 cells and 5000 rays, each through some 250 nodes.
TomoDocument bigSection() {
  TomoDocument document;
  document.model.edit().grid = testing::roughGrid(GridSize{125, 800, 6, 1.0}, 3.0);
  document.model.edit().surface = testing::hills(800.0, 3.0);
  document.line.edit().goephonesStringSet.emplace_back();
  for (double x = 1.0; x < 799.0; x += 4.0) {
    document.line.edit().goephonesStringSet[0].push_back({x, document.model->surface(x)});
  }
  const GridGeometry& geometry = document.model->grid->geometry();
  for (std::uint32_t i = 0; i < 5000; ++i) {
    const std::uint32_t first = (i * 37) % 500;
    std::vector<std::uint32_t> ray;
    for (std::uint32_t k = 0; k <= 250; ++k) {
      const double depth = (20.0 + i % 100) * std::sin(3.14159265 * k / 250.0);
      const auto row = static_cast<std::uint32_t>(depth);
      ray.push_back(
          geometry.sideNode(row, first + k, static_cast<std::uint32_t>(4.0 * (depth - row))));
    }
    document.result.edit().rays.edit().push_back(ray);
  }
  return document;
}

const TomoDocument& document() {
  static const TomoDocument section = bigSection();
  return section;
}

SectionViewSettings everything(bool smooth, bool bands) {
  SectionViewSettings settings;
  settings.smooth = smooth;
  settings.contours.filled = bands;
  settings.contours.onProfile = true;
  settings.rays = true;
  settings.gridLines = true;
  return settings;
}

std::shared_ptr<const SectionScene> sceneOf(const SectionViewSettings& settings,
                                            const ColorPalette& palette) {
  auto scene = std::make_shared<SectionScene>();
  if (!buildSectionScene(document(), settings, palette, {}, *scene).ok()) return nullptr;
  return scene;
}

void buildScene(benchmark::State& state) {
  const SectionViewSettings settings = everything(false, state.range(0) != 0);
  const ColorPalette palette = ColorPaletteList().current();
  document();
  for (auto _ : state) benchmark::DoNotOptimize(sceneOf(settings, palette));
}
BENCHMARK(buildScene)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

QApplication& application() {
  static int argc = 1;
  static char name[] = "bench";
  static char* argv[] = {name, nullptr};
  QSurfaceFormat::setDefaultFormat(sectionSurfaceFormat());
  static QApplication app(argc, argv);
  return app;
}

/// Widgets need the application object first.
struct WithApplication {
  WithApplication() { application(); }
};

struct View : WithApplication {
  View(bool smooth, bool bands, bool rays) : settings(everything(smooth, bands)) {
    settings.rays = rays;
    widget.resize(1280, 800);
    widget.show();
    widget.showScene(sceneOf(settings, palette), palette, settings);
    frame();
  }
  /// All that comes to the screen, VTK's part and the painter's.
  void frame() {
    QApplication::processEvents();
    widget.sheet()->repaint();
    QApplication::processEvents();
  }

  SectionViewSettings settings;
  ColorPalette palette = ColorPaletteList().current();
  SectionView widget;
};

/// A step of the wheel. \param range(0) 0 cells, 1 smooth, 2 bands; \param range(1) with rays
void zoomFrame(benchmark::State& state) {
  View view(state.range(0) == 1, state.range(0) == 2, state.range(1) != 0);
  bool in = true;
  for (auto _ : state) {
    in ? view.widget.zoomIn() : view.widget.zoomOut();
    in = !in;
    view.frame();
  }
}
BENCHMARK(zoomFrame)->Args({0, 0})->Args({0, 1})->Args({1, 1})->Args({2, 1})->Unit(
    benchmark::kMillisecond);

/// Another palette over the same section, from its choice to the screen.
void paletteFrame(benchmark::State& state) {
  View view(false, false, true);
  const ColorPaletteList palettes;
  std::size_t i = 0;
  const auto scene = sceneOf(view.settings, view.palette);
  for (auto _ : state) {
    view.widget.showScene(scene, palettes[++i % palettes.size()], view.settings);
    view.frame();
  }
}
BENCHMARK(paletteFrame)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void pictureForAFile(benchmark::State& state) {
  const View view(true, false, true);
  for (auto _ : state) {
    benchmark::DoNotOptimize(view.widget.picture({1600, 900}, SectionView::Part::kWhole, 2.0));
  }
}
BENCHMARK(pictureForAFile)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

}  // namespace
}  // namespace talvesk
