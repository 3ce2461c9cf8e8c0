#pragma once

#include "widgets/ViewHistory.h"
#include "widgets/ViewWindow.h"

#include <chrono>
#include <optional>

namespace talvesk {

/// What of a plot is seen: a window that stays within the whole, and the windows that the user came
/// through. It knows of no widget; the plot tells it what there is to see and draws its window.
///
/// A viewport that shows its home window follows it, when the extent changes; once the user has
/// gone elsewhere the window stays as far as it can.
class Viewport {
 public:
  using Clock = std::chrono::steady_clock;

  struct Extent {
    ViewWindow whole;
    ViewWindow home;  ///< the opening view; confined to the whole
    double leastWidth = 0.0;
    double leastHeight = 0.0;
  };
  /// How a new window enters the history.
  enum class Step {
    New,         ///< the one before can be gone back to
    Continuing,  ///< one of many small steps, which are gone back from together
    Silent       ///< not at all
  };
  /// Continuing steps nearer in time than this are one.
  static constexpr std::chrono::milliseconds kPause{900};

  const ViewWindow& window() const { return mWindow; }
  const ViewWindow& whole() const { return mExtent.whole; }
  bool followsHome() const { return mFollowsHome; }

  void setExtent(const Extent& extent);
  void followHome();  ///< shows the home window of now on, and those of later extents
  void clearHistory() { mHistory.clear(); }

  /// All of these return whether anything changed: the window, or where one can go back to.
  bool show(const ViewWindow& wanted, Step step, Clock::time_point now = Clock::now());
  /// Narrower by the factors, with the place (x, y) staying put.
  bool zoomAbout(double x, double y, double byX, double byY);
  bool pan(double byX, double byY, Step step);
  bool fit() { return show(mExtent.whole, Step::New); }
  bool home() { return show(mExtent.home, Step::New); }
  /// The user came to this window by silent steps from `before`, which can be gone back to.
  bool arriveFrom(const ViewWindow& before);

  bool canGoBack() const { return mHistory.canGoBack(); }
  bool canGoForward() const { return mHistory.canGoForward(); }
  bool goBack();
  bool goForward();

 private:
  ViewWindow confine(const ViewWindow& wanted) const;

  Extent mExtent;
  ViewWindow mWindow;
  bool mFollowsHome = true;
  ViewHistory mHistory;
  std::optional<Clock::time_point> mLastStep;  ///< of a continuing step that more may follow
};

}  // namespace talvesk
