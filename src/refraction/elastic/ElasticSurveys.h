#pragma once

#include "base/Message.h"
#include "refraction/elastic/ElasticLine.h"
#include "refraction/elastic/LayeredWave.h"

#include <vector>

namespace talvesk {

class TomoDocument;

/// What the surveys say that does not go together: kinds of waves, and places on the map.
std::vector<Message> compareSurveys(const TomoDocument& p, const TomoDocument& s,
                                    const ElasticOptions& options);

/// Whether two interpretations seem to stand for each other: the first is one of S, the second one
/// of P. By the recordings where only one of them is of S waves, else by the velocities.
bool seemExchanged(const TomoDocument& p, const LayeredWave& waveP, const TomoDocument& s,
                   const LayeredWave& waveS);

}  // namespace talvesk
