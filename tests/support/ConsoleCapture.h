#pragma once

#include "base/Console.h"

#include <iostream>
#include <sstream>
#include <string>

namespace talvesk::testing {

/// Keeps what the system tells the console while it lives.
class ConsoleCapture {
 public:
  ConsoleCapture() {
    console::setOut(mOut);
    console::setError(mError);
  }
  ~ConsoleCapture() {
    console::setOut(std::cout);
    console::setError(std::cerr);
  }
  ConsoleCapture(const ConsoleCapture&) = delete;
  ConsoleCapture& operator=(const ConsoleCapture&) = delete;

  std::string out() const { return mOut.str(); }
  std::string error() const { return mError.str(); }

 private:
  std::ostringstream mOut;
  std::ostringstream mError;
};

}  // namespace talvesk::testing
