#include "base/Console.h"
#include "python/Bindings.h"
#include "python/Values.h"

#include <pybind11/stl.h>

namespace py = pybind11;

// The compiled half of the package `talvesk`; the other half is Python, in the folder beside.
PYBIND11_MODULE(_talvesk, module) {
  using namespace talvesk;
  // What the engine says while it works is for terminals.
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  module.attr("__version__") = TALVESK_VERSION;
  py::register_exception<python::Error>(module, "Error", PyExc_RuntimeError).doc() =
      "What went wrong, in the program's own words.";
  module.def("_collect_warnings", python::collectWarnings);
  module.def("_collected_warnings", python::collectedWarnings);
  python::bindSurvey(module);
  python::bindMends(module);
  python::bindPositions(module);
  python::bindGrid(module);
  python::bindInversion(module);
  python::bindCertainty(module);
  python::bindEnsemble(module);
  python::bindRays(module);
  python::bindLayers(module);
  python::bindCampaign(module);
}
