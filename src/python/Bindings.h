#pragma once

#include <pybind11/pybind11.h>

namespace talvesk::python {

// What each source of the room adds to the module. A class comes before who takes or returns it.
void bindSurvey(pybind11::module_& module);
void bindMends(pybind11::module_& module);
void bindPositions(pybind11::module_& module);
void bindGrid(pybind11::module_& module);
void bindInversion(pybind11::module_& module);
void bindCertainty(pybind11::module_& module);
void bindEnsemble(pybind11::module_& module);
void bindRays(pybind11::module_& module);
void bindLayers(pybind11::module_& module);
void bindCampaign(pybind11::module_& module);

}  // namespace talvesk::python
