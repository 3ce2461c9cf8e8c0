#pragma once

#include <QDialog>
#include <QSize>
#include <memory>

namespace talvesk {

namespace Ui {
class ScreenshotDialog;
}

/// Asks how large a screenshot is, and how good when it is a JPEG.
class ScreenshotDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param size of the view, pixels
  explicit ScreenshotDialog(const QSize& size, QWidget* parent = nullptr);
  ~ScreenshotDialog() override;

  int scale() const;    ///< 1 to 4 times the view
  int quality() const;  ///< percent

 private:
  std::unique_ptr<Ui::ScreenshotDialog> mUi;
};

}  // namespace talvesk
