#include "app/dialogs/SelectCSVDelimiterDialog.h"

#include "ui_SelectCSVDelimiterDialog.h"

#include <algorithm>

namespace talvesk {

SelectCSVDelimiterDialog::SelectCSVDelimiterDialog(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::SelectCSVDelimiterDialog>()) {
  mUi->setupUi(this);
}

SelectCSVDelimiterDialog::~SelectCSVDelimiterDialog() = default;

std::string SelectCSVDelimiterDialog::separator() const {
  // The first entry is words, which are translated.
  const QComboBox& choice = *mUi->separatorCBox;
  return choice.currentIndex() <= 0 ? " " : choice.currentText().toStdString();
}

std::optional<std::string> SelectCSVDelimiterDialog::ask(QWidget* parent,
                                                         const std::string& proposed) {
  SelectCSVDelimiterDialog dialog(parent);
  QComboBox& choice = *dialog.mUi->separatorCBox;
  choice.setCurrentIndex(std::max(choice.findText(QString::fromStdString(proposed)), 0));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.separator();
}

}  // namespace talvesk
