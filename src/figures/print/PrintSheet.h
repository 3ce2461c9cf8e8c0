#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace talvesk {

/// A sheet of paper, upright.
struct Paper {
  std::string name;  ///< "A3"
  double widthMm = 0.0;
  double heightMm = 0.0;
};

/// Those that figures are printed on, A4 first.
const std::vector<Paper>& papers();

/// What a figure is printed on, and how large.
struct PrintSheet {
  static constexpr double kLeastScale = 1.0;
  static constexpr double kMostScale = 1e6;
  static constexpr double kToFit = 0.0;      ///< the scale that fills the sheet
  static constexpr double kMarginMm = 10.0;  ///< on every side; printers leave some of it blank

  static constexpr double kFirstScale = 500.0;

  double scale = kFirstScale;  ///< metres along the line to a metre of paper, or kToFit
  double widthMm = 420.0;      ///< of the paper as it is turned
  double heightMm = 297.0;

  /// \param landscape the longer side lies below
  static PrintSheet on(const Paper& paper, bool landscape, double scale);
};

/// Most sheets that a figure is split over.
constexpr std::size_t kMostPrintPages = 200;
/// What neighbouring sheets have in common, millimetres. A match line in its middle lies at the
/// same place of both.
constexpr double kPrintOverlapMm = 10.0;

}  // namespace talvesk
