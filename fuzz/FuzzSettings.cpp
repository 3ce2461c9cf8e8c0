// Throws any bytes at the reader of settings. What it accepts must come back after it is saved.
#include "Demand.h"
#include "base/Console.h"
#include "base/Settings.h"

#include <QTemporaryDir>
#include <cstdint>
#include <fstream>
#include <string>
#include <tuple>

namespace {

auto values(const talvesk::Settings& s) {
  return std::tie(s.language, s.fillWiggle, s.zoomIn, s.cutHorizontal, s.showFiltered,
                  s.showAllTraces, s.twoColors, s.savePngHColorbar);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace talvesk;
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  static const QTemporaryDir folder;
  const std::string path = folder.filePath(QStringLiteral("settings.xml")).toStdString();
  std::ofstream(path, std::ios::binary | std::ios::trunc)
      .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
  Settings settings(path);
  if (!settings.load()) {
    demand(values(settings) == values(Settings(path)), "defaults after a failure");
    return 0;
  }
  demand(settings.save().ok(), "what was loaded can be saved");
  Settings again(path);
  demand(again.load(), "and loaded");
  demand(values(again) == values(settings), "with the same values");
  return 0;
}
