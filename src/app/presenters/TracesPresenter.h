#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>
#include <vector>

class QComboBox;

namespace talvesk {

struct TraceCursor;

/// The traces of the shot in view: which shot it is, and what is under the mouse.
class TracesPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit TracesPresenter(Desk& desk);

  void showDetails();    ///< what the files of the recordings say of them
  void mendRecording();  ///< asks for the mends of the one in view
  void takeBackMends();  ///< of all shots
  void removeShot();     ///< the one in view, with its recording and picks
  void retranslate();

 private:
  void addChooser();
  void connectEditors();
  void showRecords();
  void showShot();
  void refreshChooser();
  void mend(const QString& failure,
            const std::function<Status(TomoDocument&, std::vector<Message>&)>& change);
  void showCursor(const TraceCursor& cursor);

  Desk& mDesk;
  QComboBox* mChooser;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
