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

Message milliseconds(double seconds) {
  return Message::tr("%1 ms").arg(1000.0 * seconds);
}

/// Why the recordings make no pair; empty when they do.
Message mismatch(const TraceSet& dx, const TraceSet& sx) {
  if (dx.empty() || sx.empty()) return Message::tr("a file holds no traces");
  if (dx.size() != sx.size()) {
    return Message::tr("the DX file has %1 traces, the SX file %2").arg(dx.size()).arg(sx.size());
  }
  for (std::size_t i = 0; i < dx.size(); ++i) {
    if (!sameTime(dx[i].sampleInterval, sx[i].sampleInterval)) {
      return Message::tr(
                 "trace %1 has a sample interval of %2 in the DX file and of %3 in the SX file")
          .arg(i + 1)
          .arg(milliseconds(dx[i].sampleInterval))
          .arg(milliseconds(sx[i].sampleInterval));
    }
    if (!sameTime(dx[i].delay, sx[i].delay)) {
      return Message::tr("trace %1 has a delay of %2 in the DX file and of %3 in the SX file")
          .arg(i + 1)
          .arg(milliseconds(dx[i].delay))
          .arg(milliseconds(sx[i].delay));
    }
  }
  return {};
}

/// What differs and does not matter to the subtraction.
void compare(const TraceSet& dx, const TraceSet& sx, std::vector<Message>& warnings) {
  bool receivers = false;
  bool sources = false;
  bool lengths = false;
  for (std::size_t i = 0; i < dx.size(); ++i) {
    receivers = receivers || dx[i].receiverPosition != sx[i].receiverPosition;
    sources = sources || dx[i].sourcePosition != sx[i].sourcePosition;
    lengths = lengths || dx[i].samples.size() != sx[i].samples.size();
  }
  if (receivers) {
    warnings.push_back(Message::tr("DX and SX differ in receiver positions; those of DX count"));
  }
  if (sources) {
    warnings.push_back(Message::tr("DX and SX differ in source position; that of DX counts"));
  }
  if (lengths) warnings.push_back(Message::tr("DX and SX differ in length; that of DX counts"));
}

void append(const std::vector<Message>& warnings, const char* side, std::vector<Message>& all) {
  for (const Message& warning : warnings) all.push_back(joined(side, warning));
}

}  // namespace

Status readSWavePair(const std::string& fileDX, const std::string& fileSX, SegyState& state,
                     SWavePair& pair) {
  if (fileDX == fileSX) {
    return Status::failure(
        Message::tr("%1: DX and SX are the same file; their difference is nothing").arg(fileDX));
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
  append(dataDX.warnings, "DX", made.warnings);
  append(dataSX.warnings, "SX", made.warnings);
  TraceSet dx = traceSetOf(std::move(dataDX));
  TraceSet sx = traceSetOf(std::move(dataSX));
  if (const Message why = mismatch(dx, sx); !why.empty()) {
    state = before;
    return Status::failure(
        Message::tr("%1 and %2 are no pair: %3").arg(fileDX).arg(fileSX).arg(why));
  }
  compare(dx, sx, made.warnings);
  joinRecordings(dx, sx);
  made.traces = std::move(dx);
  pair = std::move(made);
  return {};
}

}  // namespace talvesk
