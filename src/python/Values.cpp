#include "python/Values.h"

#include "model/TravelTime.h"

#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

namespace py = pybind11;

namespace talvesk::python {
namespace {

/// Of the thread, while it collects.
thread_local std::optional<std::vector<std::string>> collected;

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

}  // namespace

void raiseUnless(const Status& status) {
  if (!status.ok()) throw Error(status.message());
}

void warn(const std::string& text) {
  if (collected) {
    collected->push_back(text);
    return;
  }
  if (PyErr_WarnEx(PyExc_UserWarning, text.c_str(), 1) != 0) throw py::error_already_set();
}

void collectWarnings() {
  collected.emplace();
}

std::vector<std::string> collectedWarnings() {
  return std::exchange(collected, std::nullopt).value_or(std::vector<std::string>());
}

Array arrayOf(const std::vector<double>& values) {
  return Array(static_cast<py::ssize_t>(values.size()), values.data());
}

Array tableOf(const std::vector<double>& values, std::size_t rows, std::size_t columns) {
  return Array({rows, columns}, values.data());
}

Array pointsOf(const std::vector<Point2D>& points) {
  Array array({points.size(), std::size_t{2}});
  auto out = array.mutable_unchecked<2>();
  for (std::size_t i = 0; i < points.size(); ++i) {
    out(static_cast<py::ssize_t>(i), 0) = points[i].x;
    out(static_cast<py::ssize_t>(i), 1) = points[i].z;
  }
  return array;
}

Array viewOf(const Samples& values) {
  // A copy shares the list, and whoever edits it later writes to a list of its own.
  auto owner = std::make_unique<Samples>(values);
  const double* data = owner->data();
  const auto size = static_cast<py::ssize_t>(owner->size());
  const py::capsule alive(owner.release(),
                          [](void* pointer) { delete static_cast<Samples*>(pointer); });
  Array array(size, data, alive);
  array.attr("flags").attr("writeable") = false;
  return array;
}

std::vector<double> finiteList(const GivenArray& values, const char* name) {
  if (values.ndim() != 1) throw Error(std::string(name) + " must have one dimension");
  std::vector<double> list(values.data(), values.data() + values.size());
  for (const double value : list) {
    if (!std::isfinite(value)) throw Error(std::string(name) + " must be finite numbers");
  }
  return list;
}

Array pickedTimes(const TravelTime& record) {
  std::vector<double> times = *record.ttMisurati;
  for (double& time : times) {
    if (!hasPick(time)) time = kNone;
  }
  return arrayOf(times);
}

Array computedTimes(const TravelTime& record) {
  std::vector<double> times = *record.ttCalcolati;
  for (double& time : times) {
    if (time == kNoTime) time = kNone;
  }
  return arrayOf(times);
}

Array pickErrors(const TravelTime& record) {
  std::vector<double> errors(record.ttMisurati.size(), kNone);
  for (std::size_t trace = 0; trace < errors.size(); ++trace) {
    if (record.errorOf(trace) > 0.0) errors[trace] = record.errorOf(trace);
  }
  return arrayOf(errors);
}

}  // namespace talvesk::python
