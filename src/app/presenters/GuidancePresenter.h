#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QTimer>

class QAction;

namespace talvesk {

class GuidanceStrip;

/// The strip with the steps of the work, kept true to the survey, and what views offer that have
/// nothing to show yet.
class GuidancePresenter : public QObject {
 public:
  explicit GuidancePresenter(Desk& desk);

  void retranslate();
  QAction* toggleAction() const;  ///< shows and hides the strip

 private:
  void offerInEmptyViews();
  void refresh();

  Desk& mDesk;
  GuidanceStrip* mStrip;  ///< of the window
  QTimer mDue;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
