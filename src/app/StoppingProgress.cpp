#include "app/StoppingProgress.h"

#include <QCloseEvent>
#include <QPushButton>

namespace talvesk {

StoppingProgress::StoppingProgress(const QString& title, int steps, QWidget* parent)
    : QProgressDialog({}, {}, 0, steps, parent) {
  setWindowTitle(title);
  setWindowModality(Qt::WindowModal);
  setMinimumDuration(0);
  setAutoClose(false);
  setAutoReset(false);
  // The bar hides itself when it is cancelled; the work goes on for a while.
  disconnect(this, SIGNAL(canceled()), this, SLOT(cancel()));
  connect(this, &QProgressDialog::canceled, this, [this] { stop(); });
  setCancelButton(new QPushButton(tr("Stop"), this));
}

void StoppingProgress::say(const QString& text) {
  mPart = text;
  if (!mStopping) setLabelText(text);
}

void StoppingProgress::stop() {
  if (mStopping.exchange(true)) return;
  setLabelText(mPart.isEmpty() ? tr("Stopping ...") : tr("Stopping: %1", "work").arg(mPart));
  if (auto* button = findChild<QPushButton*>()) button->setEnabled(false);
}

void StoppingProgress::reject() {
  stop();
}

void StoppingProgress::closeEvent(QCloseEvent* event) {
  event->ignore();
  stop();
}

}  // namespace talvesk
