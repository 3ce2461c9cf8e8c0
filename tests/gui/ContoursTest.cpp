#include "app/FileFolders.h"
#include "app/dialogs/contourlines_dialog.h"
#include "gui/WindowTest.h"
#include "support/SectionDocument.h"
#include "widgets/section/SectionView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::WindowTest;

/// The dialog over velocities from 250 to 3500 m/s.
class Contours : public WindowTest {
 protected:
  Contours() {
    ContourSettings settings;
    settings.customized = true;
    settings.customValues = {500.0, 1500.0};
    dialog = std::make_unique<contourlines_dialog>(settings, SectionQuantity::kVelocity,
                                                   ValueRange{250.0, 3500.0}, folders);
    dialog->show();
  }

  template <typename Child>
  Child& part(const char* name) {
    return *dialog->findChild<Child*>(QLatin1String(name));
  }
  void click(const char* button) { part<QAbstractButton>(button).click(); }
  void type(const QString& text) {
    dialog->add_value();
    part<QWidget>("rows").findChildren<QLineEdit*>().back()->setText(text);
  }
  bool mayAccept() {
    return part<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Ok)->isEnabled();
  }
  void expectSeparator(int index) {
    dialogs.expect([index](QWidget& widget) {
      EXPECT_EQ(widget.windowTitle().toStdString(), "Select CSV Separator");
      widget.findChild<QComboBox*>()->setCurrentIndex(index);
      widget.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
  }
  void load(const std::string& text, int separator) {
    const QString file = QString::fromStdString(home.put("values.csv", text));
    dialogs.expectFiles("Save Isovalues", {file});
    expectSeparator(separator);
  }
  std::vector<double> values() const { return dialog->settings().customValues; }

  static constexpr int kBlank = 0;
  static constexpr int kSemicolon = 1;
  static constexpr int kComma = 2;
  FileFolders folders{History(home.file("history.txt"))};
  std::unique_ptr<contourlines_dialog> dialog;
};

TEST_F(Contours, haveTheirTexts) {
  EXPECT_EQ(dialog->windowTitle().toStdString(), "Contour Lines - Settings");
  const std::pair<const char*, const char*> texts[] = {
      {"equallySpacedCB", "Equally spaced contour values"},
      {"customizedCB", "Customized Contour Values"},
      {"add_button", "Add One More Value"},
      {"save_button", "Save Isovalues"},
      {"load_button", "Load Isovalues"},
      {"remove_all_button", "Remove All"},
      {"profileContours", "Show Contours (on top of  Tomographic Profile)"},
      {"filledContours", "Show Filled Contours"},
      {"laplacianGradientContours", "Show Contours (on Laplacian Gradient of Velocity)"},
      {"gradientContours", "Show Contours (on Vertical Gradient of Velocity)"}};
  for (const auto& [name, text] : texts) {
    EXPECT_EQ(part<QAbstractButton>(name).text().toStdString(), text);
  }
  const std::pair<const char*, const char*> labels[] = {
      {"spinBox", "# Values"},
      {"scrollArea", "Values"},
      {"every_N_contour_lines_spinBox", "Show label every N contour lines"},
      {"fontSize", "Label size"},
      {"toolColorButton", "Contours colour:"}};
  for (const auto& [name, text] : labels) {
    const QWidget* buddy = &part<QWidget>(name);
    bool found = false;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      found |= label->buddy() == buddy && label->text() == QLatin1String(text);
    }
    EXPECT_TRUE(found) << text;
  }
}

TEST_F(Contours, areEitherEquallySpacedOrCustomized) {
  click("customizedCB");
  EXPECT_TRUE(part<QCheckBox>("equallySpacedCB").isChecked()) << "one is always on";
  EXPECT_FALSE(dialog->settings().customized);
  EXPECT_TRUE(part<QSpinBox>("spinBox").isEnabled());
  EXPECT_FALSE(part<QPushButton>("add_button").isEnabled());
  click("equallySpacedCB");
  EXPECT_TRUE(dialog->settings().customized);
  EXPECT_FALSE(part<QSpinBox>("spinBox").isEnabled());
  EXPECT_TRUE(part<QPushButton>("load_button").isEnabled());
}

