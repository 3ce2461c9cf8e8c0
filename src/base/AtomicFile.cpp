#include "base/AtomicFile.h"

#include "base/StreamPlace.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>
#include <algorithm>
#include <limits>
#include <locale>
#include <new>
#include <sstream>

namespace talvesk {
namespace {

Status failedTo(const char* what, const std::string& path, const QString& reason) {
  return Status::failure(std::string("Cannot ") + what + " " + path + ": " + reason.toStdString());
}

const QString kNoName = QStringLiteral("its name is not valid UTF-8 text");

Status readAll(QFile& file, const std::string& path, std::size_t limit, std::string& bytes) {
  limit = std::min(limit, std::numeric_limits<std::size_t>::max() / 4);
  // The size is a hint only: system files lie about it, and a file may grow while it is read.
  const std::size_t hint = std::min(static_cast<std::size_t>(file.size()), limit) + 1;
  std::string read(hint, '\0');
  std::size_t length = 0;
  for (;;) {
    const qint64 got = file.read(read.data() + length, static_cast<qint64>(read.size() - length));
    if (got < 0) return failedTo("read", path, file.errorString());
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
    if (length > limit) return failedTo("read", path, QStringLiteral("the file is too large"));
    if (length == read.size()) read.resize(std::min(2 * read.size(), limit + 1));
  }
  read.resize(length);
  bytes = std::move(read);
  return {};
}

}  // namespace

bool isFileName(const std::string& path) {
  return QString::fromStdString(path).toStdString() == path;
}

Status writeFileAtomically(const std::string& path, std::string_view bytes) {
  if (!isFileName(path)) return failedTo("write", path, kNoName);
  const QString name = QString::fromStdString(path);
  const QFileInfo existing(name);
  // Renaming over a device or a pipe would replace it in the file system.
  if (isStreamPlace(path)) return writeStream(path, bytes);
  if (existing.exists() && !existing.isFile()) {
    return failedTo("write", path, QStringLiteral("it is not a regular file"));
  }
  QSaveFile file(name);
  file.setDirectWriteFallback(false);
  // What stays in a buffer until the end may be lost on a full disk without a word.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    return failedTo("write", path, file.errorString());
  }
  // A full disk takes what still fits and calls it no error; what comes next is told why it failed.
  while (!bytes.empty()) {
    const qint64 written = file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    if (written <= 0) return failedTo("write", path, file.errorString());
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  if (!file.commit()) return failedTo("write", path, file.errorString());
  return {};
}

Status writeTextAtomically(const std::string& path,
                           const std::function<void(std::ostream&)>& write) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  write(text);
  if (!text) return failedTo("write", path, QStringLiteral("its text could not be put together"));
  return writeFileAtomically(path, text.str());
}

Status readWholeFile(const std::string& path, std::string& bytes, std::size_t limitBytes) {
  if (!isFileName(path)) return failedTo("read", path, kNoName);
  const QString name = QString::fromStdString(path);
  const QFileInfo info(name);
  if (!info.exists()) return failedTo("read", path, QStringLiteral("there is no such file"));
  // Opening a pipe would wait for a writer, and reading a device may never end.
  if (!info.isFile()) return failedTo("read", path, QStringLiteral("it is not a regular file"));
  if (static_cast<std::size_t>(info.size()) > limitBytes) {
    return failedTo("read", path,
                    QStringLiteral("its %1 bytes are more than the limit of %2")
                        .arg(info.size())
                        .arg(static_cast<qulonglong>(limitBytes)));
  }
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    return failedTo("read", path, file.errorString());
  }
  try {
    return readAll(file, path, limitBytes, bytes);
  } catch (const std::bad_alloc&) {
    return failedTo("read", path, QStringLiteral("there is not enough memory"));
  }
}

}  // namespace talvesk
