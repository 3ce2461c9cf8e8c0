#pragma once

#include "base/Status.h"
#include "session/EditTable.h"

#include <functional>

namespace talvesk {

struct Survey;

/// Forgets what the table says that an edit makes void, and refuses one that touches what it keeps.
/// \param before the survey that the edit was made of \param next what it made of it
Status followTable(Edit edit, const Survey& before, Survey& next);

/// Gives every record its row of marks, be they none.
void fitMarksToRecords(Survey& survey);

/// An edit without a way back, for who needs none: as Session::apply() does it, without steps and
/// observers. On failure the survey is as it was.
Status editSurvey(Edit edit, Survey& survey, const std::function<Status(Survey&)>& change);

}  // namespace talvesk