TEST_F(Contours, thatAreFilledGoWithThoseOfTheVelocityAlone) {
  for (const char* name : {"laplacianGradientContours", "gradientContours", "profileContours"}) {
    click(name);
  }
  click("filledContours");
  const ContourSettings filled = dialog->settings();
  EXPECT_TRUE(filled.filled);
  EXPECT_TRUE(filled.onProfile);
  EXPECT_FALSE(filled.onLaplacian);
  EXPECT_FALSE(filled.onVerticalGradient);
  EXPECT_FALSE(part<QCheckBox>("gradientContours").isEnabled());
  click("filledContours");
  EXPECT_TRUE(part<QCheckBox>("gradientContours").isEnabled());
}

TEST_F(Contours, takeOnlyNumbersWithinTheRange) {
  const struct {
    const char* text;
    bool fine;
  } facts[] = {{"250", true},    {"3500", true}, {"", true},     {" 700.5 ", true},
               {"249.9", false}, {"abc", false}, {"1e9", false}, {"nan", false},
               {"3501", false},  {"7e2", true},  {"12 m", false}};
  for (const auto& fact : facts) {
    type(fact.text);
    EXPECT_EQ(mayAccept(), fact.fine) << fact.text;
    EXPECT_EQ(part<QLabel>("faultLabel").text().isEmpty(), fact.fine) << fact.text;
    part<QWidget>("rows").findChildren<QLineEdit*>().back()->setText(QString());
  }
  type("700");
  type("500");
  EXPECT_THAT(values(), ElementsAre(500.0, 700.0, 1500.0)) << "ascending, each once";
  type("9999");
  click("customizedCB");
  EXPECT_TRUE(mayAccept()) << "the list does not matter now";
  EXPECT_THAT(values(), ElementsAre(500.0, 700.0, 1500.0, 9999.0)) << "and is kept";
}

TEST_F(Contours, areTypedAsTheUserWritesNumbers) {
  QLocale::setDefault(QLocale("it_IT"));
  type("700,5");
  type("800.25");
  const std::vector<double> typed = values();
  QLocale::setDefault(QLocale("en_US"));
  EXPECT_THAT(typed, ElementsAre(500.0, 700.5, 800.25, 1500.0));
}

TEST_F(Contours, comeBackFromAFileAndThoseOutOfRangeAreToldOfOnce) {
  load("3500;true\n100;true\n250;true\n4000;true\n250.5;true\n", kSemicolon);
  dialogs.expectBox("Warning", "Some loaded isovalues were out of range. Ignored.", "",
                    QMessageBox::Ok);
  click("load_button");
  EXPECT_THAT(values(), ElementsAre(250.0, 250.5, 3500.0));
  EXPECT_THAT(console.out(), HasSubstr("Value : 100\nValue : 250\n"));
}

TEST_F(Contours, stayWhenAFileHasAnotherSeparator) {
  load("700;true\n", kComma);
  dialogs.expectBox("Error", "Invalid value at line 1\nOr wrong CVS separator.", "",
                    QMessageBox::Ok);
  click("load_button");
  EXPECT_THAT(values(), ElementsAre(500.0, 1500.0));
}

TEST_F(Contours, thatWereReadBeforeAWrongLineAreKept) {
  load("700 true\n800 true\nnine true\n1000 true\n", kBlank);
  dialogs.expectBox("Error", "Invalid value at line 3\nOr wrong CVS separator.", "",
                    QMessageBox::Ok);
  click("load_button");
  EXPECT_THAT(values(), ElementsAre(700.0, 800.0));
}

TEST_F(Contours, areSavedAscendingUnderANameThatEndsInCsv) {
  type("300.5");
  dialogs.expectFiles("Save Isovalues", {QString::fromStdString(home.file("mine"))});
  expectSeparator(kComma);
  click("save_button");
  EXPECT_EQ(testing::TestFolder::get(home.file("mine.csv")), "300.5,true\n500,true\n1500,true\n");
  dialogs.expectFiles("Save Isovalues", {QString::fromStdString(home.file("other.CSV"))});
  dialogs.expectAndCancel();
  click("save_button");
  EXPECT_FALSE(QFile::exists(QString::fromStdString(home.file("other.CSV"))));
}

TEST_F(Contours, areLoadedFromBelowAHeadingWhichIsSaid) {
  load("velocity;shown\n400;true\n", kSemicolon);
  dialogs.expectBox("Load Isovalues",
                    "The first line, \"velocity;shown\", was taken for a heading and skipped.", "",
                    QMessageBox::Ok);
  click("load_button");
  EXPECT_THAT(values(), ElementsAre(400.0));
}

