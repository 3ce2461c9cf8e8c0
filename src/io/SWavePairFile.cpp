#include "io/SWavePairFile.h"

#include "base/TextNumber.h"
#include "io/ShotFile.h"
#include "io/ShotLoader.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace talvesk {
namespace {

/// Intervals and delays of the two recordings agree to this part of them: headers round.
constexpr double kSameTime = 1e-6;

bool sameTime(double a, double b) {
  return std::fabs(a - b) <= kSameTime * std::max(std::fabs(a), std::fabs(b));
}

std::string milliseconds(double seconds) {
  return formatDouble(1000.0 * seconds) + " ms";
}

/// Why the recordings make no pair; empty when they do.
std::string mismatch(const TraceSet& dx, const TraceSet& sx) {
  if (dx.empty() || sx.empty()) return "a file holds no traces";
  if (dx.size() != sx.size()) {
    return "the DX file has " + std::to_string(dx.size()) + " traces, the SX file " +
           std::to_string(sx.size());
  }
  for (std::size_t i = 0; i < dx.size(); ++i) {
    const std::string trace = "trace " + std::to_string(i + 1) + " has ";
    if (!sameTime(dx[i].sampleInterval, sx[i].sampleInterval)) {
      return trace + "a sample interval of " + milliseconds(dx[i].sampleInterval) +
             " in the DX file and of " + milliseconds(sx[i].sampleInterval) + " in the SX file";
    }
    if (!sameTime(dx[i].delay, sx[i].delay)) {
      return trace + "a delay of " + milliseconds(dx[i].delay) + " in the DX file and of " +
             milliseconds(sx[i].delay) + " in the SX file";
    }
  }
  return {};
}

/// What differs and does not matter to the subtraction.
void compare(const TraceSet& dx, const TraceSet& sx, std::vector<std::string>& warnings) {
  bool receivers = false;
  bool sources = false;
  bool lengths = false;
  for (std::size_t i = 0; i < dx.size(); ++i) {
    receivers = receivers || dx[i].receiverPosition != sx[i].receiverPosition;
    sources = sources || dx[i].sourcePosition != sx[i].sourcePosition;
    lengths = lengths || dx[i].samples.size() != sx[i].samples.size();
  }
  if (receivers) warnings.emplace_back("DX and SX differ in receiver positions; those of DX count");
  if (sources) warnings.emplace_back("DX and SX differ in source position; that of DX counts");
  if (lengths) warnings.emplace_back("DX and SX differ in length; that of DX counts");
}

void append(const std::vector<std::string>& warnings, const char* side,
            std::vector<std::string>& all) {
  for (const std::string& warning : warnings) all.push_back(side + warning);
}

}  // namespace

Status readSWavePair(const std::string& fileDX, const std::string& fileSX, SegyState& state,
                     SWavePair& pair) {
  if (fileDX == fileSX) {
    return Status::failure(fileDX + ": DX and SX are the same file; their difference is nothing");
  }
  const SegyState before = state;
  ShotFileData dataDX;
  ShotFileData dataSX;
  Status read = readShotFile(fileDX, state, dataDX);
  if (read.ok()) read = readShotFile(fileSX, state, dataSX);
  if (!read.ok()) {
    state = before;
    return read;
  }
  SWavePair made;
  made.fileDX = fileDX;
  made.fileSX = fileSX;
  made.format = dataDX.format;
  append(dataDX.warnings, "DX: ", made.warnings);
  append(dataSX.warnings, "SX: ", made.warnings);
  TraceSet dx = traceSetOf(std::move(dataDX));
  TraceSet sx = traceSetOf(std::move(dataSX));
  if (const std::string why = mismatch(dx, sx); !why.empty()) {
    state = before;
    return Status::failure(fileDX + " and " + fileSX + " are no pair: " + why);
  }
  compare(dx, sx, made.warnings);
  joinRecordings(dx, sx);
  made.traces = std::move(dx);
  pair = std::move(made);
  return {};
}

}  // namespace talvesk
