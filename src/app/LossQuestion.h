#pragma once

#include "model/ModelLoss.h"

#include <QStringList>

class QWidget;

namespace talvesk {

namespace refractionDataStructure {
struct Interpretation;
}

/// What a command would take from the survey besides what it is for.
struct Losses {
  ModelLoss model = ModelLoss::kNothing;
  bool startingModel = false;   ///< the layers that the user gave, if any
  bool interpretation = false;  ///< the layered interpretation
  QStringList others;           ///< as words of a list
};

/// Asks whether that may be lost, by name; true at once when there is nothing to lose.
bool mayLose(QWidget* parent, const TomoDocument& document, const Losses& losses);

/// Whether the layered interpretation has curves or a profile.
bool isInterpreted(const refractionDataStructure::Interpretation& interpretation);

}  // namespace talvesk
