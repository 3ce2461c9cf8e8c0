#pragma once

#include "figures/ImageSet.h"

#include <QDialog>
#include <memory>
#include <vector>

class QSettings;

namespace talvesk {

namespace Ui {
class ImagesDialog;
}
class TomoDocument;

/// Asks which pictures of a survey to write, how large and where. The files are listed before
/// anything is written, those that exist already marked. Document and interpretation must outlive
/// it.
class ImagesDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param look how sections and traces are shown: view, palette, refractors, colour bar and
  /// manner of it count \param shot the current one, from 0; -1 none
  ImagesDialog(const TomoDocument& document,
               const refractionDataStructure::Interpretation& interpretation,
               const ImageSetOptions& look, int shot, QWidget* parent = nullptr);
  ~ImagesDialog() override;

  void setFolder(const QString& folder);
  QString folder() const;
  void setBaseName(const QString& name);

  std::vector<PlannedImage> images() const;

  /// Format and size, from one use to the next.
  void remember(QSettings& settings) const;
  void recall(const QSettings& settings);

 private:
  ImageSetOptions options() const;
  double millimetres(double value) const;
  void offerWhatThereIs();
  void changeUnit();
  void browse();
  void refresh();
  QString problemWith(const std::vector<PlannedImage>& images) const;

  std::unique_ptr<Ui::ImagesDialog> mUi;
  const TomoDocument& mDocument;
  const refractionDataStructure::Interpretation& mInterpretation;
  const ImageSetOptions mLook;
  const int mShot;
  bool mInPixels = false;
};

}  // namespace talvesk
