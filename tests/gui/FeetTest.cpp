#include "app/dialogs/AnnotationsDialog.h"
#include "app/dialogs/DepthProfileDialog.h"
#include "app/dialogs/KnownTables.h"
#include "app/dialogs/LengthBox.h"
#include "app/dialogs/MarkedIsolinesDialog.h"
#include "app/dialogs/SurveyedPositionsDialog.h"
#include "app/dialogs/VelocityFilterDialog.h"
#include "gui/DialogTest.h"
#include "gui/GeometryDriver.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "support/InFeet.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTableView>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace talvesk::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// What users see and type where feet are the unit that is shown.

/// All that a widget says by itself; what a table holds is its columns' names.
QStringList textsOf(const QWidget& widget) {
  QStringList texts = {widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(),
                       widget.windowTitle()};
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) texts << label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) texts << button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) texts << group->title();
  if (const auto* box = qobject_cast<const QAbstractSpinBox*>(&widget)) texts << box->text();
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) texts << edit->placeholderText();
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) texts << combo->itemText(i);
  }
  if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
    for (int i = 0; table->model() != nullptr && i < table->model()->columnCount(); ++i) {
      texts << table->model()->headerData(i, Qt::Horizontal).toString();
    }
  }
  return texts;
}

/// What stays in metres whatever is shown: coordinates of the map, files for other programs, the
/// choice of the unit itself, and a figure that a rule of the literature has.
const std::pair<const char*, const char*> kMetric[] = {
    {"coordinates", "eastingLabel"},  {"coordinates", "northingLabel"},
    {"coordinates", "checkLabel"},    {"coordinates", "estFstGeoph"},
    {"coordinates", "northFstGeoph"}, {"coordinates", "estLstGeoph"},
    {"coordinates", "northLstGeoph"}, {"shift", "y_coord_edit_unit"},
    {"shift", "z_offset_edit_unit"},  {"shift", "y_coord_edit"},
    {"shift", "z_offset_edit"},       {"drawing", "sectionButton"},
    {"drawing", "mapButton"},         {"settings", "lengthUnit"},
    {"trace headers", "saveButton"},  {"P and S", "densityLabel"},
    {"P and S", "densityCombo"},      {"P and S", "tableButton"},
    {"contours", "load_button"},      {"contours", "save_button"}};

bool staysMetric(const std::string& dialog, const QWidget& widget, const QString& text) {
  if (text.contains(QStringLiteral(", in metres"))) return true;  // told of a file
  return std::any_of(std::begin(kMetric), std::end(kMetric), [&](const auto& each) {
    return dialog == each.first && widget.objectName() == QLatin1String(each.second);
  });
}

bool saysMetres(const QString& text) {
  static const QRegularExpression kMetres(
      QStringLiteral("(^|[\\s\\x{a0}(\\[\\d])m(/s)?($|[\\s\\x{a0})\\],;.:<])|\\b[Mm]etres?\\b"));
  return text.contains(kMetres);
}

class Feet : public DialogTest {
 protected:
  void openLine() {
    TomoDocument line = testLine(24, 2.0, {-1.0, 47.0});
    pickTwoLayers(line, 450.0, 1800.0, 3.0);
    ASSERT_TRUE(writeTravelTimes(home.file("line.otte"), line).ok());
    open();
    window->openFiles({QString::fromStdString(home.file("line.otte"))});
    ASSERT_EQ(writable().ttArray.size(), 2U);
  }

  /// With those that are tried elsewhere, for they are never modal or need a table.
  std::vector<Case> everyCase() {
    std::vector<Case> all = cases();
    const TomoDocument& document = writable();
    all.push_back({"annotations", [&] {
                     const Annotation line{AnnotationKind::kLine, "", {{1.0, 2.0}, {3.0, 4.0}}};
                     return make<AnnotationsDialog>(std::vector<Annotation>{line}, Point2D(),
                                                    Point2D{1.0, 1.0});
                   }});
    all.push_back({"depth profile", [&] { return make<DepthProfileDialog>(); }});
    all.push_back({"marked isolines",
                   [&] { return make<MarkedIsolinesDialog>(std::vector<MarkedIsoline>()); }});
    all.push_back(
        {"surveyed positions", [&] { return make<SurveyedPositionsDialog>(document, false); }});
    all.push_back({"velocity filter", [&] { return make<VelocityFilterDialog>(document, 0, 1U); }});
    return all;
  }

