#include "figures/print/PrintSheet.h"

#include <utility>

namespace talvesk {

const std::vector<Paper>& papers() {
  static const std::vector<Paper> all = {{"A4", 210.0, 297.0},    {"A3", 297.0, 420.0},
                                         {"A2", 420.0, 594.0},    {"A1", 594.0, 841.0},
                                         {"A0", 841.0, 1189.0},   {"Letter", 215.9, 279.4},
                                         {"Legal", 215.9, 355.6}, {"Tabloid", 279.4, 431.8}};
  return all;
}

PrintSheet PrintSheet::on(const Paper& paper, bool landscape, double scale) {
  PrintSheet sheet{scale, paper.widthMm, paper.heightMm};
  if (landscape) std::swap(sheet.widthMm, sheet.heightMm);
  return sheet;
}

}  // namespace talvesk
