#include "app/FileFolders.h"
#include "app/dialogs/DialogSetGeometry.h"
#include "gui/ModalScript.h"
#include "io/SegyFile.h"
#include "model/SurveyLine.h"
#include "support/TestSurveys.h"

#include <QLabel>
#include <QPushButton>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

TEST(GeometryDialog, savesNoGapsThatItCouldNotLoadAgain) {
  testing::ModalScript dialogs;  // nobody expects the dialog that asks for a file
  constexpr double kEmpty = std::numeric_limits<double>::quiet_NaN();
  TomoDocument line = testing::testLine(5, 2.0, {-1.0, 9.0});
  line.line.edit().goephonesStringSet[0][3].z = kEmpty;
  line.ttArray.edit()[1].shotPos2d.x = kEmpty;
  SegyState state;
  FileFolders folders{History({})};
  DialogSetGeometry dialog(line, state, folders, {});
  const auto* notice = dialog.findChild<QLabel*>(QStringLiteral("noticeLabel"));
  for (const auto& [button, text] : {std::pair("saveGeophonesButton", "4 without a position"),
                                     std::pair("saveShotsButton", "2 without a position")}) {
    dialog.findChild<QPushButton*>(QLatin1String(button))->click();
    EXPECT_THAT(notice->text().toStdString(), ::testing::HasSubstr(text));
  }
}

}  // namespace
}  // namespace talvesk
