#pragma once

#include "model/Certainty.h"
#include "model/TomoDocument.h"

#include <QDialog>
#include <memory>
#include <optional>

namespace talvesk {

namespace Ui {
class CertaintyDialog;
}
class BackgroundCertainty;
struct CertaintySettings;

/// Asks by how many members the certainty of a section is to be found out, and does it beside the
/// window. When it is stopped it stays open, and can go on.
class CertaintyDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document holds a grid with cells \param run kept by the caller, so that a later dialog
  /// can go on
  CertaintyDialog(const TomoDocument& document, BackgroundCertainty& run,
                  QWidget* parent = nullptr);
  ~CertaintyDialog() override;

  /// What was found out; none when nothing was.
  const std::optional<Certainty>& certainty() const { return mCertainty; }

 public slots:
  void reject() override;  ///< stops what is under way first, and waits for it

 private:
  CertaintySettings settings() const;
  void tellWhatIsDone();
  void start();
  void showProgress();
  void end();
  void enable(bool running);

  std::unique_ptr<Ui::CertaintyDialog> mUi;
  const TomoDocument mDocument;
  BackgroundCertainty& mRun;
  std::optional<Certainty> mCertainty;
  bool mClosing = false;
};

}  // namespace talvesk
