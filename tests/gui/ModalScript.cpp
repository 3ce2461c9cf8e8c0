#include "gui/ModalScript.h"

#include "app/dialogs/progressDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <algorithm>

#include <gtest/gtest.h>

namespace talvesk::testing {

ModalScript::ModalScript() {
  connect(&mTimer, &QTimer::timeout, this, &ModalScript::look);
  mTimer.start(10);
}

ModalScript::~ModalScript() {
  EXPECT_TRUE(finished()) << mAnswers.size() << " dialogs never came";
}

void ModalScript::expect(std::function<void(QWidget&)> answer) {
  mAnswers.push_back(std::move(answer));
}

void ModalScript::look() {
  QWidget* dialog = QApplication::activeModalWidget();
  // What shows progress goes by itself.
  if (dialog == nullptr || qobject_cast<QProgressDialog*>(dialog) ||
      qobject_cast<progressDialog*>(dialog)) {
    return;
  }
  if (std::find(mAnswered.begin(), mAnswered.end(), dialog) != mAnswered.end()) return;
  mAnswered.emplace_back(dialog);
  if (mAnswers.empty()) {
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    ADD_FAILURE() << "nobody expects the dialog " << dialog->windowTitle().toStdString() << ": "
                  << (box ? (box->text() + box->informativeText()).toStdString() : "");
    dialog->close();
    return;
  }
  const auto answer = std::move(mAnswers.front());
  mAnswers.pop_front();
  // The answer may open the next dialog; this timer must be free to see it.
  QTimer::singleShot(0, dialog, [answer, dialog] { answer(*dialog); });
}

void ModalScript::expectBox(const QString& title, const QString& text, const QString& details,
                            QMessageBox::StandardButton button) {
  expect([=](QWidget& widget) {
    auto* box = qobject_cast<QMessageBox*>(&widget);
    EXPECT_NE(box, nullptr) << widget.windowTitle().toStdString();
    if (box == nullptr) {
      widget.close();
      return;
    }
    EXPECT_EQ(box->windowTitle().toStdString(), title.toStdString());
    EXPECT_EQ(box->text().toStdString(), text.toStdString());
    EXPECT_TRUE(box->informativeText().contains(details))
        << box->informativeText().toStdString() << " lacks " << details.toStdString();
    const auto* shown = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
    EXPECT_TRUE(shown == nullptr || shown->textFormat() == Qt::PlainText)
        << "a name such as <b> would not be shown as it stands";
    box->button(button)->click();
  });
}

void ModalScript::expectFiles(const QString& title, const QStringList& files) {
  expect([=](QWidget& widget) {
    auto* dialog = qobject_cast<QFileDialog*>(&widget);
    EXPECT_NE(dialog, nullptr) << widget.windowTitle().toStdString();
    if (dialog == nullptr) {
      widget.close();
      return;
    }
    EXPECT_EQ(dialog->windowTitle().toStdString(), title.toStdString());
    QStringList quoted;
    for (const QString& file : files) quoted << QLatin1Char('"') + file + QLatin1Char('"');
    const QString names = files.size() == 1 ? files.front() : quoted.join(QLatin1Char(' '));
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(names);
    QMetaObject::invokeMethod(dialog, "accept");
  });
}

void ModalScript::expectAndCancel() {
  expect([](QWidget& widget) { widget.close(); });
}

}  // namespace talvesk::testing
