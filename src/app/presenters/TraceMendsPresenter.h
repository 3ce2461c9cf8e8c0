#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

class QPoint;

namespace talvesk {

/// Mends of the traces that are selected in the view: the time to mute before, the menu over their
/// numbers, and what became of picks.
class TraceMendsPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit TraceMendsPresenter(Desk& desk);

  void askMute();  ///< asks before what time the selected traces of the shot in view are muted

 private:
  void askMute(editTravelTimesWidget& editor);
  void showMenu(const QPoint& at);

  Desk& mDesk;
};

}  // namespace talvesk
