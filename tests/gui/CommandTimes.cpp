#include "app/CommandIndex.h"
#include "app/Talvesk_MainWindows.h"
#include "io/Survey.h"
#include "support/ShotDocument.h"
#include "support/ShotFiles.h"
#include "tomo/GridSetup.h"
#include "tomo/TomographyRun.h"
#include "widgets/section/SectionSurface.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <ctime>
#include <iomanip>
#include <iostream>

// How long the window is deaf: from the start to the first wiggles, and while each command works.
//
//   command_times --make DIR SHOTS TRACES SAMPLES      makes shot files
//   command_times FILES...                             times all commands on them
//                                                      (see scripts/time-commands)

namespace talvesk {
namespace {

constexpr double kBlocked = 100.0;  ///< milliseconds from which a user notices

double wallMs() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
}

/// What this thread has computed, which does not depend on what else the machine does.
double busyMs() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
}

/// The longest time in which the event loop did not come round.
class Heartbeat : public QObject {
 public:
  Heartbeat() {
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, [this] { beat(); });
    mTimer.start(2);
  }
  void restart() {
    wall = busy = 0.0;
    mWall = wallMs();
    mBusy = busyMs();
  }
  void beat() {
    wall = std::max(wall, wallMs() - mWall);
    busy = std::max(busy, busyMs() - mBusy);
    mWall = wallMs();
    mBusy = busyMs();
  }

  double wall = 0.0;  ///< milliseconds
  double busy = 0.0;  ///< of them computing

 private:
  QTimer mTimer;
  double mWall = wallMs();
  double mBusy = busyMs();
};

/// Closes every dialog that a command opens, or gives its OK, and leaves progress alone.
class Answers : public QObject {
 public:
  Answers() { startTimer(50); }
  bool accepts = false;

 protected:
  void timerEvent(QTimerEvent*) override {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) {
      for (QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible() && each->windowType() == Qt::Dialog) dialog = each;
      }
    }
    const bool shows = dialog != nullptr && dialog->isVisible();
    if (!shows || qobject_cast<QProgressDialog*>(dialog) != nullptr ||
        dialog->objectName().startsWith(QLatin1String("progress"))) {
      mSeen = 0;
      return;
    }
    if (++mSeen < 6) return;  // it has to be drawn
    mSeen = 0;
    auto* buttons = dialog->findChild<QDialogButtonBox*>();
    QPushButton* ok = buttons != nullptr ? buttons->button(QDialogButtonBox::Ok) : nullptr;
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
      for (const auto yes : {QMessageBox::Yes, QMessageBox::Ok}) {
        if (box->button(yes) != nullptr) return box->button(yes)->click();
      }
    }
    const bool again = dialog == mAccepted;  // it has refused what stands in it
    mAccepted = dialog;
    if (accepts && !again && ok != nullptr && ok->isEnabled()) return ok->click();
    dialog->close();
  }

 private:
  int mSeen = 0;
  QPointer<QWidget> mAccepted;
};

/// When traces were drawn for the first time.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QWidget& widget) { widget.installEventFilter(this); }
  bool wanted = false;
  double at = 0.0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (wanted && at == 0.0 && event->type() == QEvent::Paint) {
      QTimer::singleShot(0, this, [this] { at = wallMs(); });
      wanted = false;
    }
    return false;
  }
};

int make(const QString& folder, std::size_t shots, std::size_t traces, std::size_t samples) {
  QDir().mkpath(folder);
  for (std::size_t shot = 0; shot < shots; ++shot) {
    std::vector<testing::Seg2Channel> channels(traces);
    for (std::size_t i = 0; i < traces; ++i) {
      const double source = 2.0 * static_cast<double>(shot) - 1.0;
      const double place = 2.0 * static_cast<double>(i);
      const Trace trace =
          testing::ringingTrace(0.004 + std::fabs(place - source) / 900.0, samples, 0.000125);
      for (std::size_t k = 0; k < samples; ++k) {
        const double noise = std::sin(12.9898 * static_cast<double>(k + 31 * i + 7 * shot));
        channels[i].samples.push_back(static_cast<float>(trace.samples[k] + noise));
      }
      channels[i].area = testing::seg2Area({"DELAY 0", "RECEIVER_LOCATION " + std::to_string(place),
                                            "SAMPLE_INTERVAL 0.000125",
                                            "SOURCE_LOCATION " + std::to_string(source)});
    }
    const std::string bytes = testing::seg2Bytes(channels);
    QFile file(folder + QStringLiteral("/shot%1.sg2").arg(shot + 1, 3, 10, QLatin1Char('0')));
    if (!file.open(QIODevice::WriteOnly)) return 1;
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
  }
  return 0;
}

