#include "batch/Commands.h"
#include "batch/DemoLine.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "io/TravelTimeFile.h"

#include <filesystem>
#include <ostream>
#include <system_error>

namespace talvesk {

int run(const DemoOptions& options) {
  const Channels channels = openChannels(options.quiet);
  const std::filesystem::path folder(options.folder);
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!std::filesystem::is_directory(folder)) {
    return failed("Cannot make the folder " + options.folder + ": " +
                  (error ? error.message() : "something else has that name"));
  }
  const std::string path = (folder / "demo.otte").string();
  Status status = checkOutputFiles({{"DIR", path}}, {});
  if (status.ok()) status = writeTravelTimes(path, demoLine());
  if (!status.ok()) return failed(status.message());
  *channels.summary << "Wrote " << path << std::endl;
  return kDone;
}

}  // namespace talvesk
