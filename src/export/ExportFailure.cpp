#include "export/ExportFailure.h"

#include "base/Console.h"

#include <ostream>
#include <utility>

namespace talvesk {

Status cannotWrite(const std::string& path, const Message& reason) {
  return told(Status::failure(Message::tr("Cannot write %1: %2").arg(path).arg(reason)));
}

Status told(Status written) {
  if (!written.ok()) console::error() << written.message() << std::endl;
  return written;
}

}  // namespace talvesk
