#include "app/DialogRoom.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QScreen>

namespace talvesk {
namespace {

/// What the desktop lays around a dialog, pixels. It tells its own only when one has been shown.
constexpr QSize kFrame(10, 30);

/// A form lays out its boxes before they have their texts, and Qt keeps the least width that a box
/// had then: the texts would be cut off wherever there is little room.
void measureBoxes(QDialog& dialog) {
  for (QComboBox* box : dialog.findChildren<QComboBox*>()) {
    QEvent forget(QEvent::StyleChange);
    QCoreApplication::sendEvent(box, &forget);
    box->updateGeometry();
  }
  if (dialog.layout() != nullptr) dialog.layout()->activate();
}

}  // namespace

DialogRoom::DialogRoom(QObject* parent) : QObject(parent) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool DialogRoom::eventFilter(QObject* watched, QEvent* event) {
  // It comes before the dialog is on the screen, and before it looks for its place there.
  if (event->type() == QEvent::Show && !event->spontaneous()) {
    if (auto* dialog = qobject_cast<QDialog*>(watched)) {
      measureBoxes(*dialog);
      const QSize room = dialog->screen()->availableSize() - kFrame;
      const QSize bounded = dialog->size().boundedTo(room);
      if (bounded != dialog->size()) dialog->resize(bounded);
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace talvesk
