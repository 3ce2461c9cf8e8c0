#include "figures/ReportContent.h"

#include <algorithm>
#include <numeric>

namespace talvesk {
namespace {

// Letters; a narrower column would break its heading, a wider one leave the others nothing.
constexpr int kNarrowest = 4;
constexpr int kWidest = 28;
constexpr int kUnbrokenTitle = 14;
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

std::vector<double> ReportTable::shares() const {
  if (!hasHeadings()) return {0.4, 0.6};
  std::vector<double> shares = letters();
  const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
  for (double& share : shares) share /= sum;
  return shares;
}

double ReportTable::widthMm(double textWidthMm) const {
  if (!hasHeadings()) return textWidthMm;
  const std::vector<double> columnLetters = letters();
  return std::min(kLetterMm * std::accumulate(columnLetters.begin(), columnLetters.end(), 0.0),
                  textWidthMm);
}

std::vector<double> ReportTable::letters() const {
  std::vector<double> widths;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const int title = std::min(columns[i].title.size(), kUnbrokenTitle);
    int longest = std::max(longestWord(columns[i].title), title);
    for (const QStringList& row : rows)
      longest = std::max(longest, row[static_cast<int>(i)].size());
    widths.push_back(std::clamp(longest, kNarrowest, kWidest) + 2.5);
  }
  return widths;
}

}  // namespace talvesk
