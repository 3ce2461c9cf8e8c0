#pragma once

#include "view/ColorPalette.h"

#include <QDialog>
#include <memory>
#include <optional>

namespace talvesk {

class FileFolders;

namespace Ui {
class PaletteDialog;
}

/// Chooses the palette of the section and manages the list: create, edit, rename, delete, load and
/// save. It works on the list itself, so that a section can follow every change; Cancel puts the
/// list back as it was.
class PaletteDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param palettes must outlive the dialog, as must \param folders, where its file dialogs start
  /// \param dataRange of what the section shows; none disables taking it over
  PaletteDialog(ColorPaletteList& palettes, bool lockRange, std::optional<ValueRange> dataRange,
                FileFolders& folders, QWidget* parent = nullptr);
  ~PaletteDialog() override;

  /// Whether the range stays when another palette is chosen or another line is shown.
  bool lockRange() const;

  /// Whether palettes, choice or lock are others than when it was opened.
  bool hasChanges() const;

 public slots:
  void load_palette();
  void save_palette();
  void edit_palette();
  void create_palette();
  void rename_palette();
  void delete_palette();
  void updatePaletteInfoFromSelection(int index);
  void update_modified_palette();
  void reject() override;

 signals:
  void modified();                    ///< the current palette is another one, or looks otherwise
  void changed_max_value(int value);  ///< nearest m/s; the palette may have digits more
  void changed_min_value(int value);

 private:
  void connectControls();
  void refreshChooser();
  void refreshCurrent();
  void refreshInformation();
  void refreshIcon();
  void add(ColorPalette palette);
  void takeDataRange();
  void changeColors(int count);

  std::unique_ptr<Ui::PaletteDialog> mUi;
  ColorPaletteList& mPalettes;
  const ColorPaletteList mBefore;
  const bool mLockedBefore;
  FileFolders& mFolders;
  const std::optional<ValueRange> mDataRange;
};

}  // namespace talvesk
