#include "python/Bindings.h"
#include "python/LineGrid.h"
#include "python/Values.h"
#include "tomo/ShortestPaths.h"
#include "tomo/fitted/FineTracer.h"

#include <cmath>
#include <optional>
#include <utility>

#include <pybind11/stl.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

/// Top-line node below a distance along the line, where the searches of an inversion start.
std::uint32_t nodeAt(const LineGrid& grid, double x) {
  const std::uint32_t node = grid.grid().geometry().topNodeIndex(grid.gridX(x));
  if (node != kNoNode) return node;
  throw Error("The grid does not reach " + std::to_string(x) + " m along the line");
}

ShortestPaths searched(const LineGrid& grid, double source) {
  ShortestPaths paths;
  paths.search(grid.grid(), nodeAt(grid, source));
  return paths;
}

std::vector<double> timesByNodes(const LineGrid& grid, double source,
                                 const std::vector<double>& receivers) {
  const ShortestPaths paths = searched(grid, source);
  std::vector<double> times;
  for (const double receiver : receivers) times.push_back(paths.distance(nodeAt(grid, receiver)));
  return times;
}

std::vector<double> timesFine(const LineGrid& grid, double source,
                              const std::vector<double>& receivers) {
  FitData data;
  FitShot shot;
  shot.source = grid.gridX(source);
  for (std::size_t i = 0; i < receivers.size(); ++i) {
    data.picks.push_back({0, static_cast<std::uint32_t>(i), 0.0, 0.0});
    shot.receivers.push_back(grid.gridX(receivers[i]));
  }
  data.shots = {std::move(shot)};
  try {
    FineTracer tracer(grid.grid().geometry(), data, 1);
    TracedRays traced;
    tracer.trace(grid.grid().slownesses(), traced, {});
    return traced.times;
  } catch (const std::out_of_range&) {
    throw Error("The grid does not reach the source or one of the receivers");
  }
}

Array travelTimes(const LineGrid& grid, double source, const GivenArray& receivers,
                  const std::string& method) {
  if (method != "nodes" && method != "fine") {
    throw Error("'" + method + "' is none of nodes, fine");
  }
  if (!std::isfinite(source)) throw Error("source must be a finite number");
  const std::vector<double> places = finiteList(receivers, "receivers");
  std::vector<double> times;
  {
    const py::gil_scoped_release free;
    times = method == "fine" ? timesFine(grid, source, places) : timesByNodes(grid, source, places);
  }
  return arrayOf(times);
}

py::list traceRays(const LineGrid& grid, double source, const GivenArray& receivers) {
  if (!std::isfinite(source)) throw Error("source must be a finite number");
  const std::vector<double> places = finiteList(receivers, "receivers");
  std::vector<std::vector<Point2D>> rays;
  {
    const py::gil_scoped_release free;
    const GridGeometry& geometry = grid.grid().geometry();
    ShortestPaths paths = searched(grid, source);
    std::vector<std::uint32_t> nodes;
    for (const double receiver : places) nodes.push_back(nodeAt(grid, receiver));
    RayTree tree;
    paths.trace(nodes, tree);
    std::vector<RayTree::Run> runs;
    for (std::size_t ray = 0; ray < nodes.size(); ++ray) {
      std::vector<Point2D> points;
      for (const std::uint32_t node : tree.nodesOf(ray, runs)) {
        points.push_back({grid.surveyX(geometry.nodeX(node)), -geometry.nodeZ(node)});
      }
      rays.push_back(std::move(points));
    }
  }
  py::list list;
  for (const std::vector<Point2D>& ray : rays) list.append(pointsOf(ray));
  return list;
}

}  // namespace

void bindRays(py::module_& module) {
  module.def("travel_times", travelTimes, py::arg("grid"), py::arg("source"), py::arg("receivers"),
             py::kw_only(), py::arg("method") = "nodes",
             "First-arrival times from a source to receivers, both distances along the line "
             "(metres) on its surface: array of seconds.\n\n"
             "method: 'nodes', from node to node as the inversion by solver passes traces; 'fine', "
             "not bound to nodes, as the fit does.");
  module.def("trace_rays", traceRays, py::arg("grid"), py::arg("source"), py::arg("receivers"),
             "The rays of method 'nodes': one array (points, 2) of x and elevation per receiver, "
             "from the source on.");
}

}  // namespace talvesk::python
