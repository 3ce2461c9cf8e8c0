#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "model/Mends.h"
#include "model/TomoDocument.h"

#include <QDialog>
#include <cstddef>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class MendDialog;
}

/// Asks for what is to be put right of the recording of a shot. Nothing changes before apply().
class MendDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param document outlives the dialog \param set trace set of it, from 0
  MendDialog(const TomoDocument& document, std::size_t set, QWidget* parent = nullptr);
  ~MendDialog() override;

  ShotMends mends() const;  ///< as the dialog has them
  /// Gives them to the shot and, where the user wants it, disables those that it is stacked with.
  /// \param notes as of setMends()
  Status apply(TomoDocument& document, std::vector<Message>& notes) const;

 private:
  void listPartners();
  void fillTraces();
  void turnTraces();  ///< mends of traces stay with their channels when the order is reversed
  void showRow(int row, const TraceMend& mend);
  TraceMend rowMend(int row) const;

  std::unique_ptr<Ui::MendDialog> mUi;
  const TomoDocument& mDocument;
  const std::size_t mSet;
};

}  // namespace talvesk
