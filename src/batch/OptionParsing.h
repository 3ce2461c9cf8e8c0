#pragma once

#include "base/TextNumber.h"
#include "model/Parameters.h"

#include <charconv>
#include <cmath>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>

#include <CLI/CLI.hpp>

namespace talvesk {

// What the commands' options have in common.

template <typename T>
struct Range {
  T least;
  T greatest;
};

/// The whole text as a number, or false. Neither "nan" nor "12 m" nor "0x10" is one.
template <typename T>
bool readWhole(std::string_view text, T& value) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  T read{};
  const auto result = std::from_chars(text.data(), text.data() + text.size(), read);
  if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) return false;
  if (!std::isfinite(static_cast<double>(read))) return false;
  value = read;
  return true;
}

/// As help and messages write it: "0.1".
template <typename T>
std::string plainNumber(T value) {
  return formatDouble(static_cast<double>(value), 10);
}

/// The number, or CLI::ValidationError that names the range. \param what for the message
template <typename T>
T numberWithin(const std::string& what, const std::string& text, Range<T> range) {
  T value{};
  if (readWhole(text, value) && value >= range.least && value <= range.greatest) return value;
  const std::string kind = std::is_integral_v<T> ? "a whole number" : "a number";
  throw CLI::ValidationError(what, "'" + text + "' is not " + kind + " from " +
                                       plainNumber(range.least) + " to " +
                                       plainNumber(range.greatest));
}

/// An option with one number; `assign` takes it once it is in range.
template <typename T, typename Assign>
CLI::Option* addNumber(CLI::App& app, const std::string& name, const std::string& unit,
                       Range<T> range, const std::string& help, Assign assign) {
  return app
      .add_option_function<std::string>(
          name,
          [name, range, assign](const std::string& text) {
            assign(numberWithin<T>(name, text, range));
          },
          help)
      ->type_name(unit);
}

template <typename T>
constexpr Range<T> rangeOf(const Parameter<T>& parameter) {
  return {parameter.limits.least, parameter.limits.most};
}

/// "Smoothing radius, cells": what a parameter is, and its unit.
template <typename T>
std::string meaningOf(const Parameter<T>& parameter) {
  const std::string unit = parameter.unit;
  return parameter.help + (unit.empty() ? unit : ", " + unit);
}

/// "(0.01 to 1000)"
template <typename T>
std::string rangeText(const Parameter<T>& parameter) {
  return "(" + plainNumber(parameter.limits.least) + " to " + plainNumber(parameter.limits.most) +
         ")";
}

/// " (default: 250)". \param unless what comes first: "that of the project, else "
template <typename T>
std::string defaultOf(const Parameter<T>& parameter, const std::string& unless = {}) {
  return " (default: " + unless + plainNumber(parameter.initial) + ")";
}

/// An option that is a row of the table of parameters.
/// \param type stands for the value where the option is listed
template <typename T, typename Assign>
CLI::Option* addParameter(CLI::App& app, const Parameter<T>& parameter, const std::string& type,
                          const std::string& help, Assign assign) {
  return addNumber(app, std::string("--") + parameter.key, type, rangeOf(parameter), help, assign);
}

CLI::Option* addPath(CLI::App& app, const std::string& name, std::string& path,
                     const std::string& help);

/// --threads. A number that this machine has no use for is lowered, and that is told.
CLI::Option* addThreadCount(CLI::App& app, const std::string& help,
                            const std::function<void(unsigned)>& assign);

/// A path to write that must end in one of the suffixes (in lower case). Where there is no choice
/// of formats, a pipe or a device may have any name. \param anyCase whether ".PNG" ends in ".png"
/// \param pipesToo whether that holds with a choice, too: one of the formats goes without saying
CLI::Option* mustEndIn(CLI::Option* option, std::vector<std::string> suffixes, bool anyCase,
                       bool pipesToo = false);

/// "sharp" or "graded:M": metres over which jumps between layers are graded, 0 when sharp. Throws
/// CLI::ValidationError.
double readGrading(const std::string& option, const std::string& text);

/// Velocities with commas between them, m/s. Throws CLI::ValidationError.
std::vector<double> velocitiesWithin(const std::string& option, const std::string& text);

/// Breaks the help texts of a command and its subcommands into lines that fit a terminal.
void wrapHelp(CLI::App& app);

}  // namespace talvesk
