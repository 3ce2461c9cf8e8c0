#include "app/KeypadArrows.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace talvesk {

KeypadArrows::KeypadArrows(QWidget& window, QAction& left, QAction& right)
    : QObject(&window), mWindow(window), mLeft(left), mRight(right) {
  QCoreApplication::instance()->installEventFilter(this);
}

QAction* KeypadArrows::commandOf(int key) const {
  if (key == Qt::Key_Left || key == Qt::Key_4) return &mLeft;
  if (key == Qt::Key_Right || key == Qt::Key_6) return &mRight;
  return nullptr;
}

bool KeypadArrows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.modifiers() != (Qt::ShiftModifier | Qt::KeypadModifier)) return false;
  if (static_cast<QWidget*>(watched)->window() != &mWindow) return false;
  QAction* command = commandOf(key.key());
  if (command == nullptr || !command->isEnabled()) return false;
  command->trigger();
  return true;
}

}  // namespace talvesk
