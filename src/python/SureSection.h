#pragma once

#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "python/Values.h"

#include <vector>

#include <pybind11/pybind11.h>

namespace talvesk {

struct EnsembleProgress;

namespace python {

/// How sure a section is, in the survey that it belongs to.
struct SureSection {
  Survey survey;

  const Certainty& certainty() const { return *survey.document.result->certainty; }
  const Grid& grid() const { return *survey.document.model->grid; }
  Array perCell(const std::vector<double>& values) const {
    return tableOf(values, grid().righe(), grid().col());
  }
};

/// What a progress callback is called with.
pybind11::dict valuesOf(const EnsembleProgress& state);

/// Velocities whose depths are asked for, m/s; an Error where one is out of range.
std::vector<double> checkedIsovalues(std::vector<double> isovalues);

}  // namespace python
}  // namespace talvesk
