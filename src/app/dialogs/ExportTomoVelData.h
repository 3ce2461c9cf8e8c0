#pragma once

#include "export/GriddedText.h"

#include <QDialog>
#include <memory>

namespace talvesk {

namespace Ui {
class ExportTomoVelData;
}

/// Asks how the gridded text of a section is shifted. Accepted only with two numbers.
class ExportTomoVelData : public QDialog {
  Q_OBJECT

 public:
  explicit ExportTomoVelData(QWidget* parent = nullptr);
  ~ExportTomoVelData() override;

  GriddedTextOptions options() const;

 private:
  void check();

  std::unique_ptr<Ui::ExportTomoVelData> mUi;
};

}  // namespace talvesk
