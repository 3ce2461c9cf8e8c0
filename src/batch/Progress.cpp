#include "batch/Progress.h"

#include "base/TextNumber.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

constexpr int kBarWidth = 30;
constexpr double kLongestShown = 359999.0;  // 99:59:59

std::string clock(double seconds) {
  const auto whole = static_cast<int>(std::lround(std::clamp(seconds, 0.0, kLongestShown)));
  const auto twoDigits = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  const int hours = whole / 3600;
  const int minutes = whole / 60 % 60;
  const std::string head =
      hours > 0 ? std::to_string(hours) + ":" + twoDigits(minutes) : std::to_string(minutes);
  return head + ":" + twoDigits(whole % 60);
}

/// Iterations take about the same time each.
std::string remaining(const TomographyProgress& progress) {
  if (progress.completed < 1) return "unknown";
  const double perIteration = progress.elapsedSeconds / progress.completed;
  return "about " + clock(perIteration * std::max(0, progress.total - progress.completed));
}

/// Of a section or of a solver pass.
template <typename AnyMisfit>
std::string rms(const AnyMisfit& misfit) {
  if (misfit.count == 0) return "no picks";
  return formatDouble(misfit.rmse * 1000.0, 4) + " ms (" +
         formatDouble(misfit.relativeRms * 100.0, 3) + " %)";
}

/// The section that the iteration started from: rays through its own come with the next one.
std::string sectionBefore(const TomographyProgress& progress) {
  const std::string before = progress.completed == 1
                                 ? "starting model "
                                 : "section of " + std::to_string(progress.completed - 1) + " ";
  return before + rms(progress.sectionBefore);
}

}  // namespace

std::string progressLine(const TomographyProgress& progress) {
  return "External iteration " + std::to_string(progress.completed) + " of " +
         std::to_string(progress.total) + ": " + sectionBefore(progress) + ", last solver pass " +
         rms(progress.misfit) + ", elapsed " + clock(progress.elapsedSeconds) + ", remaining " +
         remaining(progress);
}

std::string progressBar(const TomographyProgress& progress, int width) {
  const double share =
      progress.total > 0 ? static_cast<double>(progress.completed) / progress.total : 1.0;
  const auto filled = static_cast<std::size_t>(std::clamp(share, 0.0, 1.0) * width);
  std::string text = "[" + std::string(filled, '#') +
                     std::string(static_cast<std::size_t>(width) - filled, '.') + "] " +
                     std::to_string(progress.completed) + "/" + std::to_string(progress.total);
  if (progress.completed == 0) return text + " tracing rays";
  text += " section " + rms(progress.sectionBefore);
  return progress.completed < progress.total ? text + " " + remaining(progress).substr(6) + " left"
                                             : text;
}

namespace {

std::string fromWhere(const FittedRunProgress& progress) {
  return progress.from.empty() ? "" : "From " + progress.from.english() + ": ";
}

}  // namespace

std::string progressLine(const FittedRunProgress& progress) {
  return fromWhere(progress) + "Iteration " + std::to_string(progress.completed) + ", " +
         std::to_string(progress.most) + " at most: chi-square " +
         formatDouble(progress.fit.chi2, 4) + ", section " + rms(progress.section) + ", elapsed " +
         clock(progress.elapsedSeconds);
}

std::string progressBar(const FittedRunProgress& progress) {
  return fromWhere(progress) + "Iteration " + std::to_string(progress.completed) + ": chi-square " +
         formatDouble(progress.fit.chi2, 4) + ", section " + rms(progress.section);
}

std::string progressLine(const EnsembleProgress& progress) {
  const auto of = [](int part, int whole) {
    return std::to_string(part) + " of " + std::to_string(whole);
  };
  if (progress.members == 0 || progress.models < progress.ofModels) {
    return "Certainty: " + of(progress.models, progress.ofModels) + " models";
  }
  return "Certainty: " + of(progress.members, progress.ofMembers) + " members" +
         (progress.leftOut > 0 ? ", " + std::to_string(progress.leftOut) + " left out" : "");
}

Progress::Progress(ProgressStyle style, std::ostream& stream, int total)
    : mStyle(style), mStream(stream) {
  TomographyProgress nothingYet;
  nothingYet.total = total;
  if (mStyle == ProgressStyle::kBar) drawBar(progressBar(nothingYet, kBarWidth));
}

void Progress::begin(const std::string& what) {
  if (mStyle == ProgressStyle::kBar) drawBar(what);
  if (mStyle == ProgressStyle::kLines) mStream << what << std::endl;
}

void Progress::show(const TomographyProgress& progress) {
  if (mStyle == ProgressStyle::kBar) drawBar(progressBar(progress, kBarWidth));
  if (mStyle == ProgressStyle::kLines) mStream << progressLine(progress) << std::endl;
}

void Progress::show(const FittedRunProgress& progress) {
  if (mStyle == ProgressStyle::kBar) drawBar(progressBar(progress));
  if (mStyle == ProgressStyle::kLines) mStream << progressLine(progress) << std::endl;
}

void Progress::show(const EnsembleProgress& progress) {
  if (mStyle == ProgressStyle::kBar) drawBar(progressLine(progress));
  if (mStyle == ProgressStyle::kLines) mStream << progressLine(progress) << std::endl;
}

void Progress::finish() {
  if (mBarDrawn) mStream << std::endl;
  mBarDrawn = false;
}

void Progress::drawBar(const std::string& bar) {
  // Erase to the end of the line: the text may be shorter than the one before.
  mStream << '\r' << bar << "\x1b[K" << std::flush;
  mBarDrawn = true;
}

}  // namespace talvesk
