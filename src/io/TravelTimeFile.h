#pragma once

#include "base/Status.h"
#include "io/HeadedPicks.h"
#include "io/TravelTimeData.h"
#include "model/ModelLoss.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

class TomoDocument;

/// How a file of picks is read.
struct TravelTimeReading {
  bool byContent = false;            ///< what it holds decides before its suffix does
  std::optional<TimeUnit> timeUnit;  ///< of tables whose heading names none
};

/// Reads a file in the format of travelTimeFormats() that its suffix tells, compared exactly. What
/// that reader refuses, and files of other suffixes, are read by their content where it is one of
/// pickContents(); a warning says so. Where that fails as well, the failure is the one of the
/// suffix, with the other reason behind it. Failures also go to the console's error stream.
Status readTravelTimes(const std::string& path, TravelTimeData& data,
                       const TravelTimeReading& reading = {});

/// The same from the bytes of a file; its name chooses the format and stands in the messages.
/// `data` is as before when that fails.
Status parseTravelTimes(std::string_view bytes, const std::string& path, TravelTimeData& data,
                        const TravelTimeReading& reading = {});

/// Whether the content of a file is one of pickContents(). Looks at files of the disk only.
bool holdsTravelTimes(const std::string& path);

/// Whether a file is a table of picks that does not say in which unit its times are, and that
/// cannot be read without TravelTimeReading::timeUnit.
bool asksForTimeUnit(const std::string& path);

/// Drops the picks that lie beyond the records of the document's traces, with a warning in the
/// data.
void fitToRecords(TravelTimeData& data, const TomoDocument& document);

/// What an import takes from a document besides its picks.
struct ImportCost {
  ModelLoss model = ModelLoss::kNothing;
  bool survey = false;  ///< its shots, which have no traces, become those of another survey
};

/// Whether importTravelTimes() would go well, and at what cost. Positions of the data that are
/// those of the document but for the digits that a file has get the document's.
Status checkImport(TravelTimeData& data, const TomoDocument& document, ImportCost& cost);

/// Puts what was read into the document, or leaves the document as it was. A document with trace
/// sets keeps them and takes times and positions by trace set, provided that shots and traces agree
/// in number. So does one without, when its shots are those of the data; else it gets new strings,
/// shots and records, and loses its file names. Grid and results stay unless a position changed
/// that they hang on, see modelLoss(); with the grid of other shots their starting model goes, too.
Status importTravelTimes(TravelTimeData data, TomoDocument& document);

/// readTravelTimes, fitToRecords, then importTravelTimes. Returns 0 or 1; the message is the
/// status's.
Status loadTravelTimes(const std::string& path, TomoDocument& document);

/// Writes the format of writtenFormatOf(), whole or not at all. Positions must be finite; a time
/// that is not is written as no pick.
/// \param losses out: what will not come back from such a file
Status writeTravelTimes(const std::string& path, const TravelTimeData& data,
                        std::vector<Message>& losses);

/// The same of a survey in the exchange format, whatever the suffix; losses are told on the
/// console.
Status writeTravelTimes(const std::string& path, const TomoDocument& document);

}  // namespace talvesk
