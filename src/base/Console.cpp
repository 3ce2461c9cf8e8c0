#include "base/Console.h"

#include <iostream>
#include <utility>

namespace talvesk::console {
namespace {

struct Streams {
  std::ostream* out = &std::cout;
  std::ostream* error = &std::cerr;
  Logger logger;
};

Streams& streams() {
  static Streams instance;
  return instance;
}

thread_local bool silent = false;

/// One for every thread: writing to a stream changes its state.
std::ostream& silence() {
  static thread_local std::ostream stream(nullptr);
  return stream;
}

void writeLine(std::ostream& stream, const std::string& line, bool isError) {
  stream << line << std::endl;
  if (streams().logger) streams().logger(line, isError);
}

}  // namespace

std::ostream& out() {
  return silent ? silence() : *streams().out;
}
std::ostream& error() {
  return *streams().error;
}
void setOut(std::ostream& stream) {
  streams().out = &stream;
}
void setError(std::ostream& stream) {
  streams().error = &stream;
}

std::ostream& nowhere() {
  static std::ostream stream(nullptr);
  return stream;
}

void setLogger(Logger logger) {
  streams().logger = std::move(logger);
}
void log(const std::string& line) {
  if (silent) return;
  writeLine(out(), line, false);
}
void logError(const std::string& line) {
  writeLine(error(), line, true);
}

Silence::Silence() : mBefore(silent) {
  silent = true;
}
Silence::~Silence() {
  silent = mBefore;
}

}  // namespace talvesk::console
