#include "gui/WindowTest.h"
#include "io/Survey.h"
#include "io/project/ProjectWriter.h"
#include "refraction/BuildProfiles.h"
#include "support/RefractionLines.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kOtherWave = "Project of the other wave";

/// Of the table.
enum Column { kVp = 4, kVs, kRatio, kPoisson, kDensity, kShear };

template <typename Widget>
Widget& part(QWidget& dialog, const char* name) {
  return *dialog.findChild<Widget*>(QLatin1String(name));
}

/// A window with a line of P waves and its profile, and projects of others.
class PAndS : public testing::WindowTest {
 protected:
  PAndS() {
    open();
    const Survey p = survey(1.0);
    window->session().open(p, true);
    s = save("s.tvsk", survey(2.5));
  }

  /// \param slower how many times than the P waves
  static Survey survey(double slower) {
    testing::DippingLayers ground = testing::twoDippingLayers();
    for (double& v : ground.velocities) v /= slower;
    Survey made;
    refractionDataStructure::Interpretation& own = made.interpretation.edit();
    made.document = testing::standardDippingLine(ground, own.ttLayer);
    EXPECT_TRUE(buildProfiles(shotArrivals(made.document), own).built);
    return made;
  }

  QString save(const std::string& name, const Survey& made) const {
    ProjectWriter writer;
    const std::string file = home.file(name);
    EXPECT_EQ(writer.save(file, home.file("Talvesk_TMP/"), made.document, made.interpretation,
                          made.palettes),
              0)
        << writer.message();
    return QString::fromStdString(file);
  }

  void putTogether(const QString& file, std::function<void(QWidget&)> look) {
    dialogs.expectFiles(QLatin1String(kOtherWave), {file});
    dialogs.expect([look = std::move(look)](QWidget& dialog) {
      look(dialog);
      dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
    });
    action("actionP_and_S").trigger();
    EXPECT_TRUE(dialogs.finished());
  }

  static double at(QWidget& dialog, int row, int column) {
    return part<QTableWidget>(dialog, "table").item(row, column)->text().toDouble();
  }
  static std::string notes(QWidget& dialog) {
    return part<QLabel>(dialog, "notesLabel").text().toStdString();
  }

  QString s;
};

TEST_F(PAndS, becomeModuliAlongTheLineAndTheSurveyStays) {
  const std::uint64_t before = window->session().revision();
  putTogether(s, [](QWidget& dialog) {
    EXPECT_EQ(part<QComboBox>(dialog, "rolesCombo").currentText().toStdString(),
              "P: this survey, S: s.tvsk");
    auto& table = part<QTableWidget>(dialog, "table");
    ASSERT_EQ(table.rowCount(), 120);
    for (const int row : {30, 90}) {
      EXPECT_NEAR(at(dialog, row, kRatio), 2.5, 0.03);
      EXPECT_NEAR(at(dialog, row, kPoisson), 0.405, 0.005);
    }
    const double shear = at(dialog, 90, kShear);
    part<QDoubleSpinBox>(dialog, "density2Edit").setValue(2200.0);
    EXPECT_EQ(at(dialog, 30, kDensity), 2000.0);
    EXPECT_EQ(at(dialog, 90, kDensity), 2200.0);
    EXPECT_NEAR(at(dialog, 90, kShear), 1.1 * shear, 0.2);
    EXPECT_FALSE(part<QDoubleSpinBox>(dialog, "density3Edit").isEnabled());
    part<QComboBox>(dialog, "densityCombo").setCurrentIndex(1);
    EXPECT_FALSE(part<QDoubleSpinBox>(dialog, "density1Edit").isEnabled());
    EXPECT_NEAR(at(dialog, 30, kDensity), 310.0 * std::pow(500.0, 0.25), 2.0);
    EXPECT_THAT(notes(dialog), HasSubstr("Gardner's rule was found for rocks"));
    part<QComboBox>(dialog, "layerCombo").setCurrentIndex(2);
    EXPECT_EQ(table.rowCount(), 60);
    EXPECT_NEAR(at(dialog, 0, 0), 2.0, 0.0);
    part<QCheckBox>(dialog, "errorsCheck").click();
    EXPECT_THAT(table.item(30, kVp)->text().toStdString(), HasSubstr(" \u00b1 "));
    EXPECT_EQ(part<QComboBox>(dialog, "layerCombo").currentIndex(), 2);
    part<QPushButton>(dialog, "copyButton").click();
    const std::string copied = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_THAT(copied,
                StartsWith("Layer\tDistance [m]\tDepth by P [m]\tDepth by S [m]\tVp [m/s]"));
    EXPECT_EQ(std::count(copied.begin(), copied.end(), '\n'), 61);
  });
  EXPECT_EQ(window->session().revision(), before);
  EXPECT_FALSE(window->session().modified());
  EXPECT_FALSE(action("actionUndo").isEnabled());
}

