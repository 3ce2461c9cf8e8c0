#pragma once

#include "model/Recordings.h"

#include <QFileDialog>

class QComboBox;

namespace talvesk {

/// Asks for shot files, and by what they are to be read. It always begins with the program's own
/// rules: another way must be chosen where it is seen. It is never the desktop's own dialog, which
/// has no room for the question.
class ShotFileDialog : public QFileDialog {
  Q_OBJECT

 public:
  /// \param folder to begin in
  ShotFileDialog(const QString& title, const QString& folder, QWidget* parent = nullptr);

  ShotReader reader() const;

 private:
  void addReaderRow();
  void showFilesOfReader();

  QComboBox* mReader;
};

}  // namespace talvesk
