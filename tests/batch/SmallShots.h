#pragma once

#include "batch/BatchRunner.h"
#include "io/Seg2Writer.h"

#include <string>
#include <vector>

namespace talvesk::batchtest {

inline constexpr double kSmallInterval = 0.00025;  // seconds
inline constexpr std::size_t kSmallLead = 80;      // samples before the shot

/// The record of a shot at `x` on 13 geophones every 2 m over 600 m/s above 1800 m/s: a sharp swing
/// on faint noise. Starts 20 ms before the shot.
WrittenShot smallShot(double x);

/// Three of them as files in the folder.
std::vector<std::string> writeSmallShots(const Folder& folder);

/// A SEG-Y or SU file of one trace, big-endian IEEE floats, interval 1 ms.
std::string bigEndianSegy(const std::vector<float>& samples);
std::string bigEndianSu(const std::vector<float>& samples);

}  // namespace talvesk::batchtest
