#pragma once

#include "base/Status.h"
#include "model/Certainty.h"
#include "model/EnsembleState.h"

#include <optional>

namespace talvesk {

class TomoDocument;

/// How sure the section of a project is. Without it nobody knows until it is found out again.
struct CertaintyMember {
  std::uint64_t section = 0;  ///< fingerprint of the velocities that it is about
  Certainty certainty;        ///< depths that are not reached are -1
};

/// None where it is not known.
std::optional<CertaintyMember> certaintyOf(const TomoDocument& document);
/// Gives a document, whose grid and result are there, what its project kept. Fails, with the
/// document as it was, when the member is about another section or tells what cannot be.
Status installCertainty(CertaintyMember member, TomoDocument& document);

/// What its ensemble goes on with, where the certainty has it.
std::optional<EnsembleState> ensembleStateOf(const TomoDocument& document);
/// Gives it to a certainty that is there already. Fails, with the document as it was, when it is of
/// another section or tells what cannot be.
Status installEnsembleState(EnsembleState state, TomoDocument& document);

}  // namespace talvesk
