#pragma once

#include "base/Message.h"
#include "io/project/MendsMember.h"
#include "model/TomoDocument.h"

#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// None where a survey has no mends.
/// \param folder where its shot files were copied to, ending in "/": what they give is not stored
std::optional<MendsMember> mendsOf(const TomoDocument& document, const std::string& folder);

/// Mends that are not those of the traces, or cannot be, are left out: the traces stay as they are.
/// \param folder as above \param repairs a line for each thing that was put right or left out
void installMends(MendsMember member, const std::string& folder, TomoDocument& document,
                  std::vector<Message>& repairs);

}  // namespace talvesk
