#pragma once

#include <QList>
#include <QWidget>

class QAction;
class QLabel;

namespace talvesk {

/// A row of buttons that give commands: each has the text, the picture and the state of its action.
class CommandButtons : public QWidget {
 public:
  explicit CommandButtons(QWidget* parent = nullptr);

  void setCommands(const QList<QAction*>& commands);  ///< in place of those before; none hides it

 private:
  QList<QAction*> mCommands;
};

/// What stands where there is nothing to show yet: what to do, and the commands that do it.
class EmptyPage : public QWidget {
 public:
  explicit EmptyPage(QWidget* parent = nullptr);

  QLabel& label() const { return *mLabel; }
  void setCommands(const QList<QAction*>& commands) { mButtons->setCommands(commands); }

 private:
  QLabel* mLabel;
  CommandButtons* mButtons;
};

}  // namespace talvesk
