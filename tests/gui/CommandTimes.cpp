#include "app/CommandIndex.h"
#include "app/Talvesk_MainWindows.h"
#include "gui/CommandAnswers.h"
#include "gui/StallWatch.h"
#include "io/Survey.h"
#include "model/GeographicsCoord.h"
#include "session/Session.h"
#include "support/ShotDocument.h"
#include "support/ShotFiles.h"
#include "tomo/GridSetup.h"
#include "tomo/TomographyRun.h"
#include "widgets/section/SectionSurface.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <iomanip>
#include <iostream>

// How long the window is deaf: from the start to the first wiggles, and while each command works.
//
//   command_times --make DIR SHOTS TRACES SAMPLES      makes shot files
//   command_times FILES...                             times all commands on them
//                                                      (see scripts/time-commands)

namespace talvesk {
namespace {

using testing::busyMs;
using testing::CommandAnswers;
using testing::Stall;
using testing::StallWatch;
using testing::wallMs;

constexpr double kBlocked = 100.0;  ///< milliseconds from which a user notices

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
  Walk(Talvesk_MainWindows& window, StallWatch& watch, CommandAnswers& answers)
      : mWindow(window), mWatch(watch), mAnswers(answers) {
    mEdits = window.session().subscribe([this](const SurveyChange& change) {
      mEdited = change.kind == SurveyChange::Kind::kEdit   ? Edited::kForth
                : change.kind == SurveyChange::Kind::kRedo ? Edited::kForth
                : change.kind == SurveyChange::Kind::kUndo ? Edited::kBack
                                                           : mEdited;
    });
  }

  /// Every command on shots alone, the way to a section, and every command again with one: what
  /// asks is closed first, and then given its OK.
  void all(const QStringList& shots) {
    every(false);
    // Filters and pickers go to all shots, whatever the walk has left.
    auto* allShots = mWindow.findChild<QAction*>(QStringLiteral("actionShow_all_traces"));
    if (!allShots->isChecked()) allShots->trigger();
    for (const char* name : {"actionAutoPick_line", "actionGrid", "actionDefine_model_velocity",
                             "actionRun_tomography_inversion", "actionApply_smoothing",
                             "actionFilter", "actionAGC", "actionRefraction"}) {
      auto* action = mWindow.findChild<QAction*>(QLatin1String(name));
      if (action->isEnabled()) give(*action, QLatin1String(name), true);
    }
    // So that exports onto the map have something to write.
    const Status placed = mWindow.session().apply(Edit::kMapPosition, [](Survey& survey) {
      survey.document.map.edit() = {{32632, 600000.0, 600094.0, 5000000.0, 5000000.0}, true};
      return Status();
    });
    if (!placed.ok()) std::cout << placed.message() << "\n";
    every(false);
    every(true);
    const QString project = mAnswers.folder + QStringLiteral("/saved.tvsk");
    open("actionLoad_Project", {project});
    open("actionNew", shots);
    std::cout << "commands " << mCommands << ", longer than " << kBlocked << " ms " << mLong
              << ", of these without a sign of life " << mSilent << ", longest " << mLongest
              << " ms (" << mSlowest.toStdString() << ")\n";
  }

 private:
  enum class Edited { kNot, kForth, kBack };

  void give(QAction& action, const QString& name, bool accepts) {
    mAnswers.accepts = accepts;
    settle();
    mEdited = Edited::kNot;
    mWatch.restart();
    action.trigger();
    settle();
    tell(mWatch.stall(), name + (accepts ? QStringLiteral(" OK") : QString()));
    mAnswers.accepts = false;
  }

  void open(const char* name, const QStringList& files) {
    mAnswers.files = files;
    give(*mWindow.findChild<QAction*>(QLatin1String(name)), QLatin1String(name), true);
    mAnswers.files.clear();
  }

  void tell(const Stall& stall, const QString& name) {
    ++mCommands;
    if (stall.busy > mLongest) {
      mLongest = stall.busy;
      mSlowest = name;
    }
    const bool silent = stall.silent > kBlocked;
    if (stall.busy > kBlocked) ++mLong;
    if (silent) ++mSilent;
    std::cout << std::fixed << std::setprecision(0) << std::setw(7) << stall.busy << std::setw(7)
              << stall.wall << std::setw(7) << stall.silent << "  " << name.toStdString()
              << (silent ? "  <<" : "") << std::endl;
  }

  /// Until no dialog is left, and what the command has changed is drawn.
  void settle() {
    constexpr int kStep = 60;
    QTest::qWait(kStep);
    while (CommandAnswers::isOpen()) QTest::qWait(kStep);
    QTest::qWait(kStep);
  }

  void every(bool accepts) {
    for (const IndexedCommand& command : commandsOf(*mWindow.menuBar(), nullptr)) {
      // These end the program, leave it, or take away what the others work on.
      static const QStringList kOut = {"actionExit", "actionHelp", "actionRemove_shot",
                                       "actionRemove_picks", "actionRemove_unconfirmed"};
      if (kOut.contains(command.key) || !command.action || !command.action->isEnabled()) continue;
      give(*command.action, command.key, accepts);
      // The next one finds the survey as it was.
      if (mEdited == Edited::kForth) mWindow.session().undo();
      if (mEdited == Edited::kBack) {
        mWindow.session().redo();
        mWindow.showFile(0);  // shots that were away are back, and none of them in view
      }
    }
  }

  Talvesk_MainWindows& mWindow;
  StallWatch& mWatch;
  CommandAnswers& mAnswers;
  Session::Subscription mEdits;
  Edited mEdited = Edited::kNot;
  int mCommands = 0;
  int mLong = 0;
  int mSilent = 0;
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
  testing::CommandAnswers answers;
  answers.folder = QDir::currentPath();
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
  testing::StallWatch watch;
  Walk(window, watch, answers).all(files);
  window.session().markSaved();
  return 0;
}
