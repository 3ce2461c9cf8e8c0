#pragma once

#include "base/Message.h"
#include "model/Trace.h"

#include <string>
#include <vector>

namespace talvesk {

/// The two recordings of an S-wave shot, source struck either way, as one set of traces.
struct SWavePair {
  std::string fileDX;
  std::string fileSX;
  TraceSet traces;                ///< Trace::kSWavePair, samples = DX minus SX
  std::string format;             ///< of the DX file: "seg2", "segy", "su"
  std::vector<Message> warnings;  ///< that the readers had
};

/// Makes the samples of a pair from its recordings: DX minus SX over the length of DX; where SX is
/// shorter, the rest of DX stands as it is. Traces of other kinds stay.
void subtractRecordings(Trace& trace);

/// Makes the traces of the DX recording those of a pair, with the samples of the SX recording
/// moved beside theirs. Both have the same number of traces.
void joinRecordings(TraceSet& dx, TraceSet& sx);

}  // namespace talvesk
