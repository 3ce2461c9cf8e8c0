#include "figures/ReportContent.h"

#include <algorithm>

namespace talvesk {
namespace {

// Letters; a narrower column would break its heading, a wider one leave the others nothing.
constexpr int kNarrowest = 4;
constexpr int kWidest = 28;

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
  std::vector<double> shares;
  double sum = 0.0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    int letters = longestWord(columns[i].title);
    for (const QStringList& row : rows)
      letters = std::max(letters, row[static_cast<int>(i)].size());
    shares.push_back(std::clamp(letters, kNarrowest, kWidest) + 2.0);
    sum += shares.back();
  }
  for (double& share : shares) share /= sum;
  return shares;
}

}  // namespace talvesk
