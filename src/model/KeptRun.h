#pragma once

#include "base/Message.h"
#include "base/Shared.h"
#include "grid/GridGeometry.h"
#include "model/InversionRecord.h"
#include "numerics/Splines.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// An inversion that has been run: what it found and how, to be compared with others and to become
/// the section again. It has a grid of its own, for the survey may have got another since. A copy
/// shares its cells and times.
struct KeptRun {
  std::uint32_t number = 0;     ///< by which users call it, from 1; no two of a survey share one
  std::string name;             ///< that a user has given it, UTF-8; empty: none
  std::string when;             ///< it ended, UTC, as "2024-05-17T09:30:00Z"; empty: not known
  InversionRecord record;       ///< its settings, and the misfit of its section at the end
  double rmsPercent = -1.0;     ///< RMSE_tomography of its outcome
  double chi2 = -1.0;           ///< of the section by the errors of its picks; negative: not known
  double chi2All = -1.0;        ///< the same with suspects
  double trustedRms = -1.0;     ///< of what chi-square counts, seconds; negative: not known
  std::uint64_t positions = 0;  ///< fingerprintOfPositions() of its line

  GridSize size;
  double xOffset = 0.0;  ///< added to survey x to get grid x, metres
  Splines::LinearSpline surface = Splines::LinearSpline();  ///< elevation over grid x
  SharedVector<double> slowness;                            ///< s/m per cell
  SharedVector<double> coorcount;                           ///< metres of ray per cell
  SharedVector<std::uint32_t> hitCounts;                    ///< rays per cell
  std::vector<SharedVector<double>> times;  ///< computed, seconds, per record; as ttCalcolati

  Message title() const;         ///< its name, or "Run 3"
  SectionMisfit misfit() const;  ///< of its section; count 0: not known
  std::size_t numbers() const;   ///< that are kept of it
  std::size_t iterations() const { return record.history.size(); }
};

/// How many runs are kept, and how many numbers of all of them together: a project that holds so
/// many can still be read.
inline constexpr std::size_t kMostRuns = 50;
inline constexpr std::size_t kMostRunNumbers = 9000000;

/// Puts a run behind the others, and gives it its number. Where they are too many, the oldest go
/// that nobody has named, and after those the oldest; the new one stays whatever it holds.
/// \return the titles of those that have gone
std::vector<Message> addRun(KeptRun run, std::vector<KeptRun>& runs);

/// The run that a user calls so: by its number, else by its name, the latest of several; none when
/// there is no such run.
std::optional<std::size_t> findRun(const std::vector<KeptRun>& runs, const std::string& called);

/// Whether two grids have the same cells, wherever they lie.
bool sameCells(const GridSize& a, const GridSize& b);

}  // namespace talvesk
