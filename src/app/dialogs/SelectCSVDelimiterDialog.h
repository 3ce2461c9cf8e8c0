#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <string>

namespace talvesk {

namespace Ui {
class SelectCSVDelimiterDialog;
}

/// Asks what separates the fields of a delimited text file: a blank, ";" or ",".
class SelectCSVDelimiterDialog : public QDialog {
  Q_OBJECT

 public:
  explicit SelectCSVDelimiterDialog(QWidget* parent = nullptr);
  ~SelectCSVDelimiterDialog() override;

  /// " ", ";" or ",".
  std::string separator() const;

  /// Shows the dialog. \param proposed " ", ";" or ",", which is chosen at first
  /// \return the separator, none when the user cancelled
  static std::optional<std::string> ask(QWidget* parent, const std::string& proposed = " ");

 private:
  std::unique_ptr<Ui::SelectCSVDelimiterDialog> mUi;
};

}  // namespace talvesk
