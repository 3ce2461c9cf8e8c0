#include "export/campaign/CampaignPage.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "python/Bindings.h"
#include "python/Result.h"
#include "python/Values.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

// What the page of a campaign shows of a line travels between processes, and so is a dict on the
// way.

namespace py = pybind11;

namespace talvesk::python {
namespace {

py::bytes bytesOf(const std::vector<float>& values) {
  return {reinterpret_cast<const char*>(values.data()), values.size() * sizeof(float)};
}

std::vector<float> floatsOf(const std::string& bytes) {
  std::vector<float> values(bytes.size() / sizeof(float));
  if (!values.empty()) std::memcpy(values.data(), bytes.data(), values.size() * sizeof(float));
  const std::size_t pixels = SmallSection::kColumns * SmallSection::kRows;
  if (!values.empty() && values.size() != pixels) throw Error("The small section is no picture");
  return values;
}

py::dict lineOf(const Survey& survey) {
  const CampaignLine line = campaignLineOf(survey.document, {});
  py::dict values;
  values["inverted"] = line.inverted;
  values["shots"] = line.shots;
  values["geophones"] = line.geophones;
  values["picks"] = line.picks;
  values["has_section"] = line.hasSection;
  values["misfit"] = py::make_tuple(line.misfit.count, line.misfit.rmse, line.misfit.relativeRms);
  values["fit"] = py::make_tuple(line.fit.count, line.fit.chi2);
  values["length"] = line.length;
  values["depth"] = line.depth;
  values["covered"] = line.covered;
  values["section"] = bytesOf(line.section.velocities);
  if (line.ends) {
    const auto& [first, last] = *line.ends;
    values["ends"] =
        std::vector<double>{first.longitude, first.latitude, last.longitude, last.latitude};
  }
  return values;
}

void takeValues(const py::dict& values, CampaignLine& line) {
  line.inverted = values["inverted"].cast<std::string>();
  line.shots = values["shots"].cast<std::size_t>();
  line.geophones = values["geophones"].cast<std::size_t>();
  line.picks = values["picks"].cast<std::size_t>();
  line.hasSection = values["has_section"].cast<bool>();
  const auto misfit = values["misfit"].cast<py::tuple>();
  line.misfit.count = misfit[0].cast<int>();
  line.misfit.rmse = misfit[1].cast<double>();
  line.misfit.relativeRms = misfit[2].cast<double>();
  const auto fit = values["fit"].cast<py::tuple>();
  line.fit.count = fit[0].cast<std::size_t>();
  line.fit.chi2 = fit[1].cast<double>();
  line.length = values["length"].cast<double>();
  line.depth = values["depth"].cast<double>();
  line.covered = values["covered"].cast<double>();
  line.section.velocities = floatsOf(values["section"].cast<std::string>());
  if (values.contains("ends")) {
    const auto ends = values["ends"].cast<std::array<double, 4>>();
    line.ends = {LonLat{ends[0], ends[1]}, LonLat{ends[2], ends[3]}};
  }
}

/// \param lines of each its name, why it failed, its files, its notes, and what lineOf() tells
void writePage(const std::filesystem::path& path,
               const std::vector<std::tuple<std::string, std::string, std::vector<std::string>,
                                            std::vector<std::string>, py::dict>>& lines) {
  std::vector<CampaignLine> all;
  for (const auto& [name, failure, files, notes, values] : lines) {
    CampaignLine line = failedLine(name, failure);
    line.files = files;
    line.notes = notes;
    if (failure.empty()) takeValues(values, line);
    all.push_back(std::move(line));
  }
  raiseUnless(writeCampaignPage(path.string(), all, {}));
}

/// Whether a file holds picks, in whatever format, with or without a unit of its times.
bool holdsPicks(const std::filesystem::path& path) {
  TravelTimeData data;
  return holdsTravelTimes(path.string()) || asksForTimeUnit(path.string()) ||
         readTravelTimes(path.string(), data).ok();
}

}  // namespace

void bindCampaign(py::module_& module) {
  module.def("_campaign_line", lineOf);
  module.def("_write_campaign_page", writePage);
  module.def("_holds_picks", holdsPicks);
}

}  // namespace talvesk::python
