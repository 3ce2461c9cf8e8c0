#include "export/ExportFailure.h"

#include "base/Console.h"

#include <ostream>
#include <utility>

namespace talvesk {

Status cannotWrite(const std::string& path, const std::string& reason) {
  return told(Status::failure("Cannot write " + path + ": " + reason));
}

Status told(Status written) {
  if (!written.ok()) console::error() << written.message() << std::endl;
  return written;
}

}  // namespace talvesk
