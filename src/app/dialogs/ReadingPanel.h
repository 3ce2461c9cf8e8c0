#pragma once

#include <QGroupBox>
#include <memory>

namespace talvesk {

namespace Ui {
class ReadingPanel;
}
struct ReadShotFile;

/// One reading of a shot file: its figures, what the reader had to say, and the traces of a shot.
class ReadingPanel : public QGroupBox {
  Q_OBJECT

 public:
  explicit ReadingPanel(QWidget* parent = nullptr);
  ~ReadingPanel() override;

  /// \param file outlives the panel or the next call
  void setReading(const ReadShotFile& file);

 private:
  void showFigures();
  void showShots();

  std::unique_ptr<Ui::ReadingPanel> mUi;
  const ReadShotFile* mFile = nullptr;
};

}  // namespace talvesk
