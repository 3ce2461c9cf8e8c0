#pragma once

#include "base/Log.h"
#include "base/Message.h"
#include "base/Status.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;
struct KeptRun;

/// Puts the inversion that has just ended, as the document holds it, into the list of its runs.
/// \return the titles of runs that had to go for it
std::vector<Message> keepRun(TomoDocument& document);

/// Gives a document the section of a run, with its grid and all that its inversion left but
/// rays and information density, which take their time. The run's times come with it where shots
/// and geophones are where they were; else there are none, and neither is a misfit. Meant for who
/// draws a run: see useRun(). On failure the document is as before.
Status putRun(const KeptRun& run, TomoDocument& document);

/// Makes a run of the document's list its section again, as it was when its inversion ended, and
/// traces rays and times through it anew, in the way of its method. Fails, with the document as
/// before, where the line has got another surface or other ends since.
/// \param threads searches at once, at least 1
Status useRun(std::size_t index, unsigned threads, TomoDocument& document, Log& log);

}  // namespace talvesk
