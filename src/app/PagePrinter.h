#pragma once

#include "base/Status.h"
#include "figures/print/PrintPages.h"

class QPrinter;

namespace talvesk {

/// Gives a printer the paper of the sheets, up to its edges: their margins are their own.
void setUpPrinter(QPrinter& printer, const PrintPages& pages);

/// How many sheets a printer was given.
struct PrintedSheets {
  int wanted = 0;
  int sent = 0;  ///< whole ones; whether they lie in its tray only it knows
};

/// Prints the sheets that the printer is set to, in their real size. Fails where its paper is
/// another by now, for whoever chose it would not get what he was shown.
/// \param sheets what became of them, after a failure, too; null when nobody asks
Status printPages(QPrinter& printer, const PrintPages& pages, PrintedSheets* sheets = nullptr);

}  // namespace talvesk
