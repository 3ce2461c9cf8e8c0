#pragma once

#include "app/presenters/CommandState.h"

#include <functional>
#include <string>
#include <vector>

class QObject;

namespace talvesk {

/// One command of the window: an action of the form, or a check box.
struct Command {
  using Test = std::function<bool(const CommandState&)>;
  /// \param checked state of the action or check box, as the user has turned it
  using Run = std::function<void(bool checked)>;

  const char* object;  ///< name in the form
  Test enabled;        ///< when it can work
  Run run;
  Test checked = nullptr;         ///< null: it shows no state, or keeps its own
  const char* ownSlot = nullptr;  ///< its slot where that is not called after the object
  const char* group = nullptr;    ///< of actions of which one is checked
};

/// All commands of the window. What is enabled and checked is set here, and nowhere else but while
/// an inversion runs (CommandLock).
class CommandTable {
 public:
  /// Every row names an object of the form. Connects those for which the window has no slot that
  /// Qt has connected by its name; those with a slot of their own the window connects.
  CommandTable(Desk& desk, std::vector<Command> rows);
  CommandTable(const CommandTable&) = delete;
  CommandTable& operator=(const CommandTable&) = delete;

  const std::vector<Command>& rows() const { return mRows; }
  static std::string slotOf(const Command& command);  ///< "on_actionGrid_triggered"

  /// The row of an object of the form; null where it has none.
  const Command* rowOf(const QObject& object) const;

  /// Tells the log the name of a slot and runs its command.
  void run(const std::string& slot);
  /// What is enabled and checked follows the survey and the view.
  void refresh();

 private:
  void groupActions();
  void connectRest();

  Desk& mDesk;
  std::vector<Command> mRows;
  std::vector<QObject*> mObjects;  ///< of the rows
};

}  // namespace talvesk
