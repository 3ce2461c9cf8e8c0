#pragma once

#include "base/Status.h"
#include "model/Certainty.h"
#include "model/ChiSquare.h"
#include "model/Parameters.h"
#include "tomo/fitted/Ensemble.h"

#include <functional>
#include <memory>

namespace talvesk {

class TomoDocument;

/// What the user chooses before it is asked how sure a section is.
struct CertaintySettings {
  int members = parameters::kMembers.initial;
  int first = 0;             ///< member that this run begins with, below `members`
  EnsembleOptions ensemble;  ///< without a start: the section of the document is
  PickErrorRule errors;
  bool holdKnown = false;  ///< members are held to the document's known ground, too
  bool singleThread = false;
  unsigned threads = 0;  ///< members that are fitted at once; 0: as many as there are cores

  MemberRange range() const { return {first, members}; }
};

/// The ensemble of a document's section, with no member yet; to the last bit the one that a project
/// of it has kept members of. The document holds a grid whose rays can be traced
/// (checkTraceable()). May throw.
std::unique_ptr<Ensemble> ensembleOf(const TomoDocument& document,
                                     const CertaintySettings& settings);

/// The settings with which the section of a document was fitted; where it was not, the usual ones.
CertaintySettings certaintySettings(const TomoDocument& document);

/// The same, with the members that are done where a certainty of the document keeps them for these
/// settings.
std::unique_ptr<Ensemble> resumedEnsemble(const TomoDocument& document,
                                          const CertaintySettings& settings);

/// Whether the state of an ensemble, as a project has kept it, can be one of a document's section.
bool isStateOf(const EnsembleState& state, const TomoDocument& document);

/// Tells ensembles apart: members of ensembles with one key are the same. The section counts to a
/// millimetre per second, as it comes back from a project.
std::uint64_t ensembleKey(const TomoDocument& document, const CertaintySettings& settings);

/// What the members tell that are done; one at least counts. Its state is left out where it is too
/// large for a project.
Certainty gathered(const Ensemble& ensemble, const TomoDocument& document,
                   const CertaintySettings& settings);

/// How sure a document's section is. Whatever stops the run, what is found of members until then is
/// kept in `ensemble`, with which it can go on.
/// \param ensemble of ensembleOf() for this document and these settings
/// \param certainty out: of all members that are done; as before where there is none
/// \param progress, cancelled as of Ensemble::run(), from any thread
Status runCertainty(Ensemble& ensemble, const TomoDocument& document,
                    const CertaintySettings& settings, Certainty& certainty,
                    const std::function<void(const EnsembleProgress&)>& progress = {},
                    const std::function<bool()>& cancelled = {});

}  // namespace talvesk
