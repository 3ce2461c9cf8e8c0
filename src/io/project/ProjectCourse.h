#pragma once

#include "base/Status.h"
#include "model/MapCourse.h"

#include <optional>

namespace talvesk {

class TomoDocument;

/// The way of a document's line on the map; none where its map position tells it.
std::optional<MapCourse> courseMemberOf(const TomoDocument& document);

/// Gives a document, which has its map position, the course of its project. Fails where it is none
/// or belongs to another map position: programs that do not know the one may have set the other.
Status installCourse(MapCourse course, TomoDocument& document);

}  // namespace talvesk
