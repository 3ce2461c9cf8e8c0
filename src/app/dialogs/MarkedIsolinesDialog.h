#pragma once

#include "model/Annotations.h"

#include <QDialog>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class MarkedIsolinesDialog;
}

/// Edits the marked isolines, a row for each. It changes a copy; after OK, isolines() is what the
/// user means.
class MarkedIsolinesDialog : public QDialog {
  Q_OBJECT

 public:
  explicit MarkedIsolinesDialog(const std::vector<MarkedIsoline>& isolines,
                                QWidget* parent = nullptr);
  ~MarkedIsolinesDialog() override;

  std::vector<MarkedIsoline> isolines() const;  ///< as the rows say

  void accept() override;  ///< refuses what cannot be

 private:
  void addRow(const MarkedIsoline& isoline);
  void addNew();
  void removeRow();
  void refresh();

  std::unique_ptr<Ui::MarkedIsolinesDialog> mUi;
};

}  // namespace talvesk
