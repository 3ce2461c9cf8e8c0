#pragma once

#include "base/Message.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/RefractionDataStructure.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/ColorPalette.h"
#include "view/SectionViewSettings.h"

#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

// The XML members of a project file, each written and read on its own. The functions return 0,
// or 1 after telling the console's error stream which member of which path failed; readers then
// put the reason in `why`. A value that is read is only known to be of its type: see
// ProjectAssembly.h for whether it makes sense.

inline constexpr const char* kSurveyMember = "tomodoc.xml";
inline constexpr const char* kGridMember = "grid.xml";
inline constexpr const char* kTracesMember = "traces.xml";
inline constexpr const char* kPalettesMember = "palettes.xml";
inline constexpr const char* kRefractionMember = "refraction.xml";
/// Whether a name is one of these five; see OwnMembers.h for those that are ours alone.
bool isCommonMember(const std::string& name);

/// The survey without its traces, and how its section is looked at.
struct SurveyMember {
  TomoDocument document;
  SectionViewSettings section;
  std::vector<InversionRecord> runs;  ///< how the results were made: one, or none when unknown
  bool hasInformationDensity = true;  ///< older files have none
  bool hasCoverageLimit = true;
};

/// All zero and empty for a survey without a grid.
struct GridMember {
  std::uint32_t righe = 0;
  std::uint32_t col = 0;
  std::uint32_t nV = 0;
  double aLato = 0.0;              ///< metres
  std::vector<double> velocities;  ///< m/s, per cell
  std::vector<bool> toBeDraw;      ///< per cell
};

/// A trace as it is stored: without samples where they can be read from its shot file again.
struct StoredTrace {
  double pos = 0.0;                  ///< receiver, metres
  double time = 0.0;                 ///< sample interval, seconds
  Samples TAB;                       ///< the samples, when there is no file
  std::uint64_t droppedSamples = 0;  ///< before the shot, off the front of the samples
  std::uint32_t waveKind = Trace::kFromFile;
  double delay = 0.0;  ///< seconds
  Point2D source;
  Point2D receiver;
  Samples TAB_DX;  ///< of pairs without files
  Samples TAB_SX;
  bool hasPlace = false;  ///< kind, delay, source and receiver were there: older files lack them
};

struct TracesMember {
  std::vector<std::string> filenames;  ///< bare names
  std::vector<std::string> filenames_DX;
  std::vector<std::string> filenames_SX;
  WaveType waveType = WaveType::P;
  std::vector<double> shotPositions;  ///< metres
  std::vector<std::vector<StoredTrace>> traceSets;
  std::vector<std::vector<Samples>> filtered;  ///< per set and trace, may be empty
};

int writeSurvey(const std::string& path, const TomoDocument& document,
                const SectionViewSettings& section);
int writeGrid(const std::string& path, const TomoDocument& document);
/// \param withSamples per trace set: its samples go into the member; missing entries stand for no
int writeTraces(const std::string& path, const TomoDocument& document,
                const std::vector<bool>& withSamples);
int writePalettes(const std::string& path, const ColorPaletteList& palettes);
int writeRefraction(const std::string& path,
                    const refractionDataStructure::Interpretation& interpretation);

int readSurvey(const std::string& path, SurveyMember& member, Message& why);
int readGrid(const std::string& path, GridMember& member, Message& why);
int readTraces(const std::string& path, TracesMember& member, Message& why);
/// Palettes that cannot be used are left out, with a line in `repairs`; when none can be used they
/// are as before.
int readPalettes(const std::string& path, ColorPaletteList& palettes, std::vector<Message>& repairs,
                 Message& why);
int readRefraction(const std::string& path, refractionDataStructure::Interpretation& interpretation,
                   Message& why);

/// Stands in the file for what is not known of a layered profile, and is no number in memory: as
/// for picks, for other programs read the file, too.
inline constexpr double kNotKnown = -99.0;
void putSigns(refractionDataStructure::Interpretation& interpretation);   ///< for the file
void takeSigns(refractionDataStructure::Interpretation& interpretation);  ///< and back

}  // namespace talvesk
