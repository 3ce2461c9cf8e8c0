#include "figures/report/ReportContent.h"

#include <algorithm>
#include <numeric>

namespace talvesk {
namespace {

// Letters; a narrower column would break its heading, a wider one leave the others nothing.
constexpr double kNarrowest = 4;
constexpr double kWidest = 28;
constexpr int kWholeTitle = 14;
constexpr double kBold = 1.15;  ///< how much wider bold letters are
constexpr double kPadding = 1.8;
constexpr double kLetterMm = 2.1;  ///< width of one in tables, with room to spare

int longestWord(const QString& text) {
  int longest = 0;
  for (const QString& word : text.split(QLatin1Char(' '))) longest = std::max(longest, word.size());
  return longest;
}

}  // namespace

bool ReportTable::hasHeadings() const {
  return std::any_of(columns.begin(), columns.end(),
                     [](const Column& column) { return !column.title.isEmpty(); });
}

std::vector<double> ReportTable::columnWidthsMm(double textWidthMm) const {
  if (!hasHeadings()) return {0.4 * textWidthMm, 0.6 * textWidthMm};
  const auto sum = [](const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
  };
  std::vector<double> widths = letters(true);
  if (kLetterMm * sum(widths) > textWidthMm) widths = letters(false);
  const double perLetter = std::min(kLetterMm, textWidthMm / sum(widths));
  for (double& width : widths) width *= perLetter;
  return widths;
}

std::vector<double> ReportTable::letters(bool wholeTitles) const {
  std::vector<double> widths;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    int longest = longestWord(columns[i].title);
    if (wholeTitles) longest = std::max(longest, std::min(columns[i].title.size(), kWholeTitle));
    double needed = kBold * longest;
    for (const QStringList& row : rows) {
      needed = std::max(needed, static_cast<double>(row[static_cast<int>(i)].size()));
    }
    widths.push_back(std::clamp<double>(needed, kNarrowest, kWidest) + kPadding);
  }
  return widths;
}

}  // namespace talvesk