  /// Types a number over all that a field has.
  static void type(QWidget& dialog, const char* name, const QString& text) {
    auto& field = *dialog.findChild<QAbstractSpinBox*>(QLatin1String(name));
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
  }

  void answer(const char* command, const std::function<void(QWidget&)>& fill) {
    dialogs.expect([fill](QWidget& widget) {
      fill(widget);
      QTest::keyClick(&widget, Qt::Key_Return);
    });
    action(command).trigger();
  }
};

TEST_F(Feet, areTheUnitOfEveryDialogInEveryLanguage) {
  int seen = 0;
  for (const char* language : {"en", "de", "es", "fr", "it"}) {
    writeSettings(language);
    openSurvey();
    const InFeet feet;
    for (const Case& each : everyCase()) {
      const auto dialog = each.make();
      show(*dialog);
      EXPECT_LE(dialog->minimumSizeHint().width(), 1366) << language << ", " << each.name;
      EXPECT_LE(dialog->minimumSizeHint().height(), 700) << language << ", " << each.name;
      QList<QWidget*> widgets = dialog->findChildren<QWidget*>();
      widgets << dialog.get();
      for (const QWidget* widget : widgets) {
        for (const QString& text : textsOf(*widget)) {
          seen += text.contains(QLatin1String("ft")) ? 1 : 0;
          if (staysMetric(each.name, *widget, text)) continue;
          EXPECT_FALSE(saysMetres(text))
              << language << ", " << each.name << ", " << widget->objectName().toStdString() << ": "
              << text.toStdString();
        }
      }
    }
  }
  EXPECT_GT(seen, 5 * 40) << "texts in feet";
}

TEST_F(Feet, standOnlyWhereAFieldCountsInThem) {
  openSurvey();
  const InFeet feet;
  int fields = 0;
  for (const Case& each : everyCase()) {
    const auto dialog = each.make();
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      const auto* box = qobject_cast<QAbstractSpinBox*>(label->buddy());
      static const QRegularExpression kFeet(QStringLiteral("[(\\[]ft(/s)?[)\\]]"));
      if (box == nullptr || !label->text().contains(kFeet)) continue;
      ++fields;
      const bool follows = dynamic_cast<const LengthBox*>(box) != nullptr ||
                           dynamic_cast<const VelocityBox*>(box) != nullptr;
      EXPECT_TRUE(follows) << each.name << ": " << label->text().toStdString();
    }
  }
  EXPECT_GE(fields, 7);
}

