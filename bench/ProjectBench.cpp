// Saving and loading a long line. The counter says how much memory the process had at its peak, the
// survey included, in sizes of the survey's samples.
#include "base/Console.h"
#include "io/ShotLoader.h"
#include "io/project/ProjectWriter.h"
#include "io/project/projectReader.h"
#include "model/Recordings.h"
#include "support/ShotFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;

constexpr int kShots = 60;
constexpr int kTraces = 96;
constexpr int kSamples = 4000;
constexpr double kSampleBytes = 8.0 * kShots * kTraces * kSamples;

std::string shotBytes(int shot) {
  std::vector<Seg2Channel> channels;
  std::uint32_t state = static_cast<std::uint32_t>(shot) + 1;
  for (int i = 0; i < kTraces; ++i) {
    Seg2Channel channel;
    for (int k = 0; k < kSamples; ++k) {
      state = state * 1664525U + 1013904223U;
      channel.samples.push_back(static_cast<float>(state >> 16) - 32768.0F);
    }
    channel.area =
        seg2Area({"RECEIVER_LOCATION " + std::to_string(2 * i), "SAMPLE_INTERVAL 0.000125",
                  "SOURCE_LOCATION " + std::to_string(4 * shot)});
    channels.push_back(std::move(channel));
  }
  return seg2Bytes(channels);
}

/// Memory at its highest since resetPeak().
double peakKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0.0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes;
  }
  return 0.0;
}

void resetPeak() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

/// The line, loaded from files that were just made.
struct Line {
  explicit Line(bool filtered) {
    console::setOut(console::nowhere());
    std::vector<std::string> paths;
    for (int shot = 0; shot < kShots; ++shot) {
      paths.push_back(root() + std::to_string(shot) + ".dat");
      const std::string bytes = shotBytes(shot);
      std::ofstream(paths.back(), std::ios::binary)
          .write(bytes.data(), static_cast<long>(bytes.size()));
    }
    ShotLoader().load(paths, project.document);
    if (!filtered) return;
    for (Trace& trace : project.document.recordings.edit().traceSets[0]) {
      trace.filtered = trace.samples;
      for (double& sample : trace.filtered.edit()) sample *= 0.123456789;
    }
  }
  std::string root() const { return folder.path().toStdString() + "/"; }
  std::string archive() const { return root() + "line.tvsk"; }
  int save() {
    ProjectWriter writer;
    return writer.save(archive(), root(), project.document, project.interpretation,
                       project.palettes);
  }

  QTemporaryDir folder;
  LoadedProject project;
};

/// \param range(0) one shot has filtered copies
void saveProject(benchmark::State& state) {
  Line line(state.range(0) != 0);
  resetPeak();
  for (auto _ : state) {
    if (line.save() != 0) state.SkipWithError("not saved");
  }
  state.counters["memory"] = 1024.0 * peakKilobytes() / kSampleBytes;
}
BENCHMARK(saveProject)->Arg(0)->Arg(1)->Unit(benchmark::kSecond)->UseRealTime();

void loadProject(benchmark::State& state) {
  Line line(state.range(0) != 0);
  if (line.save() != 0) state.SkipWithError("not saved");
  line.project.document = TomoDocument();
  resetPeak();
  for (auto _ : state) {
    LoadedProject loaded;
    projectReader reader;
    if (reader.load(line.archive(), line.root(), loaded) != 0) state.SkipWithError("not loaded");
  }
  state.counters["memory"] = 1024.0 * peakKilobytes() / kSampleBytes;
}
BENCHMARK(loadProject)->Arg(0)->Arg(1)->Unit(benchmark::kSecond)->UseRealTime();

}  // namespace
}  // namespace talvesk
