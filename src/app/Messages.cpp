#include "app/Messages.h"

#include "app/DarkDesktop.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace talvesk {
namespace {

const QString kErrorStyle = QStringLiteral("color: red; font-size: 11px;");

/// Paths and reasons are long, and a box is as wide as its short text else; pixels.
constexpr int kTextWidth = 420;

/// Names and reasons stand as they are, though they may look like tags.
void setPlainTexts(QMessageBox& box, const QString& details) {
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(details);
  // The format of the box is that of its first text only.
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
  if (label != nullptr) label->setTextFormat(Qt::PlainText);
}

/// Gives the text of a box its least width. The box offers no other way to style its text without
/// its buttons, either.
void widen(QMessageBox& box, const QString& textStyle) {
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (label == nullptr) return;
  label->setStyleSheet(textStyle);
  label->ensurePolished();
  // A wider text must be free to wrap: a label with a least width of its own is cut off instead.
  if (label->sizeHint().width() < kTextWidth) label->setMinimumWidth(kTextWidth);
}

void show(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
          const QString& details, const QString& textStyle = QString(),
          const QString& unfolded = QString()) {
  QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
  setPlainTexts(box, details);
  widen(box, textStyle);
  box.setDetailedText(unfolded);
  box.exec();
}

}  // namespace

void showError(QWidget* parent, const QString& title, const QString& text, const QString& details) {
  show(parent, QMessageBox::Critical, title, text, details, kErrorStyle);
}

void showErrors(QWidget* parent, const QString& title, const QString& text,
                const QStringList& reasons) {
  const bool all = reasons.size() <= kShortList;
  show(parent, QMessageBox::Critical, title, text, shortList(reasons), kErrorStyle,
       all ? QString() : reasons.join(QLatin1Char('\n')));
}

void showWarning(QWidget* parent, const QString& title, const QString& text,
                 const QString& details) {
  show(parent, QMessageBox::Warning, title, text, details);
}

void showUrgentWarning(QWidget* parent, const QString& title, const QString& text) {
  show(parent, QMessageBox::Warning, title, text, {}, kErrorStyle);
}

void showNote(QWidget* parent, const QString& title, const QString& text, const QString& details) {
  show(parent, QMessageBox::Information, title, text, details);
}

bool askYesNo(QWidget* parent, const QString& title, const QString& text, const QString& details,
              bool yesIsDefault) {
  QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, parent);
  setPlainTexts(box, details);
  box.setDefaultButton(yesIsDefault ? QMessageBox::Yes : QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

SaveAnswer askToSave(QWidget* parent) {
  QMessageBox box(parent);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle(QCoreApplication::applicationName());
  box.setText(QCoreApplication::translate("talvesk::Messages", "The document has been modified"));
  setPlainTexts(
      box, QCoreApplication::translate("talvesk::Messages", "Do you want to save your changes?"));
  box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  box.setDefaultButton(QMessageBox::Save);
  switch (box.exec()) {
    case QMessageBox::Save:
      return SaveAnswer::kSave;
    case QMessageBox::Discard:
      return SaveAnswer::kDiscard;
    default:
      return SaveAnswer::kCancel;
  }
}

RecoveryAnswer askToRecover(QWidget* parent, const QString& details) {
  QMessageBox box(parent);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle(QCoreApplication::translate("talvesk::Messages", "Recover survey"));
  box.setText(QCoreApplication::translate("talvesk::Messages", "Talvesk was not closed properly."));
  setPlainTexts(box, details);
  box.setStandardButtons(QMessageBox::Open | QMessageBox::Discard | QMessageBox::Cancel);
  box.setDefaultButton(QMessageBox::Open);
  box.button(QMessageBox::Discard)
      ->setText(QCoreApplication::translate("talvesk::Messages", "Delete it"));
  box.button(QMessageBox::Cancel)
      ->setText(QCoreApplication::translate("talvesk::Messages", "Ask again later"));
  widen(box, {});
  switch (box.exec()) {
    case QMessageBox::Open:
      return RecoveryAnswer::kOpen;
    case QMessageBox::Discard:
      return RecoveryAnswer::kDiscard;
    default:
      return RecoveryAnswer::kLater;
  }
}

QString warningStyle(const QWidget& widget) {
  return isDark(widget.palette()) ? QStringLiteral("color: #ff7a7a;")
                                  : QStringLiteral("color: #c00020;");
}

QString shortList(const QStringList& lines, int limit) {
  if (lines.size() <= limit) return lines.join(QLatin1Char('\n'));
  const int rest = static_cast<int>(lines.size()) - limit;
  return lines.mid(0, limit).join(QLatin1Char('\n')) + QLatin1Char('\n') +
         QCoreApplication::translate("talvesk::Messages", "and %n more", nullptr, rest);
}

}  // namespace talvesk
