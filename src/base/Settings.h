#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

/// What the user prefers, kept in an XML file of the working folder.
class Settings {
 public:
  explicit Settings(std::string path) : mPath(std::move(path)) {}

  /// True when the file exists and could be read. Keys that an older version did not write keep
  /// their defaults and are told on the console.
  bool load();
  Status save() const;

  const std::string& path() const { return mPath; }

  std::string language = "en";    ///< locale code of the user interface
  bool fillWiggle = true;         ///< fill the wiggles of traces
  bool zoomIn = false;            ///< traces zoomed in
  bool cutHorizontal = true;      ///< wiggles cut horizontally
  bool showFiltered = true;       ///< show the filtered copies
  bool showAllTraces = false;     ///< show all traces
  bool twoColors = false;         ///< wiggles in two colours
  bool savePngHColorbar = false;  ///< horizontal colour bar in saved pictures
  bool errorBars = true;          ///< over picks whose error is known
  // Guides in the traces.
  bool showComputedTimes = false;    ///< times through the section
  bool showNeighbour = false;        ///< picks of the nearest shot
  bool showReciprocalTimes = false;  ///< of other shots along the same ways
  /// What the steps of undo may cost, MB; kLeastUndo to kMostUndo.
  int undoMegabytes = 512;
  static constexpr int kLeastUndo = 16;
  static constexpr int kMostUndo = 65536;
  int samplesOnDisk = 0;  ///< when samples are kept on the disk, a SamplesOnDisk
  bool feet = false;      ///< lengths and velocities are shown and asked for in feet

 private:
  std::string mPath;
};

}  // namespace talvesk
