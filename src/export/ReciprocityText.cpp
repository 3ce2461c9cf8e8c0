#include "export/ReciprocityText.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"

#include <ostream>

namespace talvesk {
namespace {

constexpr int kDigits = 9;

std::string milliseconds(double seconds) {
  return formatDouble(1e3 * seconds, kDigits);
}

}  // namespace

Status writeReciprocity(const std::string& path, const doctor::ReciprocityTable& table) {
  return told(writeTextAtomically(path, [&](std::ostream& out) {
    out << "shot,position_m,trace,there_ms,other_shot,other_position_m,other_trace,back_ms,"
           "difference_ms,error_ms\n";
    for (const doctor::ReciprocalTimes& pair : table.pairs) {
      out << pair.first + 1 << ',' << exactDouble(table.shots[pair.first].x) << ','
          << pair.thereTrace + 1 << ',' << milliseconds(pair.there) << ',' << pair.second + 1 << ','
          << exactDouble(table.shots[pair.second].x) << ',' << pair.backTrace + 1 << ','
          << milliseconds(pair.back) << ',' << milliseconds(pair.difference()) << ','
          << (pair.error > 0.0 ? milliseconds(pair.error) : std::string()) << '\n';
    }
  }));
}

}  // namespace talvesk
