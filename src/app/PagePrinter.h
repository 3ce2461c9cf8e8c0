#pragma once

#include "base/Status.h"
#include "figures/print/PrintPages.h"

class QPrinter;

namespace talvesk {

/// Gives a printer the paper of the sheets, up to its edges: their margins are their own.
void setUpPrinter(QPrinter& printer, const PrintPages& pages);

/// Prints the sheets that the printer is set to, in their real size. Fails where its paper is
/// another by now, for whoever chose it would not get what he was shown.
Status printPages(QPrinter& printer, const PrintPages& pages);

}  // namespace talvesk
