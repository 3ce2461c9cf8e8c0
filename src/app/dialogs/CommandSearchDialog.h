#pragma once

#include "app/CommandIndex.h"

#include <QDialog>
#include <memory>
#include <vector>

namespace talvesk {

namespace Ui {
class CommandSearchDialog;
}

/// A popup in which commands are found by their words. Enter or a click takes the one that is
/// marked, Escape or a click elsewhere none. Commands that cannot work now are shown, with why, and
/// are not taken.
class CommandSearchDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param recent keys of commands, the one that was taken last first
  CommandSearchDialog(std::vector<IndexedCommand> commands, QStringList recent, QWidget* parent);
  ~CommandSearchDialog() override;

  /// What was taken; null when nothing was.
  const IndexedCommand* taken() const { return mTaken; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void find();
  void addRow(std::size_t index);
  const IndexedCommand* marked() const;
  void takeMarked();
  void tellMarked();

  std::unique_ptr<Ui::CommandSearchDialog> mUi;
  std::vector<IndexedCommand> mCommands;
  QStringList mRecent;
  const IndexedCommand* mTaken = nullptr;
};

}  // namespace talvesk
