#include "base/History.h"

#include "base/AtomicFile.h"
#include "base/Console.h"

#include <QDir>
#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

constexpr std::size_t kMostBytes = std::size_t{1} << 20;  // far above any path

}  // namespace

std::string History::readHistory() const {
  std::string bytes;
  if (!readWholeFile(mPath, bytes, kMostBytes).ok()) {
    console::error() << "ERROR while trying to read history file." << std::endl;
    return QDir::homePath().toStdString();
  }
  bytes.resize(std::min(bytes.find('\n'), bytes.size()));
  if (!bytes.empty() && bytes.back() == '\r') bytes.pop_back();
  return bytes;
}

void History::saveHistory(const std::string& folder) const {
  if (!writeFileAtomically(mPath, folder).ok()) {
    console::error() << "ERROR while trying to save history file." << std::endl;
  }
}

}  // namespace talvesk
