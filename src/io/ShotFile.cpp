#include "io/ShotFile.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "io/Seg2File.h"

#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

enum class Format { kNone, kSeg2, kSegy, kSu };

Format formatOf(const std::string& path) {
  const std::size_t dot = path.find_last_of("./\\");
  if (dot == std::string::npos || path[dot] != '.') return Format::kNone;
  std::string suffix = path.substr(dot + 1);
  std::transform(suffix.begin(), suffix.end(), suffix.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  if (suffix == "seg2" || suffix == "dat" || suffix == "sg2") return Format::kSeg2;
  if (suffix == "sgy" || suffix == "segy") return Format::kSegy;
  if (suffix == "su") return Format::kSu;
  return Format::kNone;
}

const char* nameOf(Format format) {
  if (format == Format::kSeg2) return "seg2";
  return format == Format::kSegy ? "segy" : "su";
}

Status failed(const std::string& path, Message reason, int code) {
  Message message = joined(path, std::move(reason));
  console::error() << message << std::endl;
  return Status::failure(std::move(message), code);
}

Status unknownFormat(const std::string& path) {
  return failed(path, Message::tr("its suffix is none of seg2, dat, sg2, sgy, segy, su"),
                kUnknownSuffix);
}

Status readAs(Format format, std::string_view bytes, SegyState& state, ShotFileData& data) {
  if (format == Format::kSeg2) return readSeg2(bytes, data);
  return format == Format::kSegy ? readSegy(bytes, state, data) : readSu(bytes, state, data);
}

Status parse(Format format, std::string_view bytes, const std::string& path, SegyState& state,
             ShotFileData& data) {
  if (const Status read = readAs(format, bytes, state, data); !read.ok()) {
    return failed(path, read.text(), read.code());
  }
  for (const std::string& warning : data.warnings) {
    console::error() << "Warning: " << path << ": " << warning << '\n';
  }
  console::error().flush();
  return {};
}

void announce(Format format, const std::string& path) {
  console::out() << "opening " << nameOf(format) << " file " << path << '\n';
}

}  // namespace

bool hasShotFileSuffix(const std::string& path) {
  return formatOf(path) != Format::kNone;
}

Status parseShotFile(std::string_view bytes, const std::string& path, SegyState& state,
                     ShotFileData& data) {
  const Format format = formatOf(path);
  if (format == Format::kNone) return unknownFormat(path);
  announce(format, path);
  return parse(format, bytes, path, state, data);
}

Status readShotFile(const std::string& path, SegyState& state, ShotFileData& data) {
  const Format format = formatOf(path);
  if (format == Format::kNone) return unknownFormat(path);
  announce(format, path);
  std::string bytes;
  if (const Status opened = readWholeFile(path, bytes); !opened.ok()) {
    Message message = Message::tr("Error while loading %1").arg(path);
    console::error() << message << std::endl;
    return Status::failure(Message::tr("%1. %2").arg(std::move(message)).arg(opened.text()));
  }
  return parse(format, bytes, path, state, data);
}

}  // namespace talvesk
