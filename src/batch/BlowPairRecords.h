#pragma once

#include "base/Status.h"
#include "batch/Options.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace talvesk {

/// --blow-pair and what goes with it. `pair` must outlive the parsing.
/// \param allRecords options that are about all records of a survey
/// \return to be called once the line is parsed; throws CLI::RequiredError
std::function<void()> addBlowPair(CLI::App& command, std::optional<BlowPairRequest>& pair,
                                  const std::vector<CLI::Option*>& allRecords);

/// Writes the difference or the sum of two blows, or both, into a folder that exists. What is left
/// out is told on standard error.
/// \param inputs over none of which is written \param out gets how the two go together
Status writeBlowPairRecords(const RecordsOptions& options, const TomoDocument& document,
                            const std::vector<std::string>& inputs, std::ostream& out);

}  // namespace talvesk
