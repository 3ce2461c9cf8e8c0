#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>
#include <optional>

class QInputDialog;

namespace talvesk {

enum class PickSnap;
enum class TraceTool;
struct GatherManner;
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
  void setByDistance(bool on);  ///< and no longer by offset
  void askReduction();          ///< by what velocity times are reduced; the view follows at once
  void askTimeGain();           ///< by what power of time wiggles are drawn; the same
  void gainUp();
  void gainDown();
  void setSnap(PickSnap snap);
  void setTool(TraceTool tool);

  void refresh();  ///< the views follow the settings

 private:
  void change(const std::function<void(TraceViewOptions&)>& change);
  /// Asks for a number that the view follows while it is chosen. The view is as before in the end.
  /// \return none when nothing was chosen
  std::optional<double> ask(QInputDialog& box,
                            const std::function<void(GatherManner&, double)>& change);

  Desk& mDesk;
  Session::Subscription mSubscription;
};

}  // namespace talvesk
