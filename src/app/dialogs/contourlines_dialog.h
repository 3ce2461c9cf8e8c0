#pragma once

#include "view/SectionViewSettings.h"
#include "view/ShownUnit.h"

#include <QColor>
#include <QDialog>
#include <memory>
#include <vector>

class QLineEdit;

namespace talvesk {

class FileFolders;

namespace Ui {
class contourlines_dialog;
}

/// Asks what contours show and how: equally spaced values or a list of one's own, which can be
/// saved and loaded; over which quantities; labels and colour. A value of the list that is no
/// number within the range is marked as it is typed, and keeps the dialog from being accepted. The
/// list is that of one quantity; those of the others stay as they are.
class contourlines_dialog : public QDialog {
  Q_OBJECT

 public:
  /// \param shown what the section shows; the list is of contouredQuantity() of it
  /// \param range of the quantity of the list
  /// \param folders where the file dialogs start; outlives the dialog
  contourlines_dialog(const ContourSettings& settings, SectionQuantity shown, ValueRange range,
                      FileFolders& folders, QWidget* parent = nullptr);
  ~contourlines_dialog() override;

  /// What is chosen; custom values ascending, each once.
  ContourSettings settings() const;

  /// Whether that is anything else than was chosen when the dialog was opened.
  bool hasChanges() const { return settings() != mAtFirst; }

 public slots:
  void enable_add_number_of_values(bool enabled);
  void enable_add_more_values(bool enabled);
  void enable_filled_contours();
  void add_value();

 private:
  void connectControls();
  void fillIn(const ContourSettings& settings);
  void showRange(SectionQuantity shown);
  void chooseCustomized(bool customized);
  QString shownText(double value) const;
  QString limitText(double value) const;
  double valueOf(double shown) const;
  std::optional<double> valueOf(const QLineEdit& edit) const;
  void addRow(std::optional<double> value);
  void removeRow(QWidget* row);
  void removeAll();
  std::vector<QLineEdit*> editors() const;
  std::vector<double> sortedNumbers() const;  ///< of all rows, each once
  std::vector<double> values() const;         ///< those of them within the range
  bool isInRange(const QLineEdit& edit) const;
  void check();
  void showWhetherAny();
  void saveIsovalues();
  void loadIsovalues();
  void takeLoaded(const std::vector<double>& loaded);
  void chooseColor();
  void showColor();

  std::unique_ptr<Ui::contourlines_dialog> mUi;
  std::vector<double> ContourSettings::*const mList;  ///< that is edited
  const SectionQuantity mQuantity;                    ///< of the list
  const ShownUnit mUnit;                              ///< of it
  const ValueRange mRange;
  FileFolders& mFolders;
  QColor mColor;
  ContourSettings mAtFirst;
};

}  // namespace talvesk
