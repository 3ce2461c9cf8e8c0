#pragma once

#include "base/Console.h"

#include <iostream>
#include <sstream>

namespace talvesk::testing {

/// Takes what the console's two streams are sent while it lives.
class CapturedConsole {
 public:
  CapturedConsole() {
    console::setOut(mOut);
    console::setError(mError);
  }
  ~CapturedConsole() {
    console::setOut(std::cout);
    console::setError(std::cerr);
  }
  CapturedConsole(const CapturedConsole&) = delete;
  CapturedConsole& operator=(const CapturedConsole&) = delete;

  std::string out() const { return mOut.str(); }
  std::string error() const { return mError.str(); }

 private:
  std::ostringstream mOut;
  std::ostringstream mError;
};

}  // namespace talvesk::testing
