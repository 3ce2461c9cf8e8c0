#pragma once

namespace talvesk {

struct Desk;
struct SectionViewSettings;
struct Settings;
struct TraceViewOptions;
enum class TraceTool;

/// What commands are enabled and checked by, as it is now.
struct CommandState {
  explicit CommandState(const Desk& desk);

  bool records;       ///< the survey has any
  bool traces;        ///< and recordings
  bool recordInView;  ///< there is a current one
  bool shotInView;    ///< with traces
  bool mends;         ///< any shot has some
  bool filteredCopy;  ///< of the shot in view
  bool beforeShot;    ///< traces still begin before their shot
  bool picksInRange;  ///< where the traces are selected
  bool unconfirmedInRange;
  bool picksToReview;  ///< they are shown
  bool canZoomBack;
  bool canZoomForward;
  bool canUndo;
  bool canRedo;
  bool strings;   ///< records, or geophones without
  bool toSave;    ///< something, or a change
  bool grid;      ///< there is one, though perhaps without cells
  bool cells;     ///< the grid has any
  bool computed;  ///< an inversion has ended
  bool rays;      ///< over cells
  bool density;   ///< information density of cells
  bool refractors;
  bool known;        ///< ground, over cells
  bool annotations;  ///< over a picture
  bool picture;      ///< cells, or the layered profile alone
  bool line;         ///< geophones at two ends
  bool lineAndGrid;
  bool drawable;  ///< records or a grid: something to make pictures of

  bool inverted;   ///< cells with the velocities of an inversion
  bool certainty;  ///< of these

  const Settings& settings;
  const TraceViewOptions& traceView;
  TraceTool tool;
  const SectionViewSettings& section;
};

}  // namespace talvesk
