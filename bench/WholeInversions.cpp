// Whole default inversions of one synthetic line in a process of their own, for bench/goals.py:
//     whole_inversions GEOPHONES SHOTS CELL DEPTH [TIMES]
// Prints seconds, processor seconds, the greatest memory in MB and a hash of the last section. How
// many threads take part follows from the processors that the process may use.
#include "BenchSurvey.h"
#include "model/GroundModel.h"
#include "tomo/TomographyRun.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>

#include <sys/resource.h>

namespace talvesk {
namespace {

/// Fowler, Noll and Vo, 64 bits, variant 1a.
std::uint64_t hashOf(const std::vector<double>& values) {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const double value : values) {
    unsigned char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    for (const unsigned char byte : bytes) hash = (hash ^ byte) * 1099511628211ULL;
  }
  return hash;
}

int run(int geophones, int shots, double cell, double depth, int times) {
  double seconds = 0.0, processor = 0.0;
  std::uint64_t hash = 0;
  for (int i = 0; i < times; ++i) {
    TomoDocument document = bench::surveyWithGrid(geophones, shots, cell, depth);
    Log log;
    const auto begin = std::chrono::steady_clock::now();
    const std::clock_t clock = std::clock();
    const TomographyResult result = runInversion(document, {}, log);
    seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    processor += static_cast<double>(std::clock() - clock) / CLOCKS_PER_SEC;
    if (!result.status.ok()) {
      std::cerr << result.status.message() << '\n';
      return 1;
    }
    hash = hashOf(document.model->grid->slownesses());
  }
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::cout << seconds << ' ' << processor << ' ' << static_cast<double>(usage.ru_maxrss) / 1024.0
            << ' ' << std::hex << hash << '\n';
  return 0;
}

}  // namespace
}  // namespace talvesk

int main(int argc, char** argv) {
  if (argc < 5) return 2;
  return talvesk::run(std::atoi(argv[1]), std::atoi(argv[2]), std::atof(argv[3]),
                      std::atof(argv[4]), argc > 5 ? std::atoi(argv[5]) : 1);
}
