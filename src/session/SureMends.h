#pragma once

#include "base/Message.h"
#include "doctor/Finding.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace talvesk {

struct Survey;

/// What came of carrying out the proposals that are sure.
struct SureMends {
  std::size_t done = 0;               ///< proposals that were carried out
  std::vector<doctor::Finding> left;  ///< what a last check finds
  std::vector<Message> notes;  ///< what the user should know of mends and of proposals that failed
};

/// Carries out what is proposed and at least so sure, and looks again, until nothing is: a shot
/// that is put in its place may uncover what is wrong with its traces. \param findings of the
/// survey as it is \param sure percent \param again told what each further check finds; may be
/// empty
SureMends mendWhatIsSure(
    std::vector<doctor::Finding> findings, double sure, Survey& survey,
    const std::function<void(const std::vector<doctor::Finding>&)>& again = {});

}  // namespace talvesk
