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

Status failedToRead(const std::string& path, Message reason) {
  return Status::failure(Message::tr("Cannot read %1: %2").arg(path).arg(std::move(reason)));
}

Status failedToWrite(const std::string& path, Message reason) {
  return Status::failure(Message::tr("Cannot write %1: %2").arg(path).arg(std::move(reason)));
}

Message reasonOf(const QFileDevice& file) {
  return file.errorString().toStdString();
}

Message noName() {
  return Message::tr("its name is not valid UTF-8 text");
}

Status readAll(QFile& file, const std::string& path, std::size_t limit, std::string& bytes) {
  limit = std::min(limit, std::numeric_limits<std::size_t>::max() / 4);
  // The size is a hint only: system files lie about it, and a file may grow while it is read.
  const std::size_t hint = std::min(static_cast<std::size_t>(file.size()), limit) + 1;
  std::string read(hint, '\0');
  std::size_t length = 0;
  for (;;) {
    const qint64 got = file.read(read.data() + length, static_cast<qint64>(read.size() - length));
    if (got < 0) return failedToRead(path, reasonOf(file));
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
    if (length > limit) return failedToRead(path, Message::tr("the file is too large"));
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
  if (!isFileName(path)) return failedToWrite(path, noName());
  const QString name = QString::fromStdString(path);
  const QFileInfo existing(name);
  // Renaming over a device or a pipe would replace it in the file system.
  if (isStreamPlace(path)) return writeStream(path, bytes);
  if (existing.exists() && !existing.isFile()) {
    return failedToWrite(path, Message::tr("it is not a regular file"));
  }
  QSaveFile file(name);
  file.setDirectWriteFallback(false);
  // What stays in a buffer until the end may be lost on a full disk without a word.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    return failedToWrite(path, reasonOf(file));
  }
  // A full disk takes what still fits and calls it no error; what comes next is told why it failed.
  while (!bytes.empty()) {
    const qint64 written = file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    if (written <= 0) return failedToWrite(path, reasonOf(file));
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  if (!file.commit()) return failedToWrite(path, reasonOf(file));
  return {};
}

Status writeTextAtomically(const std::string& path,
                           const std::function<void(std::ostream&)>& write) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  write(text);
  if (!text) return failedToWrite(path, Message::tr("its text could not be put together"));
  return writeFileAtomically(path, text.str());
}

Status readWholeFile(const std::string& path, std::string& bytes, std::size_t limitBytes) {
  if (!isFileName(path)) return failedToRead(path, noName());
  const QString name = QString::fromStdString(path);
  const QFileInfo info(name);
  if (!info.exists()) return failedToRead(path, Message::tr("there is no such file"));
  // Opening a pipe would wait for a writer, and reading a device may never end.
  if (!info.isFile()) return failedToRead(path, Message::tr("it is not a regular file"));
  if (static_cast<std::size_t>(info.size()) > limitBytes) {
    return failedToRead(
        path,
        Message::tr("its %1 bytes are more than the limit of %2").arg(info.size()).arg(limitBytes));
  }
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    return failedToRead(path, reasonOf(file));
  }
  try {
    return readAll(file, path, limitBytes, bytes);
  } catch (const std::bad_alloc&) {
    return failedToRead(path, Message::tr("there is not enough memory"));
  }
}

}  // namespace talvesk
