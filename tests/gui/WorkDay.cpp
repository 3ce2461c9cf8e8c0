#include "app/Talvesk_MainWindows.h"
#include "widgets/section/SectionSurface.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTextCodec>
#include <QToolButton>
#include <iomanip>
#include <iostream>

// Somebody with files and a client waiting, who does what the strip of steps proposes and leaves
// every dialog as it comes, until there is a result: how many actions that takes, and how long.
//
//   work_day MOST FILES...      fails where it takes more than MOST actions (see scripts/time-day
//   and work-day.sh)

namespace talvesk {
namespace {

class WorkDay : public QObject {
 public:
  explicit WorkDay(int most) : mMost(most) {
    mClock.start();
    startTimer(20);
  }

  void act(const QString& what) {
    ++mActions;
    std::cout << std::setw(3) << mActions << std::setw(8) << std::fixed << std::setprecision(1)
              << 1e-3 * static_cast<double>(mClock.elapsed()) << " s  " << what.toStdString()
              << std::endl;
  }

  /// Until a result is there, or nothing leads on.
  int run(Talvesk_MainWindows& window) {
    auto& next = *window.findChild<QToolButton*>(QStringLiteral("guidanceNext"));
    auto& result = *window.findChild<QToolButton*>(QStringLiteral("guidanceStep7"));
    auto& reason = *window.findChild<QLabel*>(QStringLiteral("guidanceReason"));
    const QString none = result.accessibleName();
    settle(next);
    while (result.accessibleName() == none) {
      if (mActions >= mMost) {
        std::cout << "no result after " << mMost << " actions\n";
        return 1;
      }
      act(next.text() + QStringLiteral("  (") + reason.toolTip() + QLatin1Char(')'));
      next.click();
      settle(next);
    }
    std::cout << "a result after " << mActions << " actions and " << std::setprecision(1)
              << 1e-3 * static_cast<double>(mClock.elapsed())
              << " s: " << reason.toolTip().toStdString() << std::endl;
    return 0;
  }

 protected:
  /// A dialog that has stood for a moment is left by the button that Enter presses, a question by
  /// its yes.
  void timerEvent(QTimerEvent*) override {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || qobject_cast<QProgressDialog*>(modal) != nullptr) {
      mSeen = 0;
      return;
    }
    if (++mSeen < kRead) return;
    QPushButton* chosen = nullptr;
    QString question;
    if (const auto* box = qobject_cast<QMessageBox*>(modal)) {
      question = QLatin1Char(' ') + box->text().simplified();
      chosen = qobject_cast<QPushButton*>(box->button(QMessageBox::Yes));
    }
    for (QPushButton* button : modal->findChildren<QPushButton*>()) {
      const bool enter = chosen == nullptr && button->isDefault();
      if (enter && button->isVisible() && button->isEnabled()) chosen = button;
    }
    if (chosen == nullptr) return;  // it works
    mSeen = 0;
    act(QStringLiteral("    ") + modal->windowTitle() + question + QStringLiteral(": ") +
        chosen->text().remove(QLatin1Char('&')));
    chosen->click();
  }

 private:
  static constexpr int kRead = 5;    ///< times that the timer sees a dialog before it is left
  static constexpr int kStill = 15;  ///< times that nothing moves before work counts as done
  static constexpr int kPauseMs = 20;

  /// Work in the background takes the command of the button away for as long as it goes on.
  static void settle(const QToolButton& next) {
    for (int still = 0; still < kStill; ++still) {
      if (!next.isEnabled() || QApplication::activeModalWidget() != nullptr) still = 0;
      QTest::qWait(kPauseMs);
    }
  }

  int mMost;
  int mActions = 0;
  int mSeen = 0;
  QElapsedTimer mClock;
};

}  // namespace
}  // namespace talvesk

int main(int argc, char** argv) {
  using namespace talvesk;
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  QSurfaceFormat::setDefaultFormat(sectionSurfaceFormat());
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  if (argc < 3) return 2;
  QStringList files;
  for (int i = 2; i < argc; ++i)
    files << QFileInfo(QString::fromLocal8Bit(argv[i])).absoluteFilePath();
  Talvesk_MainWindows window;
  window.show();
  WorkDay day(std::atoi(argv[1]));
  day.act(QStringLiteral("files dropped on the window: %1").arg(files.size()));
  window.openFiles(files);
  const int outcome = day.run(window);
  window.session().markSaved();
  return outcome;
}
