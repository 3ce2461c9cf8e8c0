#pragma once

#include "io/ReadingComparison.h"

#include <QDialog>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class ReadingsDialog;
}

/// Shows shot files in both readings, where that by the standard holds more than that by the
/// program's rules, and asks which to take.
class ReadingsDialog : public QDialog {
  Q_OBJECT

 public:
  enum class Answer { kStandard, kRules, kCancel };

  /// The readings outlive the dialog.
  struct File {
    const ReadShotFile* byRules;
    const FullerReading* fuller;
  };
  /// \param files at least one
  explicit ReadingsDialog(std::vector<File> files, QWidget* parent = nullptr);
  ~ReadingsDialog() override;

  Answer ask();

 private:
  void fillTable();
  void showFile(int row);

  std::unique_ptr<Ui::ReadingsDialog> mUi;
  std::vector<File> mFiles;
  Answer mAnswer = Answer::kCancel;
};

}  // namespace talvesk
