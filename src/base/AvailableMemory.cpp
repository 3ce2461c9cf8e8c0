#include "base/AvailableMemory.h"

#include <fstream>
#include <limits>
#include <locale>
#include <string>

namespace talvesk {

double availableMemory() {
  std::ifstream file("/proc/meminfo");
  file.imbue(std::locale::classic());
  std::string key;
  double kibibytes = 0.0;
  while (file >> key >> kibibytes) {
    if (key == "MemAvailable:") return kibibytes * 1024.0;
    file.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
  }
  return std::numeric_limits<double>::infinity();
}

}  // namespace talvesk
