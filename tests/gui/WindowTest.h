#pragma once

#include "app/Talvesk_MainWindows.h"
#include "base/Settings.h"
#include "gui/ModalScript.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <QAction>
#include <QStringList>
#include <memory>

#include <gmock/gmock.h>

namespace talvesk::testing {

/// The window of a user whose home is a temporary folder, and who has run the program before.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest();
  ~WindowTest() override;

  /// Opens the window; an open one is closed first, as by a restart.
  void open();
  void writeSettings(const std::string& language);
  std::string log() const;  ///< what the log file says
  /// The document, for what a test wants to be there without anybody having edited it.
  TomoDocument& writable();
  void touch();        ///< an edit that has to be saved
  void showWritten();  ///< as if another survey had been opened

  QAction& action(const char* name);
  template <typename Widget>
  Widget& child(const char* name) {
    auto* found = window->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }

  /// A SEG-2 file of ringing traces, 0.25 ms apart, geophones 2 m apart from 10 m on.
  /// \param delay seconds, never positive
  QString shotFile(const std::string& name, double source = 9.0, double delay = 0.0,
                   int channels = 12) const;
  /// As many shot files, loaded.
  void loadShots(int count);

  TestFolder home;
  ConsoleCapture console;
  ModalScript dialogs;
  std::unique_ptr<Talvesk_MainWindows> window;
};

}  // namespace talvesk::testing
