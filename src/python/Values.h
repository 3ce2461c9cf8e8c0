#pragma once

#include "base/Point2D.h"
#include "base/Samples.h"
#include "python/Error.h"

#include <cstddef>
#include <string>
#include <vector>

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

namespace talvesk {

struct TravelTime;

namespace python {

/// As a UserWarning; raises where the user has made warnings errors.
void warn(const std::string& text);

/// From now on warnings of this thread are kept instead: Python's own way to record them is for one
/// thread at a time.
void collectWarnings();
/// Ends that, and hands out what was kept.
std::vector<std::string> collectedWarnings();

using Array = pybind11::array_t<double>;
/// What a caller gives: converted when it is of another type or order.
using GivenArray = pybind11::array_t<double, pybind11::array::c_style | pybind11::array::forcecast>;

Array arrayOf(const std::vector<double>& values);
/// \param rows, columns whose product is the number of values
Array tableOf(const std::vector<double>& values, std::size_t rows, std::size_t columns);
/// Rows of x and z.
Array pointsOf(const std::vector<Point2D>& points);
/// The values themselves, which live as long as the array does and cannot be written through it.
Array viewOf(const Samples& values);

/// One-dimensional and finite, else an Error that begins with `name`.
std::vector<double> finiteList(const GivenArray& values, const char* name);

/// Seconds; not a number where there is no pick.
Array pickedTimes(const TravelTime& record);
/// Seconds; not a number where there is no computed time.
Array computedTimes(const TravelTime& record);
/// Seconds, one standard deviation; not a number where none is known.
Array pickErrors(const TravelTime& record);

}  // namespace python
}  // namespace talvesk
