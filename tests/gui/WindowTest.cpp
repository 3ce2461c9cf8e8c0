#include "gui/WindowTest.h"

#include "io/Survey.h"
#include "model/Recordings.h"
#include "support/ShotDocument.h"
#include "support/ShotFiles.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <QTranslator>

namespace talvesk::testing {

WindowTest::WindowTest() {
  qputenv("HOME", QByteArray::fromStdString(home.path()));
  writeSettings("en");
}

WindowTest::~WindowTest() {
  if (window) window->session().markSaved();
}

void WindowTest::writeSettings(const std::string& language) {
  QDir(QString::fromStdString(home.path())).mkdir(QStringLiteral("Talvesk_TMP"));
  Settings settings(home.file("Talvesk_TMP/Talvesk_settings.xml"));
  settings.language = language;
  EXPECT_TRUE(settings.save().ok());
}

void WindowTest::open() {
  if (window) {
    window->session().markSaved();
    window->close();
  }
  window.reset();
  window = std::make_unique<Talvesk_MainWindows>();
  window->show();
  QApplication::setActiveWindow(window.get());
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
}

TomoDocument& WindowTest::writable() {
  TomoDocument* document = nullptr;
  window->session().amend([&document](Survey& survey) { document = &survey.document; });
  return *document;
}

void WindowTest::showWritten() {
  window->session().open(window->session().survey(), !window->session().modified());
}

void WindowTest::touch() {
  const Status status = window->session().apply(Edit::kMapPosition, [](Survey& survey) {
    survey.document.map.edit();
    return Status();
  });
  EXPECT_TRUE(status.ok()) << status.message();
}

std::string WindowTest::log() const {
  return TestFolder::get(home.file("Talvesk_TMP/Talvesk_log.log"));
}

QAction& WindowTest::action(const char* name) {
  return child<QAction>(name);
}

QString WindowTest::shotFile(const std::string& name, double source, double delay,
                             int channels) const {
  constexpr double kInterval = 0.00025;
  std::vector<Seg2Channel> made;
  for (int i = 0; i < channels; ++i) {
    const Trace trace = ringingTrace(firstBreak(static_cast<std::size_t>(i)) - delay, 400);
    Seg2Channel channel;
    for (std::size_t k = 0; k < trace.samples.size(); ++k) {
      // A little noise: a detector that divides by silence finds anything.
      const double noise = 0.5 * std::sin(12.9898 * static_cast<double>(k + 31 * made.size()));
      channel.samples.push_back(static_cast<float>(trace.samples[k] + noise));
    }
    channel.area = seg2Area({"DELAY " + std::to_string(delay),
                             "RECEIVER_LOCATION " + std::to_string(10.0 + 2.0 * i),
                             "SAMPLE_INTERVAL " + std::to_string(kInterval),
                             "SOURCE_LOCATION " + std::to_string(source)});
    made.push_back(channel);
  }
  return QString::fromStdString(home.put(name, seg2Bytes(made)));
}

void WindowTest::loadShots(int count) {
  QStringList files;
  for (int i = 0; i < count; ++i) {
    files << shotFile("shot" + std::to_string(i + 1) + ".dat", 9.0 + 4.0 * i);
  }
  window->openFiles(files);
  ASSERT_EQ(window->document().recordings->traceSets.size(), static_cast<std::size_t>(count));
}

}  // namespace talvesk::testing
