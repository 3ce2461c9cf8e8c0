// Each shot-file reader on about 100 MB in memory; bytes per second are those of the file. "filled"
// only makes vectors of as many samples, which is the most that this memory can do.
#include "base/Console.h"
#include "io/ShotFile.h"
#include "io/standard/StandardReader.h"
#include "support/ShotFiles.h"

#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

constexpr std::size_t kSamples = 25000;
constexpr std::size_t kTraces = 1000;

std::vector<float> wavelet() {
  std::vector<float> samples(kSamples);
  for (std::size_t i = 0; i < kSamples; ++i) {
    samples[i] = static_cast<float>(static_cast<int>(i * 7919 % 30000) - 15000);
  }
  return samples;
}

std::string seg2File(int format) {
  return testing::seg2Bytes(std::vector<testing::Seg2Channel>(
      kTraces, {format, wavelet(),
                testing::seg2Area({"DELAY 0.000", "RECEIVER_LOCATION 5.00",
                                   "SAMPLE_INTERVAL 0.00025", "SOURCE_LOCATION 57.50"})}));
}

testing::SegyFixture segyFixture(ByteOrder order, std::int16_t format) {
  testing::SegyFixture file;
  file.order = order;
  file.format = format;
  file.constant = order == ByteOrder::kBig ? std::string{1, 2, 3, 4} : std::string{4, 3, 2, 1};
  file.channels.assign(kTraces, {wavelet(), 5750, 100, 1});
  return file;
}

void measure(benchmark::State& state, const std::string& bytes, const char* path) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  for (auto _ : state) {
    SegyState memory;
    ShotFileData data;
    const Status status = parseShotFile(bytes, path, memory, data);
    if (!status.ok() || data.traces.size() != kTraces) state.SkipWithError("not read");
    benchmark::DoNotOptimize(data.traces.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}

void measureStandard(benchmark::State& state, const std::string& bytes) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  for (auto _ : state) {
    StandardReading reading;
    const Status status = parseByStandard(bytes, "a", reading);
    if (!status.ok() || reading.shots.front().data.traces.size() != kTraces) {
      state.SkipWithError("not read");
    }
    benchmark::DoNotOptimize(reading.shots.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}

/// The same files as for the reader by the program's rules, so that times compare. Of 16-bit
/// integers it reads as many samples, from half of the bytes.
void seg2Standard(benchmark::State& state) {
  measureStandard(state, seg2File(static_cast<int>(state.range(0))));
}

void seg2(benchmark::State& state) {
  measure(state, seg2File(static_cast<int>(state.range(0))), "a.seg2");
}

void segy(benchmark::State& state) {
  const ByteOrder order = state.range(1) == 0 ? ByteOrder::kLittle : ByteOrder::kBig;
  const auto file = segyFixture(order, static_cast<std::int16_t>(state.range(0)));
  measure(state, testing::segyBytes(file), "a.segy");
}

void segyStandard(benchmark::State& state) {
  const ByteOrder order = state.range(1) == 0 ? ByteOrder::kLittle : ByteOrder::kBig;
  const auto file = segyFixture(order, static_cast<std::int16_t>(state.range(0)));
  measureStandard(state, testing::segyBytes(file));
}

void suStandard(benchmark::State& state) {
  measureStandard(state, testing::suBytes(segyFixture(ByteOrder::kLittle, 5)));
}

void su(benchmark::State& state) {
  measure(state, testing::suBytes(segyFixture(ByteOrder::kLittle, 5)), "a.su");
}

void filled(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<std::vector<double>> traces(kTraces);
    for (auto& samples : traces) samples.assign(kSamples, 1.0);
    benchmark::DoNotOptimize(traces.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * 4 * kSamples * kTraces));
}

}  // namespace

BENCHMARK(filled)->Unit(benchmark::kMillisecond);
BENCHMARK(seg2)->Unit(benchmark::kMillisecond)->ArgName("format")->Arg(4)->Arg(2)->Arg(1);
BENCHMARK(seg2Standard)->Unit(benchmark::kMillisecond)->ArgName("format")->Arg(4)->Arg(2)->Arg(1);
BENCHMARK(segy)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"format", "big"})
    ->ArgsProduct({{5, 2, 3}, {0, 1}});
BENCHMARK(segyStandard)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"format", "big"})
    ->ArgsProduct({{5, 2, 3, 1}, {0, 1}});
BENCHMARK(suStandard)->Unit(benchmark::kMillisecond);
BENCHMARK(su)->Unit(benchmark::kMillisecond);

}  // namespace talvesk
