#include "base/LengthUnit.h"
#include "figures/DrawableValues.h"
#include "figures/GatherScene.h"
#include "figures/web/WebParts.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <QByteArray>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <limits>

// Travel times, and the recordings that they were picked on.

namespace talvesk::web {
namespace {

constexpr int kTimePlaces = 3;  ///< of milliseconds
constexpr int kPlaces = 2;
constexpr double kMilliseconds = 1e3;
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

double place(double x) {
  return isPosition(x) ? x : kNone;
}

QJsonObject shotJson(const TomoDocument& document, std::size_t shot) {
  const TravelTime& record = document.ttArray[shot];
  const std::vector<Point2D> receivers = document.receiversOf(record);
  std::vector<double> x;
  std::vector<double> measured;
  std::vector<double> errors;
  std::vector<double> computed;
  const bool times = document.result->has_tomographic_info;
  for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
    const double error = record.errorOf(i);
    x.push_back(i < receivers.size() ? shownLength(place(receivers[i].x)) : kNone);
    measured.push_back(hasPick(record.ttMisurati[i]) ? kMilliseconds * record.ttMisurati[i]
                                                     : kNone);
    errors.push_back(error > 0.0 ? kMilliseconds * error : kNone);
    const bool known = times && i < record.ttCalcolati.size() && record.ttCalcolati[i] >= 0.0;
    computed.push_back(known ? kMilliseconds * record.ttCalcolati[i] : kNone);
  }
  const QString file = QString::fromStdString(shotFile(document, shot));
  return {{QStringLiteral("x"), rounded(shownLength(place(record.shotPos2d.x)), kPlaces)},
          {QStringLiteral("z"), rounded(shownLength(record.shotPos2d.z), kPlaces)},
          {QStringLiteral("file"), QFileInfo(file).fileName()},
          {QStringLiteral("receivers"), rounded(x, kPlaces)},
          {QStringLiteral("measured"), rounded(measured, kTimePlaces)},
          {QStringLiteral("errors"), rounded(errors, kTimePlaces)},
          {QStringLiteral("computed"), rounded(computed, kTimePlaces)}};
}

// Recordings altogether: what a screen can show of a survey of usual size, and no page gets larger.
constexpr std::size_t kMostSamples = 1000000;
constexpr std::size_t kMostPerTrace = 360;
constexpr std::size_t kFewestPerTrace = 90;
constexpr int kFull = 127;  ///< of a sample that swings to the scale
constexpr char kMissing = -128;

/// Of the samples in each part of the window the one that swings most, so that no peak is lost.
QByteArray thinned(const GatherTrace& trace, const TimeWindow& window, std::size_t parts) {
  QByteArray bytes(static_cast<int>(parts), kMissing);
  const double partMs = (window.endMs - window.beginMs) / static_cast<double>(parts);
  for (std::size_t i = trace.first; i < trace.end; ++i) {
    const double swing = trace.swing(i);
    const double part = (trace.timeMs(i) - window.beginMs) / partMs;
    if (!std::isfinite(swing) || part < 0.0) continue;
    const auto at = static_cast<int>(std::min(part, static_cast<double>(parts - 1)));
    const auto value = static_cast<char>(std::lround(kFull * std::clamp(swing, -1.0, 1.0)));
    if (bytes[at] == kMissing || std::abs(value) > std::abs(bytes[at])) bytes[at] = value;
  }
  return bytes;
}

/// As many parts as the densest trace has samples, at most.
std::size_t partsOf(const GatherScene& scene, std::size_t most) {
  std::size_t samples = 2;
  for (const GatherTrace& trace : scene.traces)
    samples = std::max(samples, trace.end - trace.first);
  return std::min(samples, most);
}

QJsonObject gatherJson(const GatherScene& scene, std::size_t parts) {
  QJsonArray channels;
  QJsonArray x;
  QByteArray samples;
  for (const GatherTrace& trace : scene.traces) {
    channels.append(static_cast<int>(trace.channel));
    x.append(rounded(shownLength(trace.x), kPlaces));
    samples += thinned(trace, scene.window, parts);
  }
  return {{QStringLiteral("title"), QString::fromStdString(scene.title)},
          {QStringLiteral("caption"), QString::fromStdString(scene.caption)},
          {QStringLiteral("byChannel"), scene.byChannel},
          {QStringLiteral("channels"), channels},
          {QStringLiteral("x"), x},
          {QStringLiteral("spacing"),
           rounded(scene.byChannel ? scene.spacing : shownLength(scene.spacing), 4)},
          {QStringLiteral("from"), rounded(scene.window.beginMs, kTimePlaces)},
          {QStringLiteral("to"), rounded(scene.window.endMs, kTimePlaces)},
          {QStringLiteral("parts"), static_cast<int>(parts)},
          {QStringLiteral("samples"), QString::fromLatin1(samples.toBase64())}};
}

}  // namespace

QJsonArray shotData(const TomoDocument& document) {
  QJsonArray shots;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) shots.append(shotJson(document, i));
  return shots;
}

QJsonArray gatherData(const TomoDocument& document) {
  QJsonArray gathers;
  const auto& sets = document.recordings->traceSets;
  std::size_t traces = 0;
  for (const TraceSet& set : sets) traces += set.size();
  if (traces == 0) return gathers;
  GatherFigureOptions look;
  look.errorBars = false;  // the page draws its own
  const std::size_t each = std::clamp(kMostSamples / traces, kFewestPerTrace, kMostPerTrace);
  std::size_t left = kMostSamples;
  for (const TravelTime& record : document.ttArray) {
    GatherScene scene;
    const auto set = static_cast<std::size_t>(record.traceSetID);
    if (record.traceSetID < 0 || set >= sets.size() || sets[set].empty() ||
        !buildGatherScene(document, set, look, scene).ok()) {
      gathers.append(QJsonValue::Null);
      continue;
    }
    const std::size_t parts = partsOf(scene, each);
    const std::size_t needed = parts * scene.traces.size();
    gathers.append(needed <= left ? QJsonValue(gatherJson(scene, parts))
                                  : QJsonValue(QStringLiteral("left out")));
    left -= std::min(needed, left);
  }
  return gathers;
}

}  // namespace talvesk::web
