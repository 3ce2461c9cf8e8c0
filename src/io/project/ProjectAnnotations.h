#pragma once

#include "base/Status.h"
#include "model/Annotations.h"

#include <optional>

namespace talvesk {

class TomoDocument;

/// As it stands in files: kinds and patterns by their numbers.
struct AnnotationsMember {
  Annotations annotations;
};

/// None where nothing is drawn.
std::optional<AnnotationsMember> annotationsOf(const TomoDocument& document);

/// What a file says, with texts as they may stand on a sheet: without controls, and not too long.
/// Fails where any of it cannot be.
Status mendAnnotations(Annotations& annotations);

/// Gives a document the annotations of its project. Fails where any of them cannot be.
Status installAnnotations(AnnotationsMember member, TomoDocument& document);

}  // namespace talvesk
