#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

namespace talvesk::testing {

/// Milliseconds.
struct Stall {
  double wall = 0.0;    ///< the longest time in which the event loop did not come round
  double busy = 0.0;    ///< the longest that its thread computed meanwhile
  double silent = 0.0;  ///< the longest of that without a wait cursor or a bar of progress
};

double wallMs();
/// What this thread has computed, which does not depend on what else the machine does.
double busyMs();

/// Watches the event loop of the program, and what a user sees while it does not come round. One at
/// a time; the program is linked so that it hears of override cursors (see CMakeLists.txt).
class StallWatch : public QObject {
 public:
  StallWatch();
  ~StallWatch() override;

  void restart();
  const Stall& stall();  ///< since then, with the one under way

  void lifeBegins();  ///< a sign of life has come into view
  void lifeEnds();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void beat();
  void hush();

  QTimer mTimer;
  Stall mStall;
  double mWall = 0.0;
  double mBusy = 0.0;
  double mHush = 0.0;  ///< when the last sign of life was, by busyMs()
  int mLives = 0;      ///< signs of life in view
  QSet<QObject*> mBars;
};

}  // namespace talvesk::testing
