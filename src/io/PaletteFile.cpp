#include "io/PaletteFile.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "io/PaletteArchive.inl"
#include "io/XmlShape.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QString>
#include <exception>
#include <ostream>
#include <sstream>

namespace talvesk {
namespace {

/// A gradient of as many stops as there may be takes fifty kilobytes.
constexpr std::size_t kLargestFile = std::size_t{1} << 20;
/// A palette needs five levels of elements, in a project one or two more.
constexpr std::size_t kMostLevels = 16;

// The second lines name the document; users and scripts know them so.

Status toldAsUnsaved(const char* what, const std::string& path, Status status) {
  console::error() << "[ERROR] Error in " << what << path << "." << std::endl
                   << "[ERROR] TomoDocument cannot be saved on disk." << std::endl;
  return status;
}

Status toldAsUnread(const std::string& path, Status status) {
  console::error() << "[ERROR] Error in loading palette" << path << "." << std::endl
                   << "[ERROR] TomoDocument cannot be read from disk." << std::endl;
  return status;
}

/// Whether a file could be begun there. Writing the whole of it may still fail.
bool canOpen(const std::string& path, Message& reason) {
  const QString name = QString::fromStdString(path);
  const QFileInfo existing(name);
  if (existing.exists() && !existing.isFile()) {
    reason = Message::tr("it is not a regular file");
    return false;
  }
  QSaveFile file(name);
  if (file.open(QIODevice::WriteOnly)) return true;  // goes out of scope without a trace
  reason = file.errorString().toStdString();
  return false;
}

}  // namespace

std::string formatPalette(const ColorPalette& palette) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  {
    cereal::XMLOutputArchive archive(stream);
    save(archive, palette);
  }  // the archive writes its text as it goes out of scope
  return stream.str();
}

Status parsePalette(std::string_view text, const std::string& name, ColorPalette& palette) {
  if (text.size() > kLargestFile) {
    return Status::failure(Message::tr("%1 is too large for a palette").arg(name));
  }
  if (Status shape = checkXmlShape(text, name, kMostLevels); !shape.ok()) return shape;
  try {
    std::istringstream stream{std::string(text)};
    cereal::XMLInputArchive archive(stream);
    load(archive, palette);
  } catch (const XmlError& error) {
    return Status::failure(Message::tr("%1 is no palette file: %2").arg(name).arg(error.reason));
  } catch (const std::exception& error) {
    return Status::failure(Message::tr("%1 is no palette file: %2").arg(name).arg(error.what()));
  }
  return {};
}

Status savePalette(const std::string& path, const ColorPalette& palette) {
  Message reason;
  if (!canOpen(path, reason)) {
    return toldAsUnsaved("opening palette ", path,
                         Status::failure(Message::tr("Cannot write %1: %2").arg(path).arg(reason)));
  }
  Status written;
  try {
    written = writeFileAtomically(path, formatPalette(palette));
  } catch (const std::exception& error) {
    written = Status::failure(Message::tr("Cannot write %1: %2").arg(path).arg(error.what()));
  }
  return written.ok() ? written : toldAsUnsaved("saving palette", path, written);
}

Status loadPalette(const std::string& path, ColorPalette& palette) {
  std::string text;
  if (Status opened = readWholeFile(path, text, kLargestFile); !opened.ok()) {
    return toldAsUnread(path, opened);
  }
  ColorPalette read;
  if (Status parsed = parsePalette(text, path, read); !parsed.ok()) {
    return toldAsUnread(path, parsed);
  }
  if (read.name.empty()) {
    read.name = QFileInfo(QString::fromStdString(path)).completeBaseName().toStdString();
  }
  palette = std::move(read);
  return {};
}

}  // namespace talvesk
