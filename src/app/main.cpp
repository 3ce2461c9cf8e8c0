#include "app/DarkDesktop.h"
#include "app/LineIcon.h"
#include "app/StartOptions.h"
#include "app/Talvesk_MainWindows.h"
#include "app/Termination.h"
#include "base/FileReplacement.h"
#include "base/StandardStreams.h"
#include "widgets/section/SectionSurface.h"

#include <QApplication>
#include <QSessionManager>
#include <QSplashScreen>
#include <QTextCodec>
#include <QTimer>
#include <cstdio>

namespace {

/// Help and version need no display, so they come before the application object.
bool asksForText(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments << QString::fromUtf8(argv[i]);
  const talvesk::StartOptions options = talvesk::parseStartOptions(arguments);
  if (options.action != talvesk::StartOptions::Action::kPrintAndLeave) return false;
  std::fputs(options.text.toUtf8().constData(), stdout);
  return true;
}

/// Whoever ends the program from outside, or the whole session, does not wait for answers.
void keepSurveyAtTheEnd(QApplication& application, const talvesk::Termination& termination,
                        talvesk::Talvesk_MainWindows& window) {
  QObject::connect(&termination, &talvesk::Termination::requested, &window, [&](int signal) {
    constexpr int kEndedBySignal = 128;  // as shells count
    window.leaveRecoveryCopy();
    QApplication::exit(kEndedBySignal + signal);
  });
  QGuiApplication::setFallbackSessionManagementEnabled(false);  // it would close the window
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &window,
      [&](const QSessionManager&) { window.leaveRecoveryCopy(); }, Qt::DirectConnection);
}

}  // namespace

int main(int argc, char** argv) {
  talvesk::occupyClosedStreams();
  // Whoever started the window may be gone before its last message.
  talvesk::outliveReaders();
  talvesk::outliveSizeLimits();
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  if (asksForText(argc, argv)) return 0;
  // Before the application object exists, or the window could not share its OpenGL with the view.
  QSurfaceFormat::setDefaultFormat(talvesk::sectionSurfaceFormat());
  QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  QApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Talvesk"));
  QApplication::setApplicationVersion(QStringLiteral("2022.0"));
  // Qt has taken its own options away by now.
  const talvesk::StartOptions options =
      talvesk::parseStartOptions(QApplication::arguments().mid(1));
  if (options.action == talvesk::StartOptions::Action::kRefuse) {
    std::fputs(options.text.toUtf8().constData(), stderr);
    return 2;
  }

  talvesk::outlineBoxes();
  QSplashScreen splash(
      talvesk::picture(QStringLiteral(":/splash20220"), application.devicePixelRatio()));
  splash.show();
  QApplication::setWindowIcon(talvesk::pictureIcon(QStringLiteral("://icons/iconaTalvesk128.png")));
  talvesk::Talvesk_MainWindows window;
  window.show();
  splash.finish(&window);
  const talvesk::Termination termination;
  keepSurveyAtTheEnd(application, termination, window);
  QTimer::singleShot(0, &window, [&] { window.start(options.files); });
  return QApplication::exec();
}
