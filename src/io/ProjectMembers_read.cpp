#include "base/Console.h"
#include "io/ProjectMembers.h"
#include "io/ProjectMembers_records.inl"
#include "model/GeographicsCoord.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <new>
#include <system_error>

namespace talvesk {
namespace {

// Larger than any survey gives. What is read takes a few times its member in memory, so these also
// keep an archive of a few megabytes from filling the machine.
constexpr std::uintmax_t kLargestMember = std::uintmax_t{1} << 29;
constexpr std::uintmax_t kLargestTraces = std::uintmax_t{1} << 33;

/// \param what the member, as its messages call it
int readMember(const std::string& path, const char* what, std::uintmax_t largest, Message& why,
               const std::function<void(XmlReader&)>& read) {
  const auto fail = [&](const Message& reason) {
    why = joined(bareName(path), reason);
    console::logError(std::string("[ERROR] ") + what + " cannot be read from disk.");
    return 1;
  };
  std::ifstream stream(path, std::ios::binary);
  if (!stream.is_open()) {
    console::logError("[ERROR] Error in opening " + path + ".");
    return fail(Message::tr("it is missing"));
  }
  std::error_code error;
  if (std::filesystem::file_size(path, error) > largest || error) {
    return fail(Message::tr("it is too large"));
  }
  try {
    XmlReader reader(stream, "cereal");
    read(reader);
    return 0;
  } catch (const std::bad_alloc&) {
    return fail(Message::tr("there is not enough memory"));
  } catch (const XmlError& failure) {
    return fail(failure.reason);
  } catch (const std::exception& failure) {
    return fail(failure.what());
  }
}

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

int readResult(const std::string& path, ResultMember& result, Message& why) {
  return readMember(path, "Result", kLargestMember, why, [&](XmlReader& reader) {
    ResultMember read;
    xml::readRecord(reader, read);
    result = std::move(read);
  });
}

}  // namespace talvesk
