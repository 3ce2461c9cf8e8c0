#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "model/Mends.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Changes the mends of some traces of a record, which keeps its others; see setMends().
/// \param record of the document, from 0 \param traces of it by geophone, from 0
/// \param change is called for every trace, in order, with the mends that it has
/// \param notes as of setMends()
/// \return failure, and nothing changed, for a record without recordings, a trace that it does not
/// have, or mends that setMends() refuses
Status mendTraces(TomoDocument& document, std::int32_t record,
                  const std::vector<std::size_t>& traces,
                  const std::function<void(TraceMend&)>& change, std::vector<Message>* notes);

/// The gain beside this one in the row 1, 1.5, 2, 3, 4, 6, 8 and so on, whose steps can be taken
/// back exactly, and down to 0.75, 0.5, 0.375 and so on. Between TraceMend::kLeastGain and
/// kMostGain; where there is none beyond, the same.
double nextGain(double gain, bool larger);

}  // namespace talvesk
