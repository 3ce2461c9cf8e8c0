#include "gui/CommandAnswers.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

namespace talvesk::testing {
namespace {

constexpr int kDrawn = 6;       ///< looks after which a dialog is drawn
constexpr int kPatience = 400;  ///< looks at progress that goes on

bool showsProgress(const QWidget& dialog) {
  return qobject_cast<const QProgressDialog*>(&dialog) != nullptr ||
         dialog.objectName().startsWith(QLatin1String("progress"));
}

/// Not from here: what comes of it may open the next dialog, and this timer has to see that one.
template <typename Act>
void soon(QWidget& widget, Act act) {
  QTimer::singleShot(0, &widget, act);
}

void press(QAbstractButton& button) {
  soon(button, [&button] { button.click(); });
}

}  // namespace

QWidget* CommandAnswers::dialogInView() {
  if (QWidget* modal = QApplication::activeModalWidget()) {
    return modal->isVisible() ? modal : nullptr;
  }
  for (QWidget* each : QApplication::topLevelWidgets()) {
    if (each->isVisible() && each->windowType() == Qt::Dialog) return each;
  }
  return nullptr;
}

void CommandAnswers::timerEvent(QTimerEvent*) {
  QWidget* dialog = dialogInView();
  if (dialog == nullptr) {
    mSeen = nullptr;
    return;
  }
  if (dialog != mSeen) mLooks = 0;
  mSeen = dialog;
  if (++mLooks < (showsProgress(*dialog) ? kPatience : kDrawn)) return;
  mLooks = 0;
  answer(*dialog);
}

void CommandAnswers::answer(QWidget& dialog) {
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) return answerBox(*box);
  if (auto* asked = qobject_cast<QFileDialog*>(&dialog)) return answerFiles(*asked);
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  QPushButton* ok = buttons != nullptr ? buttons->button(QDialogButtonBox::Ok) : nullptr;
  if (buttons != nullptr && ok == nullptr) ok = buttons->button(QDialogButtonBox::Save);
  const bool again = &dialog == mAccepted;  // it has refused what stands in it
  mAccepted = &dialog;
  if (accepts && !again && ok != nullptr && ok->isEnabled() && !showsProgress(dialog)) {
    return press(*ok);
  }
  soon(dialog, [&dialog] { dialog.close(); });
}

void CommandAnswers::answerBox(QMessageBox& box) {
  for (const auto each : {QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Discard}) {
    if (QAbstractButton* button = box.button(each)) return press(*button);
  }
  soon(box, [&box] { box.reject(); });
}

void CommandAnswers::answerFiles(QFileDialog& dialog) {
  QStringList names = files;
  if (dialog.acceptMode() == QFileDialog::AcceptSave) {
    static const QRegularExpression kSuffix(QStringLiteral("\\*(\\.\\w+)"));
    names = QStringList{folder + QStringLiteral("/saved") +
                        kSuffix.match(dialog.selectedNameFilter()).captured(1)};
  }
  if (dialog.fileMode() == QFileDialog::Directory) names = QStringList{folder};
  if (!accepts || names.isEmpty() || &dialog == mAccepted) {
    return soon(dialog, [&dialog] { dialog.close(); });
  }
  mAccepted = &dialog;
  const QString text =
      names.size() == 1 ? names.front()
                        : QLatin1Char('"') + names.join(QStringLiteral("\" \"")) + QLatin1Char('"');
  dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(text);
  soon(dialog, [&dialog] { QMetaObject::invokeMethod(&dialog, "accept"); });
}

}  // namespace talvesk::testing
