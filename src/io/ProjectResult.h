#pragma once

#include "base/Status.h"
#include "io/ProjectMembers.h"

namespace talvesk {

/// What a project keeps of the last inversion beside the section.
ResultMember resultOf(const TomoDocument& document);

/// Gives a document, whose grid and inversion record are there, what its project kept. Fails, with
/// the document as it was, when that does not go with its grid and run.
Status installResult(ResultMember result, TomoDocument& document);

}  // namespace talvesk