TEST_F(Contours, areRemovedOneByOneOrAll) {
  for (auto* remove : part<QWidget>("rows").findChildren<QAbstractButton*>()) {
    remove->click();
    break;
  }
  EXPECT_THAT(values(), ElementsAre(1500.0));
  click("remove_all_button");
  EXPECT_THAT(values(), IsEmpty());
  EXPECT_FALSE(part<QPushButton>("save_button").isEnabled());
  EXPECT_TRUE(mayAccept());
}

TEST_F(Contours, areLoggedWhenTheyAreAccepted) {
  dialog->close();
  open();
  dialogs.expect([](QWidget& widget) {
    EXPECT_EQ(widget.windowTitle().toStdString(), "Contour Lines - Settings");
    widget.findChild<QCheckBox*>("filledContours")->click();
    widget.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  QMetaObject::invokeMethod(window.get(), "on_actionShow_Contour_Lines_triggered");
  std::size_t from = 0;
  for (const char* line : {"Equally Spaced Contours: false\n", "Customized Contours: true\n",
                           "Contours on Vertical Gradient: false\n",
                           "Contours on Laplacian Gradient: false\n", "Filled Contours: true\n"}) {
    from = log().find(line, from);
    ASSERT_NE(from, std::string::npos) << line;
  }
  dialogs.expect([](QWidget& widget) {
    EXPECT_TRUE(widget.findChild<QCheckBox*>("filledContours")->isChecked());
    widget.findChild<QCheckBox*>("filledContours")->click();
    widget.close();
  });
  QMetaObject::invokeMethod(window.get(), "on_actionShow_Contour_Lines_triggered");
  EXPECT_EQ(log().find("Filled Contours: false\n"), std::string::npos) << "cancelled";
}

TEST_F(Contours, areProposedRoundAndTheCommandSaysWhetherThereAreAny) {
  dialog->close();
  open();
  writable() = testing::sectionDocument(
      6, 20, 0.0, [](std::uint32_t row, std::uint32_t) { return 600.0 + 200.0 * row; });
  QAction& command = child<QAction>("actionShow_Contour_Lines");
  command.setEnabled(true);
  const struct {
    const char* click;
    QDialogButtonBox::StandardButton button;
    bool shown;
  } steps[] = {{nullptr, QDialogButtonBox::Cancel, false},
               {nullptr, QDialogButtonBox::Ok, true},
               {nullptr, QDialogButtonBox::Cancel, true},
               {"profileContours", QDialogButtonBox::Ok, false}};
  for (const auto& step : steps) {
    dialogs.expect([&](QWidget& widget) {
      EXPECT_TRUE(widget.findChild<QCheckBox*>("profileContours")->isChecked());
      const auto* rows = widget.findChild<QWidget*>("rows");
      EXPECT_EQ(rows->findChild<QLineEdit*>()->text().toStdString(), "500");
      if (step.click != nullptr) widget.findChild<QCheckBox*>(step.click)->click();
      EXPECT_EQ(widget.findChild<QLabel*>("noneLabel")->text().isEmpty(), step.click == nullptr);
      widget.findChild<QDialogButtonBox*>()->button(step.button)->click();
    });
    command.trigger();
    EXPECT_EQ(command.isChecked(), step.shown);
  }
}

TEST_F(Contours, haveAListForEachQuantity) {
  dialog->close();
  open();
  writable() = testing::sectionDocument(6, 20, 0.0, [](std::uint32_t row, std::uint32_t) {
    return 600.0 + 200.0 * row + 10.0 * row * row;
  });
  window->showFile(0);
  std::vector<std::string> rows;
  const auto look = [&](const QString& first, const std::string& range) {
    dialogs.expect([&rows, first, range](QWidget& widget) {
      const auto edits = widget.findChild<QWidget*>("rows")->findChildren<QLineEdit*>();
      rows.clear();
      for (const QLineEdit* edit : edits) rows.push_back(edit->text().toStdString());
      EXPECT_THAT(widget.findChild<QLabel*>("rangeLabel")->text().toStdString(), HasSubstr(range));
      if (!first.isEmpty() && !edits.isEmpty()) edits.front()->setText(first);
      EXPECT_EQ(widget.findChild<QLabel*>("faultLabel")->text().toStdString(), "");
      widget.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    action("actionShow_Contour_Lines").trigger();
  };
  look("777", "m/s");
  EXPECT_EQ(rows.front(), "500") << "round ones, as there were none";

  action("actionVertical_Gradient").trigger();
  look("210", " 1/s");
  ASSERT_FALSE(rows.empty());
  EXPECT_THAT(rows, ::testing::Not(::testing::Contains("777"))) << "no velocity is a gradient";
  const SectionScene* scene = child<SectionView>("vtk_widget").scene();
  EXPECT_THAT(scene->contourLevels, ::testing::Contains(210.0));
  EXPECT_FALSE(scene->contours.empty());

  action("actionVertical_Gradient").trigger();
  look({}, "m/s");
  EXPECT_THAT(rows, ::testing::Contains("777")) << "kept while the other was edited";
}

TEST_F(Contours, thatAreSwitchedOnForAQuantityOutOfViewAreRound) {
  dialog->close();
  open();
  writable() = testing::sectionDocument(6, 20, 0.0, [](std::uint32_t row, std::uint32_t) {
    return 600.0 + 200.0 * row + 10.0 * row * row;
  });
  window->showFile(0);
  dialogs.expect([](QWidget& widget) {
    widget.findChild<QCheckBox*>("gradientContours")->click();
    widget.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  action("actionShow_Contour_Lines").trigger();
  action("actionVertical_Gradient").trigger();
  EXPECT_FALSE(child<SectionView>("vtk_widget").scene()->contours.empty());
}

TEST_F(Contours, areRoundOnRequest) {
  click("round_button");
  EXPECT_THAT(values(), ElementsAre(500.0, 1000.0, 1500.0, 2000.0, 2500.0, 3000.0, 3500.0));
}

TEST_F(Contours, appearOnTheSection) {
  dialog->close();
  open();
  writable() = testing::sectionDocument(
      6, 20, 0.0, [](std::uint32_t row, std::uint32_t) { return 600.0 + 200.0 * row; });
  dialogs.expect([](QWidget& widget) {
    widget.findChild<QPushButton*>("remove_all_button")->click();
    widget.findChild<QPushButton*>("add_button")->click();
    widget.findChild<QWidget*>("rows")->findChild<QLineEdit*>()->setText("900");
    EXPECT_TRUE(widget.findChild<QCheckBox*>("profileContours")->isChecked());
    widget.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  QMetaObject::invokeMethod(window.get(), "on_actionShow_Contour_Lines_triggered");
  const SectionScene* scene = child<SectionView>("vtk_widget").scene();
  ASSERT_NE(scene, nullptr);
  EXPECT_THAT(scene->contourLevels, ElementsAre(900.0));
  EXPECT_FALSE(scene->contours.empty());
  EXPECT_TRUE(window->session().modified());
  EXPECT_EQ(child<QTabWidget>("tabWidget").currentWidget(), &child<QWidget>("vtk_tab"));
}

TEST_F(Contours, theCommandIsCheckedWhileTheyAreShownWhateverIsAnswered) {
  dialog->close();
  open();
  writable() = testing::sectionDocument(
      6, 20, 0.0, [](std::uint32_t row, std::uint32_t) { return 600.0 + 200.0 * row; });
  window->showFile(0);
  const auto answer = [this](const char* toClick, QDialogButtonBox::StandardButton button) {
    dialogs.expect([=](QWidget& widget) {
      if (toClick != nullptr) widget.findChild<QCheckBox*>(toClick)->click();
      widget.findChild<QDialogButtonBox*>()->button(button)->click();
    });
    action("actionShow_Contour_Lines").trigger();
    return action("actionShow_Contour_Lines").isChecked();
  };
  EXPECT_FALSE(answer(nullptr, QDialogButtonBox::Cancel));
  EXPECT_TRUE(answer(nullptr, QDialogButtonBox::Ok)) << "OK alone shows them";
  action("actionVertical_Gradient").trigger();
  EXPECT_FALSE(action("actionShow_Contour_Lines").isChecked()) << "there are none over it";
  action("actionVertical_Gradient").trigger();
  EXPECT_TRUE(answer(nullptr, QDialogButtonBox::Ok));
  EXPECT_FALSE(answer("profileContours", QDialogButtonBox::Ok));
}

}  // namespace
}  // namespace talvesk
