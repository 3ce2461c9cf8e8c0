#pragma once

#include "app/presenters/Desk.h"
#include "processing/DoubtfulPicks.h"

#include <QObject>
#include <optional>

namespace talvesk {

/// The walk through the picks that are to be looked at, over all shots and the worst first.
class ReviewPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit ReviewPresenter(Desk& desk);

  void showNextDoubtful();
  void showPreviousDoubtful();

 private:
  void walk(bool forward);
  void show(const DoubtfulPick& pick);
  QString reasonsOf(const DoubtfulPick& pick) const;
  QString nothingDoubtful(const PickReview& review) const;

  Desk& mDesk;
  std::optional<DoubtfulPick> mStanding;  ///< where the walk has come to
  Session::Subscription mSubscription;
};

}  // namespace talvesk
