#include "widgets/Viewport.h"

namespace talvesk {

ViewWindow Viewport::confine(const ViewWindow& wanted) const {
  return confined(wanted, mExtent.whole, mExtent.leastWidth, mExtent.leastHeight);
}

void Viewport::setExtent(const Extent& extent) {
  mExtent = extent;
  mExtent.home = confine(extent.home);
  mWindow = mFollowsHome ? mExtent.home : confine(mWindow);
}

void Viewport::followHome() {
  mFollowsHome = true;
  mWindow = mExtent.home;
}

bool Viewport::show(const ViewWindow& wanted, Step step, Clock::time_point now) {
  const ViewWindow next = confine(wanted);
  mFollowsHome = next == mExtent.home;
  if (next == mWindow) return false;
  const bool goesOn = step == Step::Continuing && mLastStep && now - *mLastStep < kPause;
  if (step != Step::Silent && !goesOn) mHistory.leave(mWindow);
  mLastStep = step == Step::Continuing ? std::optional(now) : std::nullopt;
  mWindow = next;
  return true;
}

bool Viewport::zoomAbout(double x, double y, double byX, double byY) {
  return show(zoomed(mWindow, x, y, byX, byY), Step::Continuing);
}

bool Viewport::pan(double byX, double byY, Step step) {
  return show(moved(mWindow, byX, byY), step);
}

bool Viewport::arriveFrom(const ViewWindow& before) {
  if (before == mWindow) return false;
  mHistory.leave(before);
  return true;
}

bool Viewport::goBack() {
  if (!canGoBack()) return false;
  show(mHistory.back(mWindow), Step::Silent);
  return true;
}

bool Viewport::goForward() {
  if (!canGoForward()) return false;
  show(mHistory.forward(mWindow), Step::Silent);
  return true;
}

}  // namespace talvesk
