#pragma once

#include <functional>
#include <iosfwd>
#include <string>

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

/// Takes a line, without its line end, that belongs in the log file. Threads call it at once.
using Logger = std::function<void(const std::string& line, bool isError)>;
/// Where log() and logError() put their lines beside the console; none by default. Like the
/// streams, it is set while no other thread writes.
void setLogger(Logger logger);
/// Writes a line to out(), as it is, and hands it to the logger.
void log(const std::string& line);
/// The same to error().
void logError(const std::string& line);

/// As long as it lives, what its thread writes to out() and log() goes nowhere: for a computation
/// that repeats another one many times over, of which only the first is told.
class Silence {
 public:
  Silence();
  ~Silence();
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  bool mBefore;
};

}  // namespace console
}  // namespace talvesk
