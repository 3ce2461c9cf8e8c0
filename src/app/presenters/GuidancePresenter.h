#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QTimer>
#include <memory>

class QAction;
class QThread;

namespace talvesk {

class GuidanceStrip;

/// The strip with the steps of the work, kept true to the survey, and what views offer that have
/// nothing to show yet.
class GuidancePresenter : public QObject {
 public:
  explicit GuidancePresenter(Desk& desk);
  ~GuidancePresenter() override;  ///< waits for a judgement under way

  void retranslate();
  QAction* toggleAction() const;  ///< shows and hides the strip

 private:
  void offerInEmptyViews();
  void refresh();

  Desk& mDesk;
  GuidanceStrip* mStrip;  ///< of the window
  QTimer mDue;
  std::unique_ptr<QThread> mJudging;  ///< none when no judgement is under way
  bool mAgain = false;                ///< the survey has changed meanwhile
  Session::Subscription mSubscription;
};

}  // namespace talvesk