class Walk {
 public:
  Walk(Talvesk_MainWindows& window, Heartbeat& heart, Answers& answers)
      : mWindow(window), mHeart(heart), mAnswers(answers) {}

  /// Every command on shots alone, the way to a section, and every command again with one.
  void all() {
    every();
    for (const char* name : {"actionAutoPick_line", "actionGrid", "actionDefine_model_velocity",
                             "actionRun_tomography_inversion", "actionApply_smoothing",
                             "actionFilter", "actionAGC", "actionRefraction"}) {
      auto* action = mWindow.findChild<QAction*>(QLatin1String(name));
      if (action->isEnabled()) give(*action, QLatin1String(name), true);
    }
    every();
    std::cout << "commands " << mCommands << ", longer than " << kBlocked << " ms " << mLong
              << ", longest " << mLongest << " ms (" << mSlowest.toStdString() << ")\n";
  }

 private:
  void give(QAction& action, const QString& name, bool accepts) {
    mAnswers.accepts = accepts;
    settle();
    mHeart.restart();
    action.trigger();
    mHeart.beat();
    settle();
    ++mCommands;
    if (mHeart.busy > mLongest) {
      mLongest = mHeart.busy;
      mSlowest = name;
    }
    if (mHeart.busy > kBlocked) ++mLong;
    std::cout << std::fixed << std::setprecision(0) << std::setw(7) << mHeart.busy << std::setw(7)
              << mHeart.wall << "  " << name.toStdString() << (accepts ? " OK" : "")
              << (mHeart.busy > kBlocked ? "  <<" : "") << std::endl;
    mAnswers.accepts = false;
  }
  static void settle() { QTest::qWait(60); }

  void every() {
    for (const IndexedCommand& command : commandsOf(*mWindow.menuBar(), nullptr)) {
      // These end the program, leave it, or take away what the others work on.
      static const QStringList kOut = {"actionExit", "actionHelp", "actionRemove_shot",
                                       "actionRemove_picks", "actionRemove_unconfirmed"};
      if (!kOut.contains(command.key) && command.action && command.action->isEnabled()) {
        give(*command.action, command.key, false);
      }
    }
  }

  Talvesk_MainWindows& mWindow;
  Heartbeat& mHeart;
  Answers& mAnswers;
  int mCommands = 0;
  int mLong = 0;
  double mLongest = 0.0;
  QString mSlowest;
};

}  // namespace
}  // namespace talvesk

int main(int argc, char** argv) {
  using namespace talvesk;
  const double begin = wallMs();
  if (argc == 6 && std::string(argv[1]) == "--make") {
    return make(QString::fromLocal8Bit(argv[2]), std::stoul(argv[3]), std::stoul(argv[4]),
                std::stoul(argv[5]));
  }
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  QSurfaceFormat::setDefaultFormat(sectionSurfaceFormat());
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QStringList files;
  for (int i = 1; i < argc; ++i) files << QString::fromLocal8Bit(argv[i]);
  Answers answers;
  Talvesk_MainWindows window;
  FirstPaint painted(*window.findChild<QWidget*>(QStringLiteral("showTracesWidget")));
  window.show();
  QCoreApplication::processEvents();
  std::cout << std::fixed << std::setprecision(0) << "window after " << wallMs() - begin << " ms\n";
  painted.wanted = true;
  window.openFiles(files);
  while (painted.at == 0.0) QTest::qWait(1);
  std::cout << "first wiggles after " << painted.at - begin << " ms, computing " << busyMs()
            << " ms\n";
  Heartbeat heart;
  Walk(window, heart, answers).all();
  window.session().markSaved();
  return 0;
}
