#include "app/CommandLock.h"

#include <QAction>
#include <QMenu>
#include <QWidget>
#include <algorithm>

namespace talvesk {

CommandLock::CommandLock(const QObject& owner, const std::vector<QAction*>& free,
                         const std::vector<QWidget*>& widgets) {
  for (QAction* action : owner.findChildren<QAction*>()) {
    const bool stays = std::find(free.begin(), free.end(), action) != free.end();
    // Menus open all the same, to show what there is.
    if (stays || action->menu() != nullptr || !action->isEnabled()) continue;
    action->setEnabled(false);
    mActions.emplace_back(action);
  }
  for (QWidget* widget : widgets) {
    if (!widget->isEnabled()) continue;
    widget->setEnabled(false);
    mWidgets.emplace_back(widget);
  }
}

CommandLock::~CommandLock() {
  for (const QPointer<QAction>& action : mActions) {
    if (action) action->setEnabled(true);
  }
  for (const QPointer<QWidget>& widget : mWidgets) {
    if (widget) widget->setEnabled(true);
  }
}

}  // namespace talvesk
