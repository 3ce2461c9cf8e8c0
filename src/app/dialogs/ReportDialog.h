#pragma once

#include "figures/report/Report.h"

#include <QDialog>
#include <functional>
#include <memory>

class QSettings;

namespace talvesk {

namespace Ui {
class ReportDialog;
}

/// Asks what a report is to tell, and shows its pages.
class ReportDialog : public QDialog {
  Q_OBJECT

 public:
  /// Puts the report together that the options ask for.
  using Build = std::function<Status(const ReportOptions&, ReportContent&)>;

  /// \param options what the dialog does not ask is taken from them
  ReportDialog(const ReportOptions& options, Build build, QWidget* parent = nullptr);
  ~ReportDialog() override;

  ReportOptions options() const;

  /// Client, author, paper and parts, from one report to the next.
  void remember(QSettings& settings) const;
  void recall(const QSettings& settings);

 private:
  void fitIntoScreen();
  void preview();
  void forgetPreview();

  std::unique_ptr<Ui::ReportDialog> mUi;
  const ReportOptions mOptions;
  const Build mBuild;
};

}  // namespace talvesk
