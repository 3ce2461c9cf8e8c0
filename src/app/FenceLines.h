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
};

/// Stands lines at their places on the map, straight from the first geophone to the last one, in
/// the system of the first that has a place.
/// \param leftOut a line for each that cannot stand there, and why
FenceScene fenceOf(const std::vector<FenceLine>& lines, QStringList& leftOut);

}  // namespace talvesk
