#include "base/AtomicFile.h"
#include "batch/Commands.h"
#include "batch/DemoLine.h"
#include "batch/DemoShots.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "io/GeometryFile.h"
#include "io/Seg2Writer.h"
#include "io/TravelTimeFile.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <filesystem>
#include <ostream>
#include <system_error>

namespace talvesk {
namespace {

/// The files of the demo line: picks, positions, and a record per shot.
struct DemoPlaces {
  std::string picks;
  std::string geophones;
  std::string shots;
  std::vector<std::string> records;

  DemoPlaces(const std::filesystem::path& folder, std::size_t shotCount)
      : picks((folder / "demo.otte").string()),
        geophones((folder / "geophones.csv").string()),
        shots((folder / "shots.csv").string()) {
    for (std::size_t i = 1; i <= shotCount; ++i) {
      const std::string number = std::to_string(i);
      records.push_back(
          (folder / ("shot" + std::string(2 - number.size(), '0') + number + ".sg2")).string());
    }
  }

  std::vector<OutputFile> all() const {
    std::vector<OutputFile> files = {{"DIR", picks}, {"DIR", geophones}, {"DIR", shots}};
    for (const std::string& record : records) files.push_back({"DIR", record});
    return files;
  }
};

Status writePositions(const TomoDocument& line, const DemoPlaces& places) {
  constexpr const char* kSeparator = ";";
  GeometryRecords geophones;
  for (const Point2D& point : line.line->goephonesStringSet.front()) {
    geophones.push_back({point.x, point.z});
  }
  GeometryRecords shots;
  std::vector<std::string> labels;
  for (const TravelTime& record : line.ttArray) {
    labels.push_back(kShotLabel + std::to_string(shots.size() + 1));
    shots.push_back({record.shotPos2d.x, record.shotPos2d.z});
  }
  Status status = writeRecords(places.geophones, kSeparator, geophones);
  if (status.ok()) status = writeLabelledRecords(places.shots, kSeparator, labels, shots);
  return status;
}

Status writeRecords(const TomoDocument& line, const DemoPlaces& places) {
  const std::vector<WrittenShot> records = demoShots(line);
  for (std::size_t i = 0; i < records.size(); ++i) {
    Status status = writeFileAtomically(places.records[i], formatSeg2(records[i]));
    if (!status.ok()) return status;
  }
  return {};
}

}  // namespace

int run(const DemoOptions& options) {
  const Channels channels = openChannels({}, options.quiet);
  const std::filesystem::path folder(options.folder);
  std::error_code error;
  if (!isFileName(options.folder)) {
    return failed("Cannot make the folder " + options.folder +
                  ": its name is not valid UTF-8 text");
  }
  std::filesystem::create_directories(folder, error);
  if (!std::filesystem::is_directory(folder)) {
    return failed("Cannot make the folder " + options.folder + ": " +
                  (error ? error.message() : "something else has that name"));
  }
  const DemoPlaces places(folder, demoShotCount());
  Status status = checkOutputFiles(places.all(), {});
  if (!status.ok()) return failed(status.message());
  const TomoDocument line = demoLine();
  status = writeTravelTimes(places.picks, line);
  if (status.ok()) status = writePositions(line, places);
  if (status.ok()) status = writeRecords(line, places);
  if (!status.ok()) return failed(status.message());
  *channels.summary << "Wrote " << places.picks << ", the positions " << places.geophones << " and "
                    << places.shots << ", and the shots " << places.records.front() << " to "
                    << places.records.back() << std::endl;
  return kDone;
}

}  // namespace talvesk
