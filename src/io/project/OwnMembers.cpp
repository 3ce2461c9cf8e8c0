#include "io/project/OwnMembers.h"

#include "base/AtomicFile.h"
#include "io/MemberFile.h"
#include "io/project/ProjectAnnotations.h"
#include "io/project/ProjectCertainty.h"
#include "io/project/ProjectCourse.h"
#include "io/project/ProjectFilters.h"
#include "io/project/ProjectFirstLayer.h"
#include "io/project/ProjectKnownGround.h"
#include "io/project/ProjectMembers.h"
#include "io/project/ProjectMembers_records.inl"
#include "io/project/ProjectMends.h"
#include "io/project/ProjectPicks.h"
#include "io/project/ProjectReaders.h"
#include "io/project/ProjectResult.h"
#include "io/project/ProjectRuns.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

namespace talvesk {
namespace {

namespace fs = std::filesystem;
using refractionDataStructure::Interpretation;

enum class Written { kNothing, kDone, kFailed };

struct OwnMember {
  const char* name;
  std::uint32_t version;  ///< that is written; newer ones cannot be read
  const char* part;       ///< of the survey that it belongs to, as the console calls it
  Message loss;           ///< what the user lacks without it
  /// Whether the survey has the part at all.
  std::function<bool(const TomoDocument&, const Interpretation&)> hasPart;
  /// Whether the survey itself tells what a member of the part would hold. Asked where one of a
  /// newer version is carried: that one is out of date then.
  std::function<bool(const TomoDocument&, const Interpretation&)> knows;
  std::function<Written(const std::string& path, const OwnMember&, const TomoDocument&,
                        const Interpretation&)>
      write;
  /// \param repairs out: a line for each thing that was left out of a member which can be read
  std::function<Status(const std::string& path, const OwnMember&, TomoDocument&, Interpretation&,
                       std::vector<Message>& repairs)>
      read;
};

template <typename Record>
Written writeRecord(const std::string& path, const OwnMember& row,
                    const std::optional<Record>& record) {
  if (!record) return Written::kNothing;
  const int failed = writeMember(path, row.part, [&](XmlWriter& writer) {
    writer.put("version", row.version);
    xml::Output output(writer);
    describe(output, const_cast<Record&>(*record));
  });
  return failed == 0 ? Written::kDone : Written::kFailed;
}

/// \param take gives the record of a survey, or none
template <typename Take>
auto writes(Take take) {
  return [take](const std::string& path, const OwnMember& row, const TomoDocument& document,
                const Interpretation& interpretation) {
    return writeRecord(path, row, take(document, interpretation));
  };
}

template <typename Record>
Status readOwnRecord(const std::string& path, const OwnMember& row, Record& record) {
  Message why;
  const auto fill = [&](XmlReader& reader) { xml::readRecord(reader, record); };
  const int failed = readMember(path, row.part, kLargestMember, why, fill);
  return failed == 0 ? Status() : Status::failure(why);
}

/// \param start gives the record that is filled
/// \param give puts it into a survey, or says why it does not fit
template <typename Start, typename Give>
auto reads(Start start, Give give) {
  return [start, give](const std::string& path, const OwnMember& row, TomoDocument& document,
                       Interpretation& interpretation, std::vector<Message>&) {
    auto record = start(document);
    Status read = readOwnRecord(path, row, record);
    if (!read.ok()) return read;
    const Status given = give(std::move(record), document, interpretation);
    return given.ok() ? given : Status::failure(joined(row.name, given.text()));
  };
}

// Mends know the shot files, too, that lie beside their member.

std::string folderOf(const std::string& path, const OwnMember& row) {
  return path.substr(0, path.size() - std::string_view(row.name).size());
}

Written writeMends(const std::string& path, const OwnMember& row, const TomoDocument& document,
                   const Interpretation&) {
  return writeRecord(path, row, mendsOf(document, folderOf(path, row)));
}

Status readMends(const std::string& path, const OwnMember& row, TomoDocument& document,
                 Interpretation&, std::vector<Message>& repairs) {
  MendsMember member;
  Status status = readOwnRecord(path, row, member);
  if (status.ok()) installMends(std::move(member), folderOf(path, row), document, repairs);
  return status;
}

bool hasMends(const TomoDocument& document, const Interpretation&) {
  return !document.recordings->mends.empty();
}

Written writeRuns(const std::string& path, const OwnMember& row, const TomoDocument& document,
                  const Interpretation&) {
  return writeRecord(path, row, runsOf(document));
}

Status readRuns(const std::string& path, const OwnMember& row, TomoDocument& document,
                Interpretation&, std::vector<Message>& repairs) {
  RunsMember member;
  Status status = readOwnRecord(path, row, member);
  if (status.ok()) installRuns(std::move(member), document, repairs);
  return status;
}

bool hasRuns(const TomoDocument& document, const Interpretation&) {
  return !document.runs.empty();
}

bool canHaveRuns(const TomoDocument& document, const Interpretation&) {
  return !document.ttArray.empty();
}

bool hasKnown(const TomoDocument& document, const Interpretation&) {
  return !document.known->empty();
}

bool hasAnnotations(const TomoDocument& document, const Interpretation&) {
  return !document.annotations->empty();
}

bool canHaveKnown(const TomoDocument&, const Interpretation&) {
  return true;
}

const std::vector<OwnMember>& ownMembers() {
  static const std::vector<OwnMember> kMembers = {
      {"result.xml", 1, "Result",
       Message::tr("the coverage of the last inversion and its figures are not known"),
       [](const TomoDocument& document, const Interpretation&) { return hasResult(document); },
       [](const TomoDocument& document, const Interpretation&) { return knowsResult(document); },
       writes([](const TomoDocument& document, const Interpretation&) {
         return hasCoverage(document) ? std::make_optional(resultOf(document)) : std::nullopt;
       }),
       reads(resultOf, [](ResultMember result, TomoDocument& document,
                          Interpretation&) { return installResult(std::move(result), document); })},
      {"picks.xml", 1, "Picks", Message::tr("every pick counts as confirmed"),
       [](const TomoDocument& document, const Interpretation&) { return hasPicks(document); },
       [](const TomoDocument& document, const Interpretation&) {
         return unconfirmedOf(document).has_value();
       },
       writes([](const TomoDocument& document, const Interpretation&) {
         return unconfirmedOf(document);
       }),
       reads([](const TomoDocument&) { return UnconfirmedMember(); },
             [](const UnconfirmedMember& member, TomoDocument& document, Interpretation&) {
               return installUnconfirmed(member, document);
             })},
      {"readers.xml", 1, "Readers",
       Message::tr("all shot files count as read by the program's rules; the traces are those that "
                   "were saved"),
       [](const TomoDocument& document, const Interpretation&) {
         return !document.recordings->traceSets.empty();
       },
       [](const TomoDocument& document, const Interpretation&) {
         return readersOf(document).has_value();
       },
       writes(
           [](const TomoDocument& document, const Interpretation&) { return readersOf(document); }),
       reads([](const TomoDocument&) { return ReadersMember(); },
             [](ReadersMember member, TomoDocument& document, Interpretation&) {
               return installReaders(std::move(member), document);
             })},
      {"mends.xml", 1, "Mends",
       Message::tr("what was mended in its recordings is not known; traces and picks stay as they "
                   "are"),
       hasMends, hasMends, writeMends, readMends},
      {"filters.xml", 1, "Filters",
       Message::tr("it is not known by what the filtered copies of its traces were made"),
       [](const TomoDocument& document, const Interpretation&) {
         return !document.recordings->traceSets.empty();
       },
       [](const TomoDocument& document, const Interpretation&) {
         return filterStepsOf(document).has_value();
       },
       writes([](const TomoDocument& document, const Interpretation&) {
         return filterStepsOf(document);
       }),
       reads([](const TomoDocument&) { return FiltersMember(); },
             [](FiltersMember member, TomoDocument& document, Interpretation&) {
               return installFilterSteps(std::move(member), document);
             })},
      // Behind the mends, for it tells of the picks that they keep.
      {"errors.xml", 1, "Pick errors", Message::tr("no error of a pick is known"),
       [](const TomoDocument& document, const Interpretation&) { return hasPicks(document); },
       [](const TomoDocument& document, const Interpretation&) {
         return pickErrorsOf(document).has_value();
       },
       writes([](const TomoDocument& document, const Interpretation&) {
         return pickErrorsOf(document);
       }),
       reads([](const TomoDocument&) { return PickErrorsMember(); },
             [](const PickErrorsMember& member, TomoDocument& document, Interpretation&) {
               return installPickErrors(member, document);
             })},
      {"runs.xml", 1, "Inversion runs",
       Message::tr("its inversion runs but the last one are not known"), canHaveRuns, hasRuns,
       writeRuns, readRuns},
      {"known.xml", 1, "Known ground", Message::tr("what was known of its ground is lost"),
       canHaveKnown, hasKnown, writes([](const TomoDocument& document, const Interpretation&) {
         return knownGroundOf(document);
       }),
       reads([](const TomoDocument&) { return KnownGroundMember(); },
             [](KnownGroundMember member, TomoDocument& document, Interpretation&) {
               return installKnownGround(std::move(member), document);
             })},
      {"annotations.xml", 1, "Annotations",
       Message::tr("marked isolines and what was drawn on its section are lost"), canHaveKnown,
       hasAnnotations, writes([](const TomoDocument& document, const Interpretation&) {
         return annotationsOf(document);
       }),
       reads([](const TomoDocument&) { return AnnotationsMember(); },
             [](AnnotationsMember member, TomoDocument& document, Interpretation&) {
               return installAnnotations(std::move(member), document);
             })},
      {"course.xml", 1, "Course of the line",
       Message::tr("the line lies straight on the map between its ends"),
       [](const TomoDocument& document, const Interpretation&) {
         return document.map->geoCoord_isSet;
       },
       [](const TomoDocument& document, const Interpretation&) {
         return courseMemberOf(document).has_value();
       },
       writes([](const TomoDocument& document, const Interpretation&) {
         return courseMemberOf(document);
       }),
       reads([](const TomoDocument&) { return MapCourse(); },
             [](MapCourse course, TomoDocument& document, Interpretation&) {
               return installCourse(std::move(course), document);
             })},
      // Behind the result, of which it is part.
      {"certainty.xml", 1, "Certainty", Message::tr("how sure the section is is not known"),
       [](const TomoDocument& document, const Interpretation&) { return hasResult(document); },
       [](const TomoDocument& document, const Interpretation&) {
         return document.result->certainty.has_value();
       },
       writes([](const TomoDocument& document, const Interpretation&) {
         return certaintyOf(document);
       }),
       reads([](const TomoDocument&) { return CertaintyMember(); },
             [](CertaintyMember member, TomoDocument& document, Interpretation&) {
               return installCertainty(std::move(member), document);
             })},
      // Behind the certainty, which it belongs to.
      {"ensemble.xml", 1, "Ensemble",
       Message::tr("finding out how sure the section is begins anew instead of going on"),
       [](const TomoDocument& document, const Interpretation&) { return hasResult(document); },
       [](const TomoDocument& document, const Interpretation&) {
         return ensembleStateOf(document).has_value();
       },
       writes([](const TomoDocument& document, const Interpretation&) {
         return ensembleStateOf(document);
       }),
       reads([](const TomoDocument&) { return EnsembleState(); },
             [](EnsembleState state, TomoDocument& document, Interpretation&) {
               return installEnsembleState(std::move(state), document);
             })},
      {"first_layer.xml", 1, "First layer",
       Message::tr("the first layer of its layered profile has one velocity"),
       [](const TomoDocument&, const Interpretation& interpretation) {
         return !interpretation.refractData.cData.empty();
       },
       [](const TomoDocument&, const Interpretation& interpretation) {
         return interpretation.refractData.isFitted();
       },
       writes([](const TomoDocument&, const Interpretation& interpretation) {
         return firstLayerOf(interpretation);
       }),
       reads([](const TomoDocument&) { return FirstLayerMember(); },
             [](FirstLayerMember member, TomoDocument&, Interpretation& interpretation) {
               return installFirstLayer(std::move(member), interpretation);
             })}};
  return kMembers;
}

const OwnMember* rowOf(const std::string& name) {
  const std::vector<OwnMember>& rows = ownMembers();
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const OwnMember& row) { return row.name == name; });
  return found == rows.end() ? nullptr : &*found;
}

