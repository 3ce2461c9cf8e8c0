#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace talvesk {

/// Triggers two commands of a window by Shift and the arrows of the keypad. Under X11 such a key
/// never matches a shortcut: Qt takes the mark of the keypad off a key before it looks for one.
/// With the number lock off, Shift turns the arrows into the digits that they share a key with,
/// so these count, too. Watches the application as long as it lives.
class KeypadArrows : public QObject {
 public:
  /// \param window whose keys are meant, not those of its dialogs; owns this
  KeypadArrows(QWidget& window, QAction& left, QAction& right);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAction* commandOf(int key) const;  ///< null for other keys

  QWidget& mWindow;
  QAction& mLeft;
  QAction& mRight;
};

}  // namespace talvesk
