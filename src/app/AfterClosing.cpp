#include "app/AfterClosing.h"

#include <QAction>
#include <QDialog>

namespace talvesk {

QAction* afterClosing(QDialog& dialog, QAction& command) {
  auto* given = new QAction(command.icon(), command.text(), &dialog);
  given->setToolTip(command.toolTip());
  given->setEnabled(command.isEnabled());
  QObject::connect(given, &QAction::triggered, &dialog, [&dialog, &command] {
    dialog.reject();
    QMetaObject::invokeMethod(&command, &QAction::trigger, Qt::QueuedConnection);
  });
  return given;
}

}  // namespace talvesk
