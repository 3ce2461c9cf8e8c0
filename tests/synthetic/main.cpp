#include "synthetic/Line.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

using namespace talvesk::synthetic;

namespace {

constexpr double kGrossShare = 0.05;

/// Three files of one ground: picks, the same with gross errors, and the truth.
bool write(const Ground& ground, const std::filesystem::path& folder, unsigned long long seed) {
  const Spread spread = evenSpread(48, 2.0, 9);
  const std::vector<Pick> exact = exactPicks(ground, spread);
  Noise noise;
  noise.seed = seed;
  std::ofstream picks(folder / (ground.name + ".sgt"));
  writePicks(ground, spread, withErrors(exact, noise), noise.sigma, picks);
  noise.gross = kGrossShare;
  std::ofstream gross(folder / (ground.name + "-gross.sgt"));
  writePicks(ground, spread, withErrors(exact, noise), noise.sigma, gross);
  std::ofstream truth(folder / (ground.name + ".json"));
  writeTruth(ground, spread, truth);
  picks.close();
  gross.close();
  truth.close();
  return picks && gross && truth;
}

}  // namespace

/// synthetic_lines FOLDER [SEED [NAME]]: writes the lines of the study, or one of them, into a
/// folder that there is.
int main(int argc, char** argv) {
  if (argc < 2 || argc > 4) {
    std::cerr << "Usage: synthetic_lines FOLDER [SEED [NAME]]\n";
    return EXIT_FAILURE;
  }
  const unsigned long long seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  const std::string only = argc > 3 ? argv[3] : "";
  int written = 0;
  for (const Ground& ground : studyGrounds()) {
    if (!only.empty() && ground.name != only) continue;
    if (!write(ground, argv[1], seed)) {
      std::cerr << "Cannot write " << ground.name << " into " << argv[1] << "\n";
      return EXIT_FAILURE;
    }
    ++written;
  }
  if (written == 0) std::cerr << "There is no ground called " << only << "\n";
  return written > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
