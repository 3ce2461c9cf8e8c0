#pragma once

#include "figures/SectionFigureOptions.h"
#include "figures/report/ReportContent.h"
#include "model/RefractionDataStructure.h"

#include <string>

namespace talvesk {

class TomoDocument;
struct LayeredFit;
struct MethodComparison;
struct ProfileErrors;

/// Which parts of a survey a report tells of. A part that the survey has nothing of is left out;
/// the inversion and the travel times then say so in a line.
struct ReportSections {
  bool survey = true;
  bool position = true;     ///< on the globe
  bool travelTimes = true;  ///< curves, and the misfit of every shot
  bool inversion = true;    ///< grid and parameters
  bool section = true;      ///< the velocity section
  bool rays = true;         ///< over the section
  bool density = true;      ///< the information density beside it
  bool misfit = true;       ///< figures of the whole and of every iteration
  bool refraction = true;
  bool method = true;
};

struct ReportOptions {
  ReportSections sections;
  ReportPaper paper = ReportPaper::kA4;

  // UTF-8; empty ones are left out.
  std::string title;  ///< empty: the document's
  std::string client;
  std::string site;
  std::string author;
  std::string date;  ///< as it is to be read
  std::string notes;

  /// Palette, range, contours and exaggeration of the sections; what they show is the report's.
  SectionFigureOptions section;
};

/// What a report is about; all of it must outlive the content, whose figures look at it.
struct ReportSource {
  const TomoDocument& document;
  const refractionDataStructure::Interpretation* interpretation = nullptr;
  const MethodComparison* methods = nullptr;  ///< of the layers; null: only the profile
  const LayeredFit* fit = nullptr;            ///< of the profile; null: its misfit is not told
  const ProfileErrors* errors = nullptr;      ///< of the profile; null: none are known
};

}  // namespace talvesk
