#include "app/Talvesk_MainWindows.h"

#include <QInputDialog>

namespace talvesk {

void Talvesk_MainWindows::on_actionSet_title_triggered() {
  logSlot(__func__);
  bool accepted = false;
  const QString title =
      QInputDialog::getText(this, tr("Project title"), tr("&Title:"), QLineEdit::Normal,
                            QString::fromStdString(mDocument.title), &accepted);
  if (!accepted || title.toStdString() == mDocument.title) return;
  mDocument.title = title.toStdString();
  documentModified();
  refreshSection();
}

}  // namespace talvesk
