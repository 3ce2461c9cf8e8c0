#include "app/presenters/CommandTable.h"

#include "app/presenters/Desk.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <algorithm>
#include <map>
#include <utility>

namespace talvesk {

CommandTable::CommandTable(Desk& desk, std::vector<Command> rows)
    : mDesk(desk), mRows(std::move(rows)) {
  for (const Command& row : mRows) {
    auto* object = desk.window.findChild<QObject*>(QLatin1String(row.object));
    if (object == nullptr) qFatal("The form has no %s", row.object);
    mObjects.push_back(object);
  }
  groupActions();
  connectRest();
}

void CommandTable::groupActions() {
  std::map<std::string, QActionGroup*> groups;
  for (std::size_t i = 0; i < mRows.size(); ++i) {
    if (mRows[i].group == nullptr) continue;
    QActionGroup*& group = groups[mRows[i].group];
    if (group == nullptr) group = new QActionGroup(&mDesk.window);
    group->addAction(qobject_cast<QAction*>(mObjects[i]));
  }
}

std::string CommandTable::slotOf(const Command& command) {
  if (command.ownSlot != nullptr) return command.ownSlot;
  const std::string object = command.object;
  return "on_" + object + (object.rfind("action", 0) == 0 ? "_triggered" : "_clicked");
}

void CommandTable::connectRest() {
  for (std::size_t i = 0; i < mRows.size(); ++i) {
    const std::string slot = slotOf(mRows[i]);
    const bool byName = mDesk.window.metaObject()->indexOfSlot((slot + "()").c_str()) >= 0;
    if (byName || mRows[i].ownSlot != nullptr) continue;
    const auto run = [this, slot] { this->run(slot); };
    if (auto* action = qobject_cast<QAction*>(mObjects[i])) {
      QObject::connect(action, &QAction::triggered, &mDesk.window, run);
    } else if (auto* button = qobject_cast<QAbstractButton*>(mObjects[i])) {
      QObject::connect(button, &QAbstractButton::clicked, &mDesk.window, run);
    }
  }
}

void CommandTable::run(const std::string& slot) {
  mDesk.logSlot(slot.c_str());
  const auto row = std::find_if(mRows.begin(), mRows.end(),
                                [&slot](const Command& each) { return slotOf(each) == slot; });
  if (row == mRows.end()) qFatal("No command has the slot %s", slot.c_str());
  const QObject& object = *mObjects[static_cast<std::size_t>(row - mRows.begin())];
  row->run(object.property("checked").toBool());
  // The click may have turned over what the answer has not.
  refresh();
}

const Command* CommandTable::rowOf(const QObject& object) const {
  const auto found = std::find(mObjects.begin(), mObjects.end(), &object);
  return found == mObjects.end() ? nullptr
                                 : &mRows[static_cast<std::size_t>(found - mObjects.begin())];
}

void CommandTable::refresh() {
  if (mDesk.inversionRuns) return;  // all are locked; they are refreshed when it has ended
  const CommandState state(mDesk);
  for (std::size_t i = 0; i < mRows.size(); ++i) {
    mObjects[i]->setProperty("enabled", mRows[i].enabled(state));
    if (mRows[i].checked) mObjects[i]->setProperty("checked", mRows[i].checked(state));
  }
}

}  // namespace talvesk
