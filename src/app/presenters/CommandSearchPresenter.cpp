#include "app/presenters/CommandSearchPresenter.h"

#include "app/dialogs/CommandSearchDialog.h"
#include "app/presenters/CommandReasons.h"
#include "ui_Talvesk_MainWindows.h"

#include <QAction>
#include <QSettings>

namespace talvesk {
namespace {

const QString kKey = QStringLiteral("recentCommands");
constexpr int kMost = 12;

}  // namespace

void CommandSearchPresenter::find() {
  std::vector<IndexedCommand> commands = commandsOf(*mDesk.ui.menuBar, mDesk.ui.actionFind_command);
  for (IndexedCommand& command : commands) command.whyNot = whyNot(*command.action);
  CommandSearchDialog dialog(std::move(commands), recent(), &mDesk.window);
  if (dialog.exec() != QDialog::Accepted || dialog.taken() == nullptr) return;
  remember(dialog.taken()->key);
  // After the search has ended as a command: what it found may be one that closes the window.
  if (QAction* action = dialog.taken()->action) {
    QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
  }
}

QString CommandSearchPresenter::whyNot(const QAction& action) const {
  if (action.isEnabled()) return {};
  if (mDesk.inversionRuns) {
    return tr("An inversion is under way; the survey cannot be edited.");
  }
  const Command* row = rowOf ? rowOf(action) : nullptr;
  return row != nullptr ? whyDisabled(*row) : tr("It cannot work now.");
}

QStringList CommandSearchPresenter::recent() const {
  return QSettings(mDesk.windowStateFile(), QSettings::IniFormat).value(kKey).toStringList();
}

void CommandSearchPresenter::remember(const QString& key) {
  QStringList keys = recent();
  keys.removeAll(key);
  keys.prepend(key);
  QSettings(mDesk.windowStateFile(), QSettings::IniFormat)
      .setValue(kKey, QVariant(QStringList(keys.mid(0, kMost))));
}

}  // namespace talvesk
