#pragma once

#include "io/TraceHeaders.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace talvesk {

namespace Ui {
class TraceHeadersDialog;
}
class TraceHeadersModel;

/// The headers of all traces as a table that is sorted, copied and saved. It stays open beside the
/// traces: the row that the keys or the mouse go to is shown there. Changes nothing itself.
class TraceHeadersDialog : public QDialog {
  Q_OBJECT

 public:
  explicit TraceHeadersDialog(QWidget* parent = nullptr);
  ~TraceHeadersDialog() override;

  /// Another state of the survey; the current trace stays the current one where it still is.
  void showHeaders(TraceHeaders headers);
  const TraceHeaders& headers() const;
  bool wantsFields() const;  ///< of the files
  /// The row of a trace becomes the current one, and nobody is asked to go there.
  void goTo(std::size_t set, std::size_t trace);
  void tell(const QString& text);  ///< below the table; empty: how many rows there are

  std::function<void()> fieldsWanted;  ///< the files are to be read, or are no more wanted
  std::function<void()> saveWanted;
  std::function<void(std::size_t set, std::size_t trace)> traceWanted;

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void copy();
  void fitColumns();

  std::unique_ptr<Ui::TraceHeadersDialog> mUi;
  TraceHeadersModel* mModel;
  bool mQuiet = false;  ///< the current row changes for another reason than the user's
};

}  // namespace talvesk
