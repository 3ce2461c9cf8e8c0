#pragma once

#include <QPointer>
#include <vector>

class QAction;
class QObject;
class QWidget;

namespace talvesk {

/// Keeps commands and widgets disabled while it lives, and enables afterwards those that were.
class CommandLock {
 public:
  /// Locks all commands that belong to `owner` but those in `free`, and the widgets.
  CommandLock(const QObject& owner, const std::vector<QAction*>& free,
              const std::vector<QWidget*>& widgets);
  ~CommandLock();
  CommandLock(const CommandLock&) = delete;
  CommandLock& operator=(const CommandLock&) = delete;

 private:
  std::vector<QPointer<QAction>> mActions;
  std::vector<QPointer<QWidget>> mWidgets;
};

}  // namespace talvesk