TEST_F(Feet, leaveTheProgramWhatItWasAskedInMetres) {
  std::vector<double> slownesses[2];
  std::vector<VelocityLayer> layers[2];
  for (const bool inFeet : {false, true}) {
    openLine();
    setLengthUnit(inFeet ? LengthUnit::kFoot : LengthUnit::kMetre);
    answer("actionGrid", [inFeet](QWidget& dialog) {
      EXPECT_EQ(dialog.findChild<QLabel*>("arrayLength")->text().toStdString(),
                inFeet ? "164.04" : "50.00");
      type(dialog, "maxDepthEdit", inFeet ? "50" : "15.24");
      type(dialog, "cellSizeEdit", inFeet ? "12.5" : "3.81");
    });
    answer("actionDefine_model_velocity",
           [inFeet](QWidget& dialog) { type(dialog, "v1Edit", inFeet ? "2500" : "762"); });
    dialogs.expect([inFeet](QWidget& dialog) {
      type(dialog, "extIter_edit", "1");
      type(dialog, "minVelEdit", inFeet ? "1250" : "381");
      type(dialog, "maxVelEdit", inFeet ? "10000" : "3048");
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    dialogs.expectAndCancel();  // the results
    action("actionRun_tomography_inversion").trigger();
    const TomoDocument& line = writable();
    EXPECT_EQ(line.model->grid->aLato(), 3.81);
    EXPECT_EQ(line.model->grid->righe(), 4U);
    slownesses[inFeet] = line.model->grid->slownesses();
    layers[inFeet] = line.model->layers;
  }
  setLengthUnit(LengthUnit::kMetre);
  EXPECT_EQ(slownesses[0], slownesses[1]) << "to the last bit";
  ASSERT_EQ(layers[0].size(), layers[1].size());
  EXPECT_EQ(layers[0][0].initialVelocity, 762.0);
  EXPECT_EQ(layers[1][0].initialVelocity, 762.0);
  EXPECT_EQ(layers[0][0].finalDepth, layers[1][0].finalDepth);
}

TEST_F(Feet, ofVelocitiesAreKeptExactlyAndSeenAgain) {
  openLine();
  const InFeet feet;
  answer("actionGrid", [](QWidget&) {});
  for (const bool again : {false, true}) {
    answer("actionDefine_model_velocity", [again](QWidget& dialog) {
      auto& velocity = *dialog.findChild<QAbstractSpinBox*>("v1Edit");
      if (again) {
        EXPECT_EQ(velocity.text().toStdString(), "4000");
      }
      type(dialog, "v1Edit", again ? "4001" : "4000");
    });
    EXPECT_EQ(writable().model->layers[0].initialVelocity, again ? 1219.5048 : 1219.2);
  }
}

TEST_F(Feet, leaveIsovaluesAsTheyAreAndTakeTypedOnesExactly) {
  openSurvey();
  const InFeet feet;
  ContourSettings contours;
  contours.customized = true;
  contours.onProfile = true;
  contours.customValues = {300.7, 500.0, 2000.0 / 3.0};
  contourlines_dialog dialog(contours, SectionQuantity::kVelocity, {250.0, 900.0}, mFolders);
  dialog.show();
  EXPECT_FALSE(dialog.hasChanges());
  EXPECT_EQ(dialog.settings().customValues, contours.customValues) << "to the bit";
  EXPECT_THAT(dialog.findChild<QLabel*>("rangeLabel")->text().toStdString(),
              HasSubstr("820.21 to 2,952.76 ft/s"));
  QList<QLineEdit*> edits = dialog.findChild<QScrollArea*>()->findChildren<QLineEdit*>();
  ASSERT_EQ(edits.size(), 3);
  EXPECT_EQ(edits[1]->text().toStdString(), "1640.42");
  edits[1]->setText("1500");
  edits[2]->setText("2952.76");
  EXPECT_EQ(dialog.settings().customValues, (std::vector<double>{300.7, 457.2, 900.0}));
  dialog.findChild<QPushButton*>("round_button")->click();
  for (const double value : dialog.settings().customValues) {
    EXPECT_NEAR(std::remainder(shownLength(value), 50.0), 0.0, 1e-9) << value;
    EXPECT_EQ(value, QString::number(value, 'g', 15).toDouble()) << "as if it were typed";
  }
}

TEST_F(Feet, areWhatDrawingsAndKnownGroundAskFor) {
  openSurvey();
  const InFeet feet;
  DrawingDialog::Start start;
  start.isovalues = {457.2, 1000.0 / 3.0};
  DrawingDialog drawing(start);
  EXPECT_EQ(drawing.isovalues(), (std::vector<double>{1000.0 / 3.0, 457.2}));
  auto& edit = *drawing.findChild<QLineEdit*>("isovaluesEdit");
  EXPECT_EQ(edit.text().toStdString(), "1500 1093.613");
  edit.setText("1500 5000; 1093.613");
  EXPECT_EQ(drawing.isovalues(), (std::vector<double>{1000.0 / 3.0, 457.2, 1524.0}));

  KnownGround known;
  known.depths.push_back({"seen", 12.3, 0.1 + 0.2, 0.5, 2, 1500.0});
  KnownSession session(known);
  KnownTable table(session, KnownKind::kDepth);
  QStringList cells;
  for (int column = 0; column < table.columnCount(); ++column) {
    cells << table.index(0, column).data().toString();
  }
  EXPECT_THAT(cells.join(' ').toStdString(), HasSubstr("40.354 0.984 1.64 4921.26"));
  for (int column = 0; column < table.columnCount(); ++column)
    table.paste(0, column, cells[column]);
  EXPECT_EQ(session.ground(), known) << "pasted where it was copied";
  table.setData(table.index(0, 1), "40", Qt::EditRole);
  EXPECT_EQ(session.ground()->depths[0].x, 12.192);
}

TEST_F(Feet, setTheRangeOfTheColours) {
  openSurvey();
  const InFeet feet;
  ColorPaletteList palettes;
  PaletteDialog dialog(palettes, false, ValueRange{304.0, 2990.0}, mFolders);
  int told = 0;
  QObject::connect(&dialog, &PaletteDialog::changed_min_value, [&](int value) { told = value; });
  EXPECT_FALSE(dialog.hasChanges());
  EXPECT_EQ(dialog.findChild<QSpinBox*>("minimum")->value(), 820);
  EXPECT_EQ(dialog.findChild<QSpinBox*>("maximum")->value(), 11483);
  EXPECT_FALSE(dialog.hasChanges());
  dialog.findChild<QSpinBox*>("minimum")->setValue(1000);
  EXPECT_EQ(palettes.current().min_db, 304.8);
  EXPECT_EQ(told, 305);
  EXPECT_EQ(palettes.current().max_db, 3500.0) << "was not touched";
}

TEST_F(Feet, reachAProfileThatIsOpen) {
  openSurvey();
  DepthProfileDialog dialog;
  dialog.setSection(DepthProfiles(writable()));
  show(dialog);
  auto& place = *dialog.findChild<QAbstractSpinBox*>("placeSpin");
  auto& sheet = *dialog.findChild<QWidget*>("profileSheet");
  EXPECT_THAT(place.text().toStdString(), ::testing::EndsWith(" m"));
  const QImage inMetres = sheet.grab().toImage();
  // Words as they would be in another language.
  auto& label = *dialog.findChild<QLabel*>("placeLabel");
  label.setText(QStringLiteral("Ort:"));
  sheet.setAccessibleName(QStringLiteral("Geschwindigkeit"));
  const InFeet feet;
  QEvent change(QEvent::LanguageChange);
  QApplication::sendEvent(&dialog, &change);
  EXPECT_THAT(place.text().toStdString(), ::testing::EndsWith(" ft"));
  EXPECT_EQ(label.text().toStdString(), "&Distance:");
  EXPECT_THAT(sheet.accessibleName().toStdString(), HasSubstr("Velocity"));
  EXPECT_NE(sheet.grab().toImage(), inMetres);
}

TEST_F(Feet, standInTipsThatNameAVelocity) {
  openSurvey();
  const auto tip = [&] { return action("actionMarked_isolines").toolTip().toStdString(); };
  EXPECT_THAT(tip(), HasSubstr("1500 m/s"));
  QEvent change(QEvent::LanguageChange);
  {
    const InFeet feet;
    QApplication::sendEvent(window.get(), &change);
    EXPECT_THAT(tip(), HasSubstr("4,921 ft/s"));
  }
  QApplication::sendEvent(window.get(), &change);
  EXPECT_THAT(tip(), HasSubstr("1500 m/s"));
}

TEST_F(Feet, areReadOutInTheWindow) {
  openSurvey();
  const InFeet feet;
  QEvent change(QEvent::LanguageChange);
  QApplication::sendEvent(window.get(), &change);
  QStringList shots;
  for (const QComboBox* box : window->findChildren<QComboBox*>()) {
    for (int i = 0; i < box->count(); ++i) shots << box->itemText(i);
  }
  EXPECT_THAT(shots.join('|').toStdString(), HasSubstr("at 29.5 ft"));
  EXPECT_THAT(shots.join('|').toStdString(), Not(HasSubstr("at 9.0 m")));
}

}  // namespace

class GeometryInFeet : public Geometry {};

TEST_F(GeometryInFeet, isTypedPastedAndCopiedAsItIsSeen) {
  loadShots(2);
  const InFeet feet;
  const std::vector<Point2D> before = writable().line->goephonesStringSet.front();
  edit([&](GeometryDriver& driver) {
    auto& table = driver.geophones();
    EXPECT_EQ(driver.cell(table, 0, 0).toStdString(), "32.808") << "10 m";
    EXPECT_EQ(driver.child<QLineEdit>("spacingEdit").text().toStdString(), "6.562");
    driver.type(table, 1, 0, "40.5");
    driver.paste(table, 2, 0, "45\t3\n50\t3.5\n");
    // What is pasted where it was copied changes nothing.
    driver.paste(table, 0, 0, driver.cell(table, 0, 0));
    EXPECT_EQ(driver.cell(table, 2, 1).toStdString(), "3");
    driver.ok();
  });
  const std::vector<Point2D>& after = writable().line->goephonesStringSet.front();
  EXPECT_EQ(after[0].x, before[0].x);
  EXPECT_EQ(after[1].x, 12.3444);
  EXPECT_EQ(after[2].x, 13.716);
  EXPECT_EQ(after[2].z, 0.9144);
  EXPECT_EQ(after[4].x, before[4].x);
}

}  // namespace talvesk::testing
