#pragma once

#include "app/presenters/Desk.h"

#include <QObject>

namespace talvesk {

enum class PickSnap;
enum class TraceTool;
struct TraceViewOptions;

/// How traces are drawn and picked: settings, choices that last as long as the window, tools.
class TraceOptionsPresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit TraceOptionsPresenter(Desk& desk);

  void setSetting(bool Settings::*setting, bool on);        ///< is remembered
  void setOption(bool TraceViewOptions::*option, bool on);  ///< lasts as long as the window
  void setTrueAmplitudes(bool on);
  void setOnlyTraces(bool on);  ///< neither picks nor curve
  void gainUp();
  void gainDown();
  void setSnap(PickSnap snap);
  void setTool(TraceTool tool);

  void refresh();  ///< the views follow the settings

 private:
  void change(const std::function<void(TraceViewOptions&)>& change);

  Desk& mDesk;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
