#pragma once

#include "base/Status.h"
#include "batch/JsonText.h"

#include <iosfwd>
#include <string>

namespace talvesk {

class Log;
class TomoDocument;
struct Survey;

/// A line for every inversion run that a project keeps, or one that says that there is none. The
/// one whose section is that of the project has a star.
void listRuns(const TomoDocument& document, std::ostream& out);

/// The same for --json, without what the runs have found in the ground.
Json runsJson(const TomoDocument& document);

/// `--use RUN`: makes a run the section of a survey again, as the window does, and warns of what
/// has changed since. Fails, with the survey as before, when there is no such run.
/// \param called number or name of the run
/// \param threads that trace its rays, at least 1
Status chooseRun(const std::string& called, unsigned threads, Survey& survey, Log& log);

}  // namespace talvesk