TEST_F(PAndS, areToldApartAndCanBeExchanged) {
  window->session().open(survey(2.5), true);
  const QString p = save("p.tvsk", survey(1.0));
  const QString deep = save("again.tvsk", survey(2.5));
  putTogether(p, [this, deep](QWidget& dialog) {
    auto& roles = part<QComboBox>(dialog, "rolesCombo");
    EXPECT_EQ(roles.currentText().toStdString(), "P: p.tvsk, S: this survey");
    EXPECT_NEAR(at(dialog, 30, kRatio), 2.5, 0.03);
    EXPECT_THAT(notes(dialog), Not(HasSubstr("S is not slower")));
    roles.setCurrentIndex(0);
    EXPECT_NEAR(at(dialog, 30, kRatio), 0.4, 0.01);
    EXPECT_EQ(part<QTableWidget>(dialog, "table").item(30, kPoisson)->text().toStdString(), "-");
    EXPECT_THAT(notes(dialog), HasSubstr("Layer 1: at 60 of 60 places S is not slower than P"));
    // The same wave twice.
    dialogs.expectFiles(QLatin1String(kOtherWave), {deep});
    part<QPushButton>(dialog, "otherButton").click();
    EXPECT_THAT(notes(dialog), HasSubstr("Layer 2: at 60 of 60 places S is not slower than P"));
    part<QDoubleSpinBox>(dialog, "shiftEdit").setValue(5000.0);
    EXPECT_THAT(notes(dialog), StartsWith("P and S have no place in common"));
    EXPECT_EQ(part<QTableWidget>(dialog, "table").rowCount(), 0);
    EXPECT_FALSE(part<QPushButton>(dialog, "tableButton").isEnabled());
    part<QDoubleSpinBox>(dialog, "shiftEdit").setValue(0.0);
    EXPECT_TRUE(part<QPushButton>(dialog, "tableButton").isEnabled());
  });
}

TEST_F(PAndS, sayWhereTheirDepthsDiffer) {
  Survey other = survey(2.5);
  for (double& depth : other.interpretation.edit().refractData.cData[0].depth) depth += 4.0;
  putTogether(save("deep.tvsk", other), [](QWidget& dialog) {
    EXPECT_THAT(notes(dialog), HasSubstr("Layer 2: at 60 of 60 places the depths of its top"));
    auto& table = part<QTableWidget>(dialog, "table");
    EXPECT_TRUE(table.item(90, 3)->font().bold());
    EXPECT_FALSE(table.item(30, 3)->font().bold());
    part<QDoubleSpinBox>(dialog, "toleranceEdit").setValue(150.0);
    EXPECT_THAT(notes(dialog), Not(HasSubstr("the depths of its top")));
  });
}

TEST_F(PAndS, areWrittenAsTableAndPicture) {
  const QString table = QString::fromStdString(home.file("ps.csv"));
  const QString picture = QString::fromStdString(home.file("ps.svg"));
  putTogether(s, [&](QWidget& dialog) {
    dialogs.expectFiles(QStringLiteral("Save table of P and S"), {table});
    part<QPushButton>(dialog, "tableButton").click();
    dialogs.expectFiles(QStringLiteral("Save picture of P and S"), {picture});
    part<QPushButton>(dialog, "pictureButton").click();
  });
  EXPECT_THAT(testing::TestFolder::get(table.toStdString()),
              StartsWith("layer,position_m,elevation_m,top_p_m,top_s_m,vp_m_s,vs_m_s,"));
  EXPECT_THAT(testing::TestFolder::get(picture.toStdString()), HasSubstr("Poisson"));
}

TEST_F(PAndS, arePrintedFromTheirDialog) {
  putTogether(s, [&](QWidget& dialog) {
    dialogs.expect([](QWidget& print) {
      EXPECT_EQ(part<QComboBox>(print, "figureCombo").currentText(), QStringLiteral("P and S"));
      part<QComboBox>(print, "scaleCombo").setEditText(QStringLiteral("Fit to the page"));
      const auto& save = part<QPushButton>(print, "pdfButton");
      EXPECT_TRUE(QTest::qWaitFor([&save] { return save.isEnabled(); }));
      print.close();
    });
    part<QPushButton>(dialog, "printButton").click();
  });
}

TEST_F(PAndS, needTwoProjectsWithLayers) {
  const QString title = QLatin1String(kOtherWave);
  const auto expectRefusal = [&](const QString& file, const char* box, const char* text,
                                 const char* details) {
    dialogs.expectFiles(title, {file});
    dialogs.expectBox(QLatin1String(box), QLatin1String(text), QLatin1String(details),
                      QMessageBox::Ok);
    action("actionP_and_S").trigger();
    EXPECT_TRUE(dialogs.finished());
  };
  Survey bare = survey(2.5);
  bare.interpretation.edit() = {};
  expectRefusal(save("bare.tvsk", bare), kOtherWave, "bare.tvsk has no layered profile.",
                "build its profiles");
  home.put("text.tvsk", "no project");
  expectRefusal(QString::fromStdString(home.file("text.tvsk")), "Error occured",
                "text.tvsk is not a valid project.", "");
  dialogs.expectFiles(QStringLiteral("Load Project"), {s});
  action("actionLoad_Project").trigger();
  expectRefusal(s, kOtherWave, "This is the project that is open.", "the other wave, P or S");
  dialogs.expectAndCancel();
  action("actionP_and_S").trigger();
  EXPECT_TRUE(dialogs.finished());
  EXPECT_EQ(window->document().ttArray.size(), 20U);
  window->session().open(bare, true);
  EXPECT_FALSE(action("actionP_and_S").isEnabled());
}

}  // namespace
}  // namespace talvesk
