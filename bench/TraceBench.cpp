#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "widgets/traces/TraceMapping.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <cmath>
#include <cstdint>

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

/// Shots of noise and waves, all picked, into one string.
TomoDocument shots(int traces, int samples, int count) {
  TomoDocument document;
  document.line.edit().goephonesStringSet.emplace_back();
  for (int i = 0; i < traces; ++i)
    document.line.edit().goephonesStringSet[0].push_back({2.0 * i, 0.0});
  for (int shot = 0; shot < count; ++shot) {
    TravelTime record;
    record.shotPos2d = {10.0 * shot - 5.0, 0.0};
    record.traceSetID = shot;
    for (int i = 0; i < traces; ++i) {
      record.ttMisurati.edit().push_back(std::fabs(2.0 * i - record.shotPos2d.x) / 1500.0 + 0.001);
    }
    record.ttCalcolati.edit() = record.ttMisurati;
    document.ttArray.edit().push_back(record);
    TraceSet set(static_cast<std::size_t>(shot == 0 ? traces : 0));
    std::uint32_t state = 1;
    for (Trace& trace : set) {
      trace.sampleInterval = 0.000125;
      for (int k = 0; k < samples; ++k) {
        state = state * 1664525U + 1013904223U;
        trace.samples.edit().push_back(0.2 * (state >> 8) / 16777216.0 + std::sin(0.05 * k));
      }
    }
    document.recordings.edit().traceSets.push_back(std::move(set));
  }
  return document;
}

QApplication& application() {
  static int argc = 1;
  static char name[] = "bench";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication app(argc, argv);
  return app;
}

struct View {
  View(int traces, int samples) : document(shots(traces, samples, 24)) {
    TraceViewOptions options;
    options.showAllTraces = options.showAllPicks = options.showComputedTimes = options.airWave =
        true;
    widget.setOptions(options);
    widget.resize(1280, 900);
    widget.setDocument(&document);
    widget.setShot(0);
    target = QImage(widget.size(), QImage::Format_RGB32);
  }
  void paint() { widget.render(&target); }

  TomoDocument document;
  editTravelTimesWidget widget;
  QImage target;
};

/// A step of the wheel or of a scroll bar: wiggles, axes, guides and picks anew.
void frame(benchmark::State& state) {
  application();
  View view(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  view.paint();
  const ViewWindow whole = view.widget.window();
  ViewWindow shorter = whole;
  shorter.bottom *= 0.999;
  bool toShorter = true;
  for (auto _ : state) {
    view.widget.setWindow(toShorter ? shorter : whole);
    view.paint();
    toShorter = !toShorter;
  }
}
BENCHMARK(frame)->Args({96, 8000})->Args({1000, 4000})->Unit(benchmark::kMillisecond);

/// The mouse moves over the picture. \param range(2) the magnifier follows
void cursorMove(benchmark::State& state) {
  application();
  View view(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  view.widget.setMagnifier(state.range(2) != 0);
  view.paint();
  int x = 0;
  for (auto _ : state) {
    x = (x + 7) % 800;
    QMouseEvent event(QEvent::MouseMove, QPointF(200.0 + x, 300.0), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&view.widget, &event);
    view.paint();
  }
}
BENCHMARK(cursorMove)
    ->Args({96, 8000, 0})
    ->Args({96, 8000, 1})
    ->Args({1000, 4000, 0})
    ->Args({1000, 4000, 1})
    ->Unit(benchmark::kMillisecond);

/// A pick follows the mouse: everything but the wiggles anew.
void dragPick(benchmark::State& state) {
  application();
  View view(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  view.paint();
  const QPointF start = view.widget.pointOf(20, 0.3);
  QMouseEvent press(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(&view.widget, &press);
  int y = 0;
  for (auto _ : state) {
    y = (y + 3) % 100;
    QMouseEvent event(QEvent::MouseMove, start + QPointF(0.0, y), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&view.widget, &event);
    view.paint();
  }
}
BENCHMARK(dragPick)->Args({96, 8000})->Args({1000, 4000})->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace talvesk
