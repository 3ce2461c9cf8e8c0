#include "export/ResolutionTable.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"
#include "tomo/fitted/ResolutionRun.h"

#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

std::string known(double value) {
  return std::isfinite(value) ? formatDouble(value) : std::string();
}

}  // namespace

Status writeResolutionTable(const std::string& path, const ResolutionReport& report) {
  return told(writeTextAtomically(path, [&](std::ostream& out) {
    out << "depth_m,size_m,cells,correlation,share,smallest_resolved_m\n";
    for (std::size_t row = 0; row < report.smallest.size(); ++row) {
      for (const ResolutionResult& test : report.tests) {
        const DepthResolution& at = test.byDepth[row];
        out << known(at.depth) << ',' << known(test.settings.size) << ',' << at.cells << ','
            << known(at.correlation) << ',' << known(at.share) << ','
            << known(report.smallest[row].size) << '\n';
      }
    }
  }));
}

}  // namespace talvesk
