#include "app/Talvesk_MainWindows.h"

#include <QInputDialog>

namespace talvesk {

void Talvesk_MainWindows::on_actionSet_title_triggered() {
  logSlot(__func__);
  bool accepted = false;
  const QString title =
      QInputDialog::getText(this, tr("Project title"), tr("&Title:"), QLineEdit::Normal,
                            QString::fromStdString(document().title), &accepted);
  if (!accepted || title.toStdString() == document().title) return;
  edit(Edit::kTitle, [&](Survey& survey) { survey.document.title = title.toStdString(); });
}

}  // namespace talvesk
