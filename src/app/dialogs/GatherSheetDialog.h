#pragma once

#include "figures/GatherSheet.h"
#include "model/TomoDocument.h"

#include <QDialog>
#include <QTimer>
#include <memory>

class QSettings;

namespace talvesk {

namespace Ui {
class GatherSheetDialog;
}

/// Asks how several shots are laid out on a sheet, and shows it as it will be. Accepted, the sheets
/// are to be written.
class GatherSheetDialog : public QDialog {
  Q_OBJECT

 public:
  explicit GatherSheetDialog(TomoDocument document, QWidget* parent = nullptr);
  ~GatherSheetDialog() override;

  GatherSheetOptions options() const;
  void setManner(const GatherManner& manner);  ///< in which the traces are drawn; plain before
  void showShot(int shot);                     ///< the sheet that it is on; from 0, -1 none

  /// Rows, columns, paper and look, from one use to the next.
  void remember(QSettings& settings) const;
  void recall(const QSettings& settings);

 private:
  void refresh();
  void draw();
  void fillPapers();

  std::unique_ptr<Ui::GatherSheetDialog> mUi;
  TomoDocument mDocument;
  GatherManner mManner;
  QTimer mSoon;  ///< draws
};

}  // namespace talvesk