/// The version of a member, which stands in front of what a newer one may hold.
Status versionOf(const std::string& path, const OwnMember& row, std::uint32_t& version) {
  Message why;
  const int failed = readMember(path, row.part, kLargestMember, why, [&](XmlReader& reader) {
    if (!reader.nextChild() || reader.name() != "version") {
      throw XmlError(Message::tr("\"%1\" is missing").arg("version"));
    }
    xml::read(reader, version);
  });
  return failed == 0 ? Status() : Status::failure(why);
}

/// Own members of a project on their way to its next save.
class Carrier {
 public:
  /// False when the member is not carried.
  bool take(const std::string& folder, const std::string& name) {
    CarriedMember member{name, {}};
    const std::size_t room = OwnMembers::kMostBytes - mBytes;
    if (mOwn.carried.size() >= OwnMembers::kMost ||
        !readWholeFile(folder + name, member.bytes.edit(), room).ok()) {
      mRefused.push_back(name);
      return false;
    }
    mBytes += member.bytes->size();
    mOwn.carried.push_back(std::move(member));
    return true;
  }

  void tellRefused(std::vector<Message>& warnings) const {
    if (mRefused.empty()) return;
    warnings.push_back(Message::tr("%1 and what else this version does not know, %2 in all, is too "
                                   "much to be kept; it will not be in the next save")
                           .arg(mRefused.front())
                           .arg(mRefused.size()));
  }

