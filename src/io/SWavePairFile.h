#pragma once

#include "base/Status.h"
#include "io/SegyFile.h"
#include "model/SWavePair.h"

#include <string>

namespace talvesk {

/// Reads the two recordings of an S-wave shot, of any format of readShotFile(), and makes one set
/// of traces of them: both recordings kept apart, and their difference DX minus SX as the samples.
/// Positions and delay are those of the DX file.
///
/// Fails, with `pair` as it was, when a file cannot be read (status of readShotFile), and with
/// status 1 when one has no traces, both are the same file, or they differ in number of traces,
/// sample interval or delay; the message names the files. Receivers, sources and lengths that
/// differ are warned of.
Status readSWavePair(const std::string& fileDX, const std::string& fileSX, SegyState& state,
                     SWavePair& pair);

}  // namespace talvesk
