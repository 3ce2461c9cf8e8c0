#pragma once

#include <iosfwd>

namespace talvesk {

/// Where the system's own diagnostics go: standard output and standard error, until a program that
/// needs its standard output for data (talvesk-batch writing JSON) sends them elsewhere.
/// Set once at start-up, before any other thread runs.
namespace console {

std::ostream& out();    ///< information; standard output by default
std::ostream& error();  ///< failures; standard error by default

void setOut(std::ostream& stream);    ///< the stream must outlive its use
void setError(std::ostream& stream);  ///< the stream must outlive its use
std::ostream& nowhere();              ///< a stream that swallows what is written to it

}  // namespace console
}  // namespace talvesk
