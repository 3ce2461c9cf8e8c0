#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;
struct ExcludedPosition;

/// What an inversion leaves out of a survey, put together for people. Indices are from 0.
struct LeftOut {
  /// Geophones of one string that no column of the grid reaches.
  struct Geophones {
    std::size_t string = 0;
    std::vector<std::size_t> numbers;  ///< ascending
  };
  std::vector<std::size_t> shotsBeyond;         ///< beyond the columns of the grid
  std::vector<std::size_t> shotsWithoutString;  ///< whose geophone string does not exist
  std::vector<Geophones> geophones;             ///< by string; of shots that are not left out
  std::size_t picks = 0;  ///< that are not used, those beyond the end of a string included
  std::size_t of = 0;     ///< picks of the survey

  std::size_t geophoneCount() const;
  std::size_t picksUsed() const { return of - picks; }
  bool any() const;
};

/// \param excluded what findExcluded() names, of the document's grid or of one that is to be
LeftOut leftOut(const TomoDocument& document, const std::vector<ExcludedPosition>& excluded);

/// Lines that name it, without line breaks; empty when nothing is left out.
std::vector<std::string> describe(const LeftOut& left, const TomoDocument& document);

}  // namespace talvesk
