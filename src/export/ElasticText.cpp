#include "export/ElasticText.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"

#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

constexpr int kDigits = 9;
constexpr int kDigitsOfErrors = 4;

std::string known(double value, int digits = kDigits) {
  return std::isfinite(value) ? formatDouble(value, digits) : std::string();
}

std::string remarkOf(const ElasticPoint& point) {
  std::string remark = nameOf(point.state.verdict);
  if (!point.topsDiffer) return remark;
  return remark.empty() ? "tops_differ" : remark + " tops_differ";
}

}  // namespace

void tellElastic(std::ostream& out, const ElasticLine& line) {
  out << "layer,position_m,elevation_m,top_p_m,top_s_m";
  for (const ElasticColumn& column : kElasticColumns) {
    out << ',' << column.key;
    if (line.hasErrors) out << ',' << column.key << "_error";
  }
  out << ",remark\n";
  for (const ElasticLayer& layer : line.layers) {
    for (const ElasticPoint& point : layer.points) {
      out << layer.layer << ',' << known(point.x) << ',' << known(point.elevation) << ','
          << known(point.topP.value) << ',' << known(point.topS.value);
      for (const ElasticColumn& column : kElasticColumns) {
        const Estimate& own = point.state[column.quantity];
        out << ',' << known(column.factor * own.value);
        if (line.hasErrors) out << ',' << known(column.factor * own.sigma, kDigitsOfErrors);
      }
      out << ',' << remarkOf(point) << '\n';
    }
  }
}

Status writeElastic(const std::string& path, const ElasticLine& line) {
  return told(writeTextAtomically(path, [&](std::ostream& out) { tellElastic(out, line); }));
}

Status writeElasticSection(const std::string& path, const ElasticSection& section) {
  return told(writeTextAtomically(path, [&](std::ostream& out) {
    out << "position_m,elevation_m,depth_m";
    for (const ElasticColumn& column : kElasticColumns) out << ',' << column.key;
    out << ",remark\n";
    for (const ElasticCell& cell : section.cells) {
      out << known(cell.centre.x) << ',' << known(cell.centre.z) << ',' << known(cell.depth);
      for (const ElasticColumn& column : kElasticColumns) {
        out << ',' << known(column.factor * cell.state[column.quantity].value);
      }
      out << ',' << nameOf(cell.state.verdict) << '\n';
    }
  }));
}

}  // namespace talvesk