  OwnMembers own() && { return std::move(mOwn); }

 private:
  OwnMembers mOwn;
  std::size_t mBytes = 0;
  std::vector<std::string> mRefused;
};

/// Those in the folder that have no row, in the order of their names.
std::vector<std::string> unknownNames(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator file(folder, error), end; !error && file != end;
       file.increment(error)) {
    std::string name = file->path().filename().string();
    if (isOwnMemberName(name) && rowOf(name) == nullptr) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool exists(const std::string& path) {
  std::error_code error;
  return fs::exists(path, error);
}

}  // namespace

bool isOwnMemberName(const std::string& name) {
  constexpr std::size_t kLongest = 64;
  constexpr std::string_view kSuffix = ".xml";
  if (name.size() > kLongest || name.size() <= kSuffix.size() ||
      name.compare(name.size() - kSuffix.size(), kSuffix.size(), kSuffix) != 0) {
    return false;
  }
  const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
  const auto isPlain = [&](char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '_'; };
  const std::string stem = name.substr(0, name.size() - kSuffix.size());
  return isLetter(stem.front()) && std::all_of(stem.begin(), stem.end(), isPlain) &&
         !isCommonMember(name);
}

OwnMembers readOwnMembers(const std::string& folder, TomoDocument& document,
                          Interpretation& interpretation, std::vector<Message>& warnings,
                          std::vector<Message>& repairs) {
  Carrier carrier;
  for (const OwnMember& row : ownMembers()) {
    const std::string path = folder + row.name;
    if (!exists(path)) continue;  // nothing to tell of the part, or an earlier version
    std::uint32_t version = 0;
    Status status = versionOf(path, row, version);
    if (status.ok() && version > row.version) {
      if (!carrier.take(folder, row.name)) continue;
      warnings.push_back(
          Message::tr("%1 was written by a newer version of Talvesk; it stays as it is, but %2")
              .arg(row.name)
              .arg(row.loss));
      continue;
    }
    if (status.ok()) status = row.read(path, row, document, interpretation, repairs);
    if (!status.ok()) {
      repairs.push_back(Message::tr("%1; %2").arg(status.text()).arg(row.loss));
    }
  }
  for (const std::string& name : unknownNames(folder)) {
    if (!carrier.take(folder, name)) continue;
    warnings.push_back(
        Message::tr("%1 is of another version of Talvesk; it stays as it is, but is not used")
            .arg(name));
  }
  carrier.tellRefused(warnings);
  return std::move(carrier).own();
}

