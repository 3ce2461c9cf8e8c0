#pragma once

#include "refraction/methods/ProfileErrors.h"

#include <QString>
#include <QWidget>
#include <memory>
#include <optional>

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace talvesk {

class BackgroundErrors;

/// The row below a layered profile by which its errors are asked for: a box, and while they are
/// being found how far that is and a button to give it up. Errors are those of one profile: with
/// another they are forgotten, and found anew as long as the box is checked.
class ErrorBands : public QWidget {
  Q_OBJECT

 public:
  explicit ErrorBands(QWidget* parent = nullptr);
  ~ErrorBands() override;

  /// Another profile, with the picks and marks that it was built of.
  void setPicks(LayerPicks picks);
  /// There is no profile to have errors. \param why in the tool tip
  void setNone(const QString& why);

  /// To be shown beside the profile; null while they are not known or not wanted.
  std::shared_ptr<const ProfileErrors> errors() const;

 signals:
  void changed();  ///< errors() is another

 private:
  void follow();
  void tellChange();
  void showWork(bool underWay);
  void take(const std::shared_ptr<const ProfileErrors>& errors);

  QCheckBox* mBox;
  QProgressBar* mProgress;
  QPushButton* mStop;
  QLabel* mNote;
  BackgroundErrors* mFinding;
  std::optional<LayerPicks> mPicks;
  std::shared_ptr<const ProfileErrors> mErrors;  ///< of these; null: not found yet
  std::shared_ptr<const ProfileErrors> mTold;    ///< that are shown
};

}  // namespace talvesk
