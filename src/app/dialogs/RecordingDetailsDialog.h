#pragma once

#include <QDialog>
#include <QStringList>
#include <cstddef>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class RecordingDetailsDialog;
}
class TomoDocument;

/// What is known of a shot file beside its traces.
struct RecordingInfo {
  QString format;        ///< "seg2", "segy", "su", "mseed"; empty when not known
  QStringList warnings;  ///< of its reader
};

/// Shows what the shot files of a survey hold: format, reader, samples, interval, delay, positions
/// and what the readers warned about, and how they were mended.
class RecordingDetailsDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog; \param files one per trace set; \param current trace set
  /// to show first
  RecordingDetailsDialog(const TomoDocument& document, std::vector<RecordingInfo> files,
                         int current, QWidget* parent = nullptr);
  ~RecordingDetailsDialog() override;

 private:
  void showSet(int index);
  void fillTable(int index);
  QString readerOf(std::size_t set) const;
  QString placeOf(std::size_t set) const;

  std::unique_ptr<Ui::RecordingDetailsDialog> mUi;
  const TomoDocument& mDocument;
  std::vector<RecordingInfo> mFiles;
};

}  // namespace talvesk
