#pragma once

#include "view/DepthProfile.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace talvesk {

namespace Ui {
class DepthProfileDialog;
}

/// A window beside the section that shows the ground below one place of the line: that of the
/// mouse, or one that is typed and held.
class DepthProfileDialog : public QDialog {
  Q_OBJECT

 public:
  explicit DepthProfileDialog(QWidget* parent = nullptr);
  ~DepthProfileDialog() override;

  /// Another section. The place stays where there is one on it.
  void setSection(DepthProfiles section);
  /// The mouse is there; nothing where the place is held. \param x survey distance, metres
  void pointAt(double x);

  const DepthProfiles& section() const { return mSection; }
  const DepthProfile& profile() const { return mProfile; }

  /// Asked for a file of the profile that is shown.
  std::function<void()> saveWanted;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void showAt(double x);
  void retranslate();

  std::unique_ptr<Ui::DepthProfileDialog> mUi;
  QWidget* mSheet = nullptr;
  DepthProfiles mSection;
  DepthProfile mProfile;
};

}  // namespace talvesk
