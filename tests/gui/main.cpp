#include "widgets/section/SectionSurface.h"

#include <QApplication>
#include <QTextCodec>

#include <gtest/gtest.h>

/// Real widgets on a display, without the dialogs of the desktop: tests could not answer those.
int main(int argc, char** argv) {
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  QSurfaceFormat::setDefaultFormat(talvesk::sectionSurfaceFormat());
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Talvesk"));
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
