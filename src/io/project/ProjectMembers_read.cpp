#include "base/Console.h"
#include "io/MemberFile.h"
#include "io/project/ProjectMembers.h"
#include "io/project/ProjectMembers_records.inl"
#include "model/GeographicsCoord.h"

#include <algorithm>
#include <map>

namespace talvesk {
namespace {

constexpr std::uintmax_t kLargestTraces = std::uintmax_t{1} << 33;

/// What users of the program read in its log about projects of earlier versions. The double blanks
/// and the message for the title are those that it has always had.
void tellMissing(const std::vector<std::string>& missing) {
  static const std::map<std::string, const char*> kMessages = {
      {"has_tomographic_info", "Flag [has_tomographic_info] unknown. Set to FALSE by default."},
      {"geoCoord", "Variable [geoCoord] unknown. Set to  default."},
      {"geoCoord_isSet", "Variable [geoCoord_isSet] unknown. Set to  default."},
      {"RMSE_tomography", "Variable [RMSE_tomography] unknown. Set to  default."},
      {"info_density", "Variable [info_density] unknown. Set to  default."},
      {"title", "Variable [info_density] unknown. Set to  default."}};
  for (const std::string& name : missing) {
    const auto message = kMessages.find(name);
    if (message != kMessages.end()) console::log(message->second);
  }
}

bool contains(const std::vector<std::string>& names, const char* name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// The survey and the section's settings are one element list.
struct SurveyRecord {
  TomoDocument& document;
  SectionViewSettings& section;
  std::vector<InversionRecord>& runs;
};

template <class V>
void describe(V& fields, SurveyRecord& record) {
  describeSurvey(fields, record.document, record.section, record.runs);
}

}  // namespace

int readSurvey(const std::string& path, SurveyMember& member, Message& why) {
  return readMember(path, "TomoDocument", kLargestMember, why, [&](XmlReader& reader) {
    SurveyMember read;
    SurveyRecord record{read.document, read.section, read.runs};
    const std::vector<std::string> missing = xml::readRecord(reader, record);
    tellMissing(missing);
    if (contains(missing, "geoCoord")) read.document.map.edit().geoCoord_isSet = false;
    read.hasInformationDensity = !contains(missing, "info_density");
    read.hasCoverageLimit = !contains(missing, "coverage_limit");
    member = std::move(read);
  });
}

int readGrid(const std::string& path, GridMember& member, Message& why) {
  return readMember(path, "Grid", kLargestMember, why, [&](XmlReader& reader) {
    GridMember read;
    xml::readRecord(reader, read);
    member = std::move(read);
  });
}

int readTraces(const std::string& path, TracesMember& member, Message& why) {
  return readMember(path, "Traces", kLargestTraces, why, [&](XmlReader& reader) {
    TracesMember read;
    const std::vector<std::string> missing = xml::readRecord(reader, read);
    if (contains(missing, "filenames_DX") || contains(missing, "filenames_SX")) {
      read.filenames_DX.clear();
      read.filenames_SX.clear();
      console::log("[No DX and SX filenames.] This is a project saved before version 2019.1");
    }
    if (contains(missing, "filtered")) {
      console::log("[No filtered traces] This is a project saved before version 2019.1");
    }
    member = std::move(read);
  });
}

int readRefraction(const std::string& path, refractionDataStructure::Interpretation& interpretation,
                   Message& why) {
  return readMember(path, "Refraction data", kLargestMember, why, [&](XmlReader& reader) {
    refractionDataStructure::Interpretation read;
    xml::readRecord(reader, read);
    takeSigns(read);
    interpretation = std::move(read);
  });
}

}  // namespace talvesk
