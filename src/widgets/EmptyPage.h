#pragma once

#include <QList>
#include <QWidget>
#include <memory>

class QAction;
class QLabel;
class QPushButton;

namespace talvesk {

/// A row of buttons that give commands: each has the text, the picture and the state of its action.
class CommandButtons : public QWidget {
 public:
  static constexpr int kMost = 3;

  explicit CommandButtons(QWidget* parent = nullptr);

  /// In place of those before; none hides the row. \param commands at most kMost
  void setCommands(const QList<QAction*>& commands);
  void setTabOrderAfter(QWidget* before);

 private:
  // There from the start, so that the Tab key comes to them where they stand.
  QList<QPushButton*> mButtons;
  QList<QAction*> mCommands;
  std::unique_ptr<QObject> mWires;  ///< between the commands and the buttons
};

/// What stands where there is nothing to show yet: what to do, and the commands that do it.
class EmptyPage : public QWidget {
 public:
  explicit EmptyPage(QWidget* parent = nullptr);

  QLabel& label() const { return *mLabel; }
  /// \param text plain; what stands before a blank line is the heading, which has no full stop
  void setText(const QString& text);
  void setCommands(const QList<QAction*>& commands) { mButtons->setCommands(commands); }
  void setTabOrderAfter(QWidget* before) { mButtons->setTabOrderAfter(before); }

 private:
  QLabel* mLabel;
  CommandButtons* mButtons;
};

}  // namespace talvesk
