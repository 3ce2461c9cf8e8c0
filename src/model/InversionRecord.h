#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// How well the times of the last solver pass fit the picks: those along the rays of an external
/// iteration, before the last correction of the velocities and before they are smoothed.
struct Misfit {
  int count = 0;                  ///< picks used; 0 means that nothing below is valid
  double rmse = 0.0;              ///< seconds
  double relativeRms = 0.0;       ///< a fraction, not percent
  double maxError = 0.0;          ///< seconds, of the receiver with the largest late relative error
  double maxRelativeError = 0.0;  ///< a fraction; only computed times later than the pick count
};

/// How well the times through a section, along rays traced anew in it, fit the picks. This is the
/// figure of the section that is shown; a Misfit is the solver's own.
struct SectionMisfit {
  int count = 0;                  ///< picks used; 0 means that nothing below is valid
  double rmse = 0.0;              ///< seconds
  double relativeRms = 0.0;       ///< of the residuals over their picks, a fraction
  double bias = 0.0;              ///< mean of computed minus measured, seconds: late is positive
  double maxAbs = 0.0;            ///< largest difference of either sign, seconds
  std::int32_t maxShot = -1;      ///< record with it, from 0
  std::int32_t maxReceiver = -1;  ///< and geophone of its string, from 0
  /// The RMSE without what stands out by more than 3.5 robust deviations, seconds. No project keeps
  /// it: 0 in one that was read.
  double trimmed = 0.0;
};

/// A time shift of a shot that a fit has found.
struct FoundShift {
  double late =
      0.0;  ///< seconds that its record begins too late by, beyond what is mended; 0: none
  double mended = 0.0;  ///< time shift that the record had been given by then, seconds
};

/// How a section was fitted to the errors of its picks, and what came of it.
struct FitRecord {
  double errorFloor = 0.0;  ///< of picks that state no error, seconds
  double errorShare = 0.0;  ///< of their times
  bool robust = false;
  bool blocky = false;
  bool statics = false;
  double triggerError = 0.002;  ///< that statics were damped by, seconds
  double lambda = 0.0;          ///< weight of the roughness that the section was found with
  double chi2 = 0.0;            ///< of the section, suspects left out
  double chi2All = 0.0;
  int suspects = 0;         ///< picks
  bool target = false;      ///< whether chi-square has come to 1 as nearly as wanted
  std::string reference;    ///< key of the model that it was held to, see tomo/fitted/References.h
  std::uint64_t known = 0;  ///< fingerprintOf() the known ground that it was held to; 0: to none
  std::vector<FoundShift> shifts;  ///< per record of the document; empty when none were asked for
};

/// How the inversion was run that the results of the document come from, for who must tell of it
/// later.
struct InversionRecord {
  int externalIterations = 0;  ///< asked for; the history has one entry for each that was done
  int solverIterations = 0;
  int smoothing = 0;      ///< smoothing parameter, cells
  int smoothingType = 0;  ///< see SmoothingType
  bool symmetric = false;
  double minVelocity = 0.0;     ///< m/s
  double maxVelocity = 0.0;     ///< m/s
  double elapsedSeconds = 0.0;  ///< since it was asked for, questions included
  bool stopped = false;         ///< by the user, before the last iteration
  std::vector<Misfit> history;  ///< after every completed external iteration

  // What follows is not known of inversions of earlier versions.
  double computingSeconds = 0.0;  ///< of the run alone; 0: not known
  /// Through the starting model, and through the section after every completed external iteration;
  /// empty: not known.
  std::vector<SectionMisfit> sectionHistory;
  /// External iterations that were completed while the smoothing radius shrank; the histories end
  /// with the best of them, whose section was kept. 0: the radius stayed the same.
  int coarseToFine = 0;
  /// By what errors of picks that state none the section is told of where it was not fitted to any:
  /// the least, seconds, and a share of their times. A least of 0: by the usual ones.
  double errorFloor = 0.0;
  double errorShare = 0.0;
  /// Of a section that was fitted to the errors of its picks; none: by solver passes and smoothing.
  std::optional<FitRecord> fit;
  std::uint64_t picks = 0;  ///< fingerprintOfPicks() of those that it was run with; 0: not known
};

}  // namespace talvesk
