#pragma once

#include "base/Message.h"
#include "io/project/ProjectMembers.h"

#include <string>
#include <vector>

namespace talvesk {

// Values of a project that are well formed and still cannot be: no drawing could carry them, and no
// survey needs them for anything else. They are put right or left out, each with a line in
// `repairs` for the user.

/// What the section shows.
void repairSection(SectionViewSettings& section, std::vector<Message>& repairs);

/// Title, limits and starting model of the inversion, coordinates, and what the section shows.
void repairSurvey(SurveyMember& member, std::vector<Message>& repairs);

/// Velocities that no ground has, sound or not, are held within 0.001 and 1e9 m/s. What is not
/// positive and finite is not touched.
void repairVelocities(std::vector<double>& velocities, std::vector<Message>& repairs);

/// Results of the layered interpretation that do not hang together, or lie where no line does, are
/// dropped: they can be built again. A time shift that cannot be is 0.
void repairResults(refractionDataStructure::Interpretation& interpretation,
                   std::vector<Message>& repairs);

}  // namespace talvesk
