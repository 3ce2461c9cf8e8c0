#pragma once

#include "io/WrittenShot.h"

#include <vector>

namespace talvesk {

class TomoDocument;

// What a crew would have recorded on the demo line: a blow, a first arrival that decays over some
// swings and weakens with distance, a slower and weaker wave behind it, and noise that does not
// care where the blow was.

/// The first swing of the first arrival over the standard deviation of the noise.
/// \param offset from shot to receiver along the line, metres, either sign
double demoSignalToNoise(double offset);

/// A record for each shot of the line, in order, its first breaks at the measured times of the
/// line. Recorders start a hundredth of a second before the shot. The same every time, and without
/// functions whose last bit depends on the system.
std::vector<WrittenShot> demoShots(const TomoDocument& line);

}  // namespace talvesk
