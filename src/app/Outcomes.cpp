#include "app/Outcomes.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "base/Log.h"
#include "base/Status.h"

#include <QCoreApplication>

namespace talvesk {

void tellFailure(QWidget* window, Log& log, const QString& text, const Status& status) {
  log.write(status.message(), 1);
  showError(window, QCoreApplication::translate("talvesk::Talvesk_MainWindows", "Error occured"),
            text, textOf(status.text()));
}

}  // namespace talvesk
