#pragma once

#include "base/Status.h"
#include "io/SegyFile.h"
#include "io/project/ProjectMembers.h"

#include <cstddef>
#include <string>
#include <vector>

namespace talvesk {

// From the members of a project to a survey that the program can work with. Sizes and indexes are
// checked against each other before anything uses them; a failure says what does not fit.

/// Positions, spreads and settings. What the survey can do without is put right, see
/// ProjectRepair.h. \param repairs one line is added for each thing that was put right or left out
Status checkSurvey(SurveyMember& member, std::vector<Message>& repairs);

/// Builds the grid under the survey and restores what an inversion left with it.
/// \param repairs as in checkSurvey()
Status installGrid(GridMember grid, SurveyMember& survey, std::vector<Message>& repairs);

/// Puts the traces into the document, from the member or from the shot files in `folder` (ending in
/// "/"), where the document's file names then point. A shot file that is missing, fails or is not
/// the one that was saved leaves its traces empty and a warning; that is no failure. The files are
/// read as the first ones of a program are, whatever it read before. Names of shot files that lead
/// out of the folder are forgotten, and picks that can be none are dropped.
/// \param state out: what their readers remember of them
/// \param repairs as in checkSurvey()
Status installTraces(TracesMember member, const std::string& folder, TomoDocument& document,
                     SegyState& state, std::vector<Message>& warnings,
                     std::vector<Message>& repairs);

/// Layers that name shots or layers which do not exist are refused; results that do not hang
/// together are dropped, they can be built again.
/// \param repairs as in checkSurvey()
Status checkInterpretation(const TomoDocument& document,
                           refractionDataStructure::Interpretation& interpretation,
                           std::vector<Message>& repairs);

/// The shot files of one trace set: one file, or the two of a pair.
struct SetFiles {
  std::string main;
  std::string dx;
  std::string sx;

  bool isPair() const { return !dx.empty() && !sx.empty(); }
  bool none() const { return main.empty() && !isPair(); }
};
SetFiles filesOfSet(const std::vector<std::string>& main, const std::vector<std::string>& dx,
                    const std::vector<std::string>& sx, std::size_t set);

/// Reads the traces of one set again from the files of these bare names in `folder`. Both the
/// loader and the writer, who wants to know what the loader will see, use it. False, with a reason,
/// and `state` as before, when a file is missing or fails, or the files of a pair do not match.
bool readSetFiles(const std::string& folder, const SetFiles& names, SegyState& state,
                  TraceSet& traces, Message& why);

}  // namespace talvesk
