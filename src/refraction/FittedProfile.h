#pragma once

#include "base/Message.h"
#include "refraction/LayeredFit.h"
#include "refraction/SurveyProposal.h"

#include <vector>

namespace talvesk {

// A profile that is fitted to all picks of a survey. The reciprocal method draws the curves of a
// refractor along the lines of its two end shots: where these have few picks of it, or where the
// refractor changes along the line, what the lines are off grows with the way from the shot, and
// depths, velocities and computed times go with it. Here every pick has its say about the ground
// that its own wave went through.

/// Fits velocities and depths so that the times of LayeredTimes through them are those of the
/// picks: from the waves of a proposal on, which may change along the line as finely as the picks
/// carry. What the exact times are off from the simple ones of the waves is taken from the picks
/// before the waves are fitted again, until nothing gets better.
///
/// The profile has the receivers, and the shots beyond them, that lie between the first and the
/// last place with a pick of a refractor; no curves, tV and tG.
/// \param errors pickErrors()
/// \param proposal with two layers at least, of these shots. Its marks may have been changed since;
/// with a mark of a layer that its waves do not have nothing can be fitted
/// \param interpretation its marks become those of the proposal, its results the profile; as it was
/// where nothing can be fitted
/// \return how it fits; empty, total.picks is 0, where nothing can be fitted
LayeredFit fitProfile(const std::vector<ShotArrivals>& shots,
                      const std::vector<std::vector<double>>& errors,
                      const SurveyProposal& proposal,
                      refractionDataStructure::Interpretation& interpretation);

/// The proposal with as many layers as marks have, and these marks for its own: what a profile is
/// fitted from where a user has changed the marks, and by which it is known again.
/// \param errors pickErrors()
SurveyProposal proposalOfMarks(const std::vector<ShotArrivals>& shots,
                               const std::vector<std::vector<double>>& errors,
                               const std::vector<refractionDataStructure::layerStruct>& marks);

/// Says when a profile fits its picks much less than the waves of the proposal do: how much, from
/// which shot on along the line, and why, as far as that can be told. Empty when it fits about as
/// well.
/// \param fit fitOfProfile() of the interpretation
Message whyProfileFitsLess(const std::vector<ShotArrivals>& shots, const LayeredFit& fit,
                           const SurveyProposal& proposal,
                           const refractionDataStructure::Interpretation& interpretation);

}  // namespace talvesk