bool writeOwnMembers(const std::string& folder, const TomoDocument& document,
                     const Interpretation& interpretation, const OwnMembers& own,
                     std::vector<std::string>& files, std::vector<Message>& warnings) {
  bool complete = true;
  const auto add = [&](const std::string& name, bool written) {
    files.push_back(folder + name);
    if (written) return;
    complete = false;
    std::error_code ignored;
    fs::remove(files.back(), ignored);
  };
  std::set<std::string> carried;
  for (const CarriedMember& member : own.carried) {
    const OwnMember* row = rowOf(member.name);
    if (row != nullptr && !row->hasPart(document, interpretation)) continue;
    if (row != nullptr && row->knows(document, interpretation)) {
      warnings.push_back(
          Message::tr("%1 of a newer version of Talvesk gave way to that of this version: what it "
                      "told of has changed.")
              .arg(member.name));
      continue;
    }
    add(member.name, writeFileAtomically(folder + member.name, *member.bytes).ok());
    carried.insert(member.name);
  }
  for (const OwnMember& row : ownMembers()) {
    if (carried.count(row.name) > 0) continue;
    const Written written = row.write(folder + row.name, row, document, interpretation);
    if (written != Written::kNothing) add(row.name, written == Written::kDone);
  }
  return complete;
}

}  // namespace talvesk
