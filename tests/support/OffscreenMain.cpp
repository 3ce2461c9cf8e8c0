#include <QApplication>

#include <gtest/gtest.h>

/// The offscreen platform of Qt never frees its screen; the leak checker need not tell.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libqoffscreen\nleak:QScreen::QScreen\n";
}

/// Widgets and figures draw themselves and are driven by events; neither needs a screen.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
