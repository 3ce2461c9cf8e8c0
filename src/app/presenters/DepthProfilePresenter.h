#pragma once

#include "app/presenters/Desk.h"

#include <QObject>
#include <optional>

namespace talvesk {

class DepthProfileDialog;

/// The window that shows the ground below the mouse.
class DepthProfilePresenter : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  explicit DepthProfilePresenter(Desk& desk);

  void show();
  /// Of the line, that the window shows or last showed, metres; none where it never did.
  std::optional<double> place() const;

 private:
  void refresh();
  void save();

  Desk& mDesk;
  DepthProfileDialog* mDialog = nullptr;  ///< the window's child, made when it is first asked for
  Session::Subscription mSubscription;
};

}  // namespace talvesk
