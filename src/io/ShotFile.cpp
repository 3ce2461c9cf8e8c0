#include "io/ShotFile.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "io/FileFormats.h"

#include <ostream>

namespace talvesk {
namespace {

Status failed(const std::string& path, Message reason, int code) {
  Message message = joined(path, std::move(reason));
  console::error() << message << std::endl;
  return Status::failure(std::move(message), code);
}

Status unknownFormat(const std::string& path) {
  return failed(path, Message::tr("its suffix is none of %1").arg(shotSuffixes()), kUnknownSuffix);
}

Status parse(const ShotFormat& format, std::string_view bytes, const std::string& path,
             SegyState& state, ShotFileData& data) {
  if (const Status read = format.read(bytes, state, data); !read.ok()) {
    return failed(path, read.text(), read.code());
  }
  data.format = format.id;
  for (const std::string& warning : data.warnings) {
    console::error() << "Warning: " << path << ": " << warning << '\n';
  }
  console::error().flush();
  return {};
}

void announce(const ShotFormat& format, const std::string& path) {
  console::out() << "opening " << format.id << " file " << path << '\n';
}

}  // namespace

Status parseShotFile(std::string_view bytes, const std::string& path, SegyState& state,
                     ShotFileData& data) {
  const ShotFormat* format = shotFormatOf(path);
  if (format == nullptr) return unknownFormat(path);
  announce(*format, path);
  return parse(*format, bytes, path, state, data);
}

Status readShotFile(const std::string& path, SegyState& state, ShotFileData& data) {
  const ShotFormat* format = shotFormatOf(path);
  if (format == nullptr) return unknownFormat(path);
  announce(*format, path);
  std::string bytes;
  if (const Status opened = readWholeFile(path, bytes); !opened.ok()) {
    Message message = Message::tr("Error while loading %1").arg(path);
    console::error() << message << std::endl;
    return Status::failure(Message::tr("%1. %2").arg(std::move(message)).arg(opened.text()));
  }
  return parse(*format, bytes, path, state, data);
}

}  // namespace talvesk
