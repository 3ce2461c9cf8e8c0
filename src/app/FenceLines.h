#pragma once

#include "model/TomoDocument.h"
#include "view/FenceScene.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace talvesk {

/// A line that is to stand in a fence.
struct FenceLine {
  QString name;
  TomoDocument document;
  QString path{};  ///< of its project, canonical; empty where it is in none
};

/// What users are told of lines that do not stand in a fence as their projects have them, a text
/// for each.
struct FenceNotes {
  QStringList leftOut;    ///< that cannot stand there, and why
  QStringList converted;  ///< whose places are of another system than that of the fence
};

/// Stands lines at their places on the map, along the course that they have there, in the system of
/// the first that has a place.
FenceScene fenceOf(const std::vector<FenceLine>& lines, FenceNotes& notes);

}  // namespace talvesk
