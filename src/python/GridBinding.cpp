#include "io/Survey.h"
#include "python/Bindings.h"
#include "python/LineGrid.h"
#include "python/Values.h"

#include <cmath>
#include <memory>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

using LayerTuple = std::array<double, 4>;

std::vector<VelocityLayer> layersOf(const std::vector<LayerTuple>& tuples) {
  std::vector<VelocityLayer> layers;
  for (const LayerTuple& one : tuples) layers.push_back({one[0], one[2], one[1], one[3]});
  return layers;
}

LineGrid withVelocity(const LineGrid& grid, const GivenArray& velocity) {
  const Grid& cells = grid.grid();
  if (velocity.ndim() != 2 || velocity.shape(0) != static_cast<py::ssize_t>(cells.righe()) ||
      velocity.shape(1) != static_cast<py::ssize_t>(cells.col())) {
    throw Error("velocity must be an array of " + std::to_string(cells.righe()) + " rows and " +
                std::to_string(cells.col()) + " columns");
  }
  LineGrid next = grid;
  Grid& written = next.model.edit().editGrid();
  for (std::uint32_t cell = 0; cell < written.cellCount(); ++cell) {
    const double value = velocity.data()[cell];
    if (!(value > 0.0) || !std::isfinite(value)) {
      throw Error("velocity must be positive numbers, m/s");
    }
    written.setSlowness(cell, 1.0 / value);
  }
  const Message invalid = written.invalidSlowness();
  if (!invalid.empty()) throw Error(invalid.english());
  return next;
}

Array cellX(const LineGrid& grid) {
  std::vector<double> x(grid.grid().col());
  for (std::uint32_t i = 0; i < x.size(); ++i) x[i] = grid.surveyX(grid.grid().cellCentre(i).x);
  return arrayOf(x);
}

Array cellZ(const LineGrid& grid) {
  std::vector<double> z(grid.grid().cellCount());
  for (std::uint32_t i = 0; i < z.size(); ++i) z[i] = -grid.grid().cellCentre(i).z;
  return tableOf(z, grid.grid().righe(), grid.grid().col());
}

Array cornerX(const LineGrid& grid) {
  const GridGeometry& geometry = grid.grid().geometry();
  std::vector<double> x(geometry.col() + 1);
  for (std::uint32_t i = 0; i < x.size(); ++i) x[i] = grid.surveyX(geometry.sideX(i));
  return arrayOf(x);
}

Array cornerZ(const LineGrid& grid) {
  const GridGeometry& geometry = grid.grid().geometry();
  std::vector<double> z;
  for (std::uint32_t line = 0; line <= geometry.righe(); ++line) {
    for (std::uint32_t i = 0; i <= geometry.col(); ++i) {
      z.push_back(-geometry.lineZ(line, i * (geometry.nV() - 1)));
    }
  }
  return tableOf(z, geometry.righe() + 1, geometry.col() + 1);
}

}  // namespace

void bindGrid(py::module_& module) {
  py::class_<LineGrid>(
      module, "Grid",
      "Square cells under a line, following its surface, and their velocities. Arrays have a row "
      "per depth, from the surface down, and a column per distance.")
      .def(py::init([](const Survey& survey, const std::optional<double>& cell,
                       const std::optional<double>& depth, int nodes,
                       const std::vector<LayerTuple>& layers) {
             return buildLineGrid(survey, {cell, depth, nodes, layersOf(layers)});
           }),
           py::arg("survey"), py::arg("cell") = py::none(), py::arg("depth") = py::none(),
           py::arg("nodes") = parameters::kNodes.initial,
           py::arg("layers") = std::vector<LayerTuple>(),
           "cell, depth: metres, proposed from the survey where not given. nodes: per cell side.\n"
           "layers: (top, bottom, velocity at the top, velocity at the bottom) in metres below the "
           "surface and m/s; else velocities grow with depth.")
      .def("__repr__",
           [](const LineGrid& grid) {
             return "<talvesk.Grid: " + std::to_string(grid.grid().righe()) + " rows, " +
                    std::to_string(grid.grid().col()) + " columns>";
           })
      .def("with_velocity", withVelocity, py::arg("velocity"),
           "A grid of the same cells with other velocities: array (rows, columns), m/s.")
      .def_property_readonly("shape",
                             [](const LineGrid& grid) {
                               return py::make_tuple(grid.grid().righe(), grid.grid().col());
                             })
      .def_property_readonly(
          "cell", [](const LineGrid& grid) { return grid.grid().aLato(); },
          "Side of a cell, metres.")
      .def_property_readonly(
          "nodes", [](const LineGrid& grid) { return grid.grid().nV(); },
          "Nodes per cell side, corners included.")
      .def_property_readonly(
          "velocity",
          [](const LineGrid& grid) {
            return tableOf(grid.grid().velocities(), grid.grid().righe(), grid.grid().col());
          },
          "m/s: array (rows, columns).")
      .def_property_readonly("x", cellX, "Distance of the centres of the columns, metres.")
      .def_property_readonly("z", cellZ, "Elevation of the centres: array (rows, columns).")
      .def_property_readonly("corner_x", cornerX, "Distance of the corners: columns + 1.")
      .def_property_readonly("corner_z", cornerZ,
                             "Elevation of the corners: array (rows + 1, columns + 1).");
}

}  // namespace talvesk::python
