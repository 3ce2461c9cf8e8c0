#pragma once

#include "base/Status.h"

#include <QByteArray>
#include <string>
#include <vector>

namespace talvesk {

struct ZipMember {
  std::string name;  ///< UTF-8, with '/' between folders
  QByteArray bytes;
  bool compress = true;
};

/// Packs members into the bytes of a zip file, in their order.
Status zipBytes(const std::vector<ZipMember>& members, QByteArray& bytes);

}  // namespace talvesk
