#include "base/PrivateFolder.h"

#include <sys/stat.h>

namespace talvesk {

bool createPrivateFolder(const std::string& path) {
  return ::mkdir(path.c_str(), S_IRWXU) == 0;
}

}  // namespace talvesk
