#pragma once

#include "base/Status.h"

#include <stdexcept>

namespace talvesk::python {

/// What talvesk raises: the program's own message. Python knows it as talvesk.Error.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

void raiseUnless(const Status& status);

}  // namespace talvesk::python
