#pragma once

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A pick that a section cannot explain within its error.
struct SuspectPick {
  std::size_t record = 0;
  std::size_t receiver = 0;  ///< trace of the record, from 0
  double measured = 0.0;     ///< seconds
  double residual = 0.0;     ///< computed minus measured, time shifts of shots counted, seconds
  double sigma = 0.0;        ///< seconds
};

/// A time shift of a shot that the fit of a section has found, or that seems to be there, and that
/// nobody has taken over yet.
struct ShotShift {
  std::size_t record = 0;
  double late = 0.0;       ///< seconds that the record begins too late by
  bool recording = false;  ///< there are traces that can be shifted, else picks alone
  bool clear = false;      ///< it is more than the least error of a pick
  bool seeming = false;    ///< read from picks and residuals of a section that knows of no shifts
};

/// Cells that have something in common: how many, and the box around them.
struct CellPatch {
  std::size_t cells = 0;
  double left = 0.0;  ///< survey abscissas, metres
  double right = 0.0;
  double top = 0.0;  ///< metres below the surface
  double bottom = 0.0;
};

/// What deserves a second look in the section that a document holds.
struct SecondLook {
  bool known = false;                 ///< there is a section with times of its own
  bool picksChanged = false;          ///< since it was inverted
  std::vector<SuspectPick> suspects;  ///< those furthest off, by their errors, first
  double limit = 0.0;                 ///< errors that a pick must be off by to be suspect
  std::size_t beyond = 0;             ///< picks off by more than five of their errors
  std::size_t raised = 0;             ///< errors of picks taken as larger, see kLeastPickError
  std::vector<ShotShift> shifts;      ///< in the order of the records
  double least = 0.0;                 ///< m/s, what cells were held to
  double greatest = 0.0;
  CellPatch atLeast;  ///< crossed by rays, at the least velocity allowed
  CellPatch atGreatest;
  CellPatch withoutRays;  ///< drawn, and crossed by none
  std::size_t drawn = 0;  ///< cells

  /// Shifts that no fit has looked for.
  std::vector<ShotShift> seeming() const;
};

SecondLook secondLook(const TomoDocument& document);

/// Picks that the section of a document cannot explain, in the order of the records.
std::vector<SuspectPick> suspectsOf(const TomoDocument& document);

}  // namespace talvesk
