#pragma once

#include "batch/JsonText.h"
#include "doctor/ReciprocityTable.h"

#include <iosfwd>

namespace talvesk {

class TomoDocument;

/// Prints how the picks of a survey go with each other there and back: the RMS of all pairs, of
/// each shot with the shift that stands out, and the worst pairs. Shots are counted from 1.
void tellReciprocity(const doctor::ReciprocityTable& table, const TomoDocument& document,
                     std::ostream& out);

/// The same as JSON, with all pairs; shots and traces from 0. What is not known is null.
Json reciprocityJson(const doctor::ReciprocityTable& table);

}  // namespace talvesk
