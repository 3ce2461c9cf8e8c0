#include "gui/StallWatch.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QProgressBar>
#include <algorithm>
#include <ctime>

namespace talvesk::testing {
namespace {

constexpr int kBeat = 2;  ///< milliseconds

StallWatch* watch = nullptr;

double msOf(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
}

}  // namespace

double wallMs() {
  return msOf(CLOCK_MONOTONIC);
}

double busyMs() {
  return msOf(CLOCK_THREAD_CPUTIME_ID);
}

StallWatch::StallWatch() {
  watch = this;
  qApp->installEventFilter(this);
  mTimer.setTimerType(Qt::PreciseTimer);
  connect(&mTimer, &QTimer::timeout, this, &StallWatch::beat);
  restart();
  mTimer.start(kBeat);
}

StallWatch::~StallWatch() {
  watch = nullptr;
}

void StallWatch::restart() {
  mStall = {};
  mWall = wallMs();
  mBusy = mHush = busyMs();
}

const Stall& StallWatch::stall() {
  beat();
  return mStall;
}

void StallWatch::beat() {
  mStall.wall = std::max(mStall.wall, wallMs() - mWall);
  mStall.busy = std::max(mStall.busy, busyMs() - mBusy);
  hush();
  mWall = wallMs();
  mBusy = busyMs();
}

void StallWatch::hush() {
  const double now = busyMs();
  if (mLives == 0) mStall.silent = std::max(mStall.silent, now - mHush);
  mHush = now;
}

void StallWatch::lifeBegins() {
  hush();
  ++mLives;
}

void StallWatch::lifeEnds() {
  hush();
  mLives = std::max(mLives - 1, 0);
}

/// A bar counts from when it is painted: one that is only asked to show is not seen yet.
bool StallWatch::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Paint && qobject_cast<QProgressBar*>(object) != nullptr &&
      !mBars.contains(object)) {
    mBars.insert(object);
    lifeBegins();
  }
  if (event->type() == QEvent::Hide && mBars.remove(object)) lifeEnds();
  return false;
}

}  // namespace talvesk::testing

// The linker hands the program these in place of Qt's own.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void __real__ZN15QGuiApplication17setOverrideCursorERK7QCursor(const QCursor& cursor);
void __real__ZN15QGuiApplication21restoreOverrideCursorEv();

void __wrap__ZN15QGuiApplication17setOverrideCursorERK7QCursor(const QCursor& cursor) {
  __real__ZN15QGuiApplication17setOverrideCursorERK7QCursor(cursor);
  if (talvesk::testing::watch != nullptr) talvesk::testing::watch->lifeBegins();
}

void __wrap__ZN15QGuiApplication21restoreOverrideCursorEv() {
  if (talvesk::testing::watch != nullptr) talvesk::testing::watch->lifeEnds();
  __real__ZN15QGuiApplication21restoreOverrideCursorEv();
}
}
// NOLINTEND(bugprone-reserved-identifier)
