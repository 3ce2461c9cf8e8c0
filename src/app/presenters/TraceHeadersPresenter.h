#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace talvesk {

class TraceHeadersDialog;

/// The headers of all traces, in a window that stays open beside them and follows the survey.
class TraceHeadersPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit TraceHeadersPresenter(Desk& desk);

  void show();         ///< opens the window, or brings it to the front
  void retranslate();  ///< where it is open

 private:
  void refresh();
  void goTo(std::size_t set, std::size_t trace);
  void save();

  Desk& mDesk;
  QPointer<TraceHeadersDialog> mDialog;
  bool mOtherFiles = false;  ///< recordings have changed since their files were read
  bool mReading = false;     ///< files, beside the window
  int mChanges = 0;          ///< of what the table shows, so far
  QTimer mSoon;              ///< several picks of one stroke are looked at together
  Session::Subscription mSubscription;
};

}  // namespace talvesk
