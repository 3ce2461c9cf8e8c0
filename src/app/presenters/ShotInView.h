#pragma once

#include "session/Session.h"

#include <QObject>

namespace talvesk {

/// Which record of the survey the window shows. When records go, one that is left comes into view.
class ShotInView : public QObject {
  Q_OBJECT

 public:
  explicit ShotInView(Session& session);

  int index() const { return mIndex; }  ///< from 0, -1 without one
  /// \param index a record that does not exist leaves none in view
  void show(int index);
  /// Shows the record after the one in view, or before it; round and round.
  void showNext();
  void showPrevious();
  /// Another survey comes, with shots of its own. Nobody is told until it is there.
  void forget() { mIndex = -1; }

 signals:
  void changed();  ///< by show(), to the same record, too

 private:
  int count() const;

  const Session& mSession;
  Session::Subscription mSubscription;
  int mIndex = -1;
};

}  // namespace talvesk
