#pragma once

#include "app/presenters/CommandTable.h"

#include <QString>

namespace talvesk {

/// Why a command cannot work by the fact that its row asks for; a sentence.
QString whyDisabled(const Command& command);

}  // namespace talvesk
