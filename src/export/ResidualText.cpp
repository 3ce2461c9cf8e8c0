#include "export/ResidualText.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"

#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

constexpr int kDigits = 9;

std::string milliseconds(double seconds) {
  return formatDouble(1e3 * seconds, kDigits);
}

std::string metres(double value) {
  return std::isfinite(value) ? exactDouble(value) : std::string();
}

}  // namespace

void tellResiduals(std::ostream& out, const ResidualTable& table) {
  out << "shot,shot_position_m,geophone,geophone_position_m,offset_m,measured_ms,computed_ms,"
         "residual_ms,error_ms,residual_in_errors,suspect\n";
  std::vector<double> shots(table.rows.size());
  for (const ResidualRow& row : table.rows) shots[row.record] = row.x;
  for (const PickResidual& pick : table.picks) {
    out << pick.record + 1 << ',' << metres(shots[pick.record]) << ',' << pick.receiver + 1 << ','
        << metres(table.columns[pick.column].x) << ',' << metres(pick.offset) << ','
        << milliseconds(pick.measured) << ',' << milliseconds(pick.computed()) << ','
        << milliseconds(pick.residual) << ',' << milliseconds(pick.sigma) << ','
        << formatDouble(pick.value(ResidualUnit::kErrors), kDigits) << ',' << (pick.suspect ? 1 : 0)
        << '\n';
  }
}

Status writeResiduals(const std::string& path, const ResidualTable& table) {
  if (table.picks.empty()) {
    return cannotWrite(
        path, Message::tr("there is no section whose times could be compared with the picks; run "
                          "an inversion first"));
  }
  return told(writeTextAtomically(path, [&](std::ostream& out) { tellResiduals(out, table); }));
}

}  // namespace talvesk
