#include "app/PagePrinter.h"
#include "app/dialogs/PrintDialog.h"
#include "app/dialogs/PrintPreview.h"
#include "figures/print/PrintFigures.h"
#include "gui/WindowTest.h"
#include "support/SectionDocument.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPrintEngine>
#include <QPrinter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTest>

namespace talvesk {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using testing::TestFolder;
using testing::WindowTest;

template <typename Widget>
Widget& in(const QWidget& dialog, const char* name) {
  auto* found = dialog.findChild<Widget*>(QLatin1String(name));
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

/// The window with a section of 6 rows of 20 cells under geophones, and a shot with picks.
class Printing : public WindowTest {
 protected:
  Printing() { open(); }

  void takeSection(std::uint32_t columns = 20) {
    TomoDocument& document = writable();
    document = testing::sectionDocument(
        6, columns, 0.5, [](std::uint32_t row, std::uint32_t) { return 400.0 + 300.0 * row; });
    document.title = "Hill 7/b";
    showWritten();
    window->showFile(0);
    child<QTabWidget>("tabWidget").setCurrentIndex(2);
  }

  /// Until the sheets are those that the fields ask for.
  static void settle(const QWidget& dialog) {
    const auto& preview = in<PrintPreview>(dialog, "preview");
    const auto& fit = in<QLabel>(dialog, "fitLabel");
    const QString before = fit.text();
    QElapsedTimer timer;
    timer.start();
    QTest::qWait(250);
    while (timer.elapsed() < 5000 && !preview.isDrawn()) QTest::qWait(20);
    EXPECT_TRUE(preview.isDrawn());
  }
  static void setScale(const QWidget& dialog, const char* text) {
    in<QComboBox>(dialog, "scaleCombo").setEditText(QLatin1String(text));
  }
  static std::string said(const QWidget& dialog) {
    return in<QLabel>(dialog, "fitLabel").text().toStdString();
  }
  void expectDialog(std::function<void(QWidget&)> look) {
    dialogs.expect([look = std::move(look)](QWidget& dialog) {
      settle(dialog);
      look(dialog);
      dialog.close();
    });
    action("actionPrint").trigger();
    EXPECT_TRUE(dialogs.finished());
  }
};

TEST_F(Printing, showsTheSheetThatItSaves) {
  EXPECT_FALSE(action("actionPrint").isEnabled());
  takeSection();
  const std::string file = home.file("sheet.pdf");
  dialogs.expect([&](QWidget& dialog) {
    settle(dialog);
    const auto& preview = in<PrintPreview>(dialog, "preview");
    ASSERT_EQ(preview.sheets().size(), 1U);
    const QImage& sheet = preview.sheets().front();
    EXPECT_NEAR(static_cast<double>(sheet.width()) / sheet.height(), 420.0 / 297.0, 0.01);
    EXPECT_EQ(in<QLineEdit>(dialog, "titleEdit").placeholderText(), QStringLiteral("Hill 7/b"));
    EXPECT_THAT(said(dialog), HasSubstr("At 1:500 the figure takes"));
    in<QPushButton>(dialog, "pdfButton").click();
    dialog.close();
  });
  dialogs.expectFiles("Save sheets as PDF", {QString::fromStdString(file)});
  action("actionPrint").trigger();
  EXPECT_TRUE(dialogs.finished());
  EXPECT_THAT(TestFolder::get(file), StartsWith("%PDF-1."));
  EXPECT_THAT(log(), HasSubstr("Talvesk_MainWindows::on_actionPrint_triggered"));
}

TEST_F(Printing, saysWhatDoesNotFitAndTakesOverWhatWould) {
  takeSection();
  for (const char* way : {"scale:", "paper:", "tiles"}) {
    expectDialog([&](QWidget& dialog) {
      setScale(dialog, "1:20");
      settle(dialog);
      const QString text = in<QLabel>(dialog, "fitLabel").text();
      EXPECT_THAT(text.toStdString(), HasSubstr("At 1:20 the figure takes"));
      EXPECT_FALSE(in<QPushButton>(dialog, "pdfButton").isEnabled());
      const int at = text.indexOf(QStringLiteral("href=\"%1").arg(QLatin1String(way)));
      ASSERT_GE(at, 0) << way << " in " << text.toStdString();
      const QString target = text.mid(at + 6).section(QLatin1Char('"'), 0, 0);
      emit in<QLabel>(dialog, "fitLabel").linkActivated(target);
      settle(dialog);
      EXPECT_TRUE(in<QPushButton>(dialog, "pdfButton").isEnabled()) << target.toStdString();
      EXPECT_THAT(said(dialog), Not(HasSubstr("href")));
      EXPECT_THAT(in<QCheckBox>(dialog, "tilesBox").toolTip().toStdString(),
                  HasSubstr("match lines"));
      const bool tiles = QLatin1String(way) == QLatin1String("tiles");
      EXPECT_EQ(in<PrintPreview>(dialog, "preview").sheets().size() > 1, tiles);
      // As it was, for the next.
      in<QCheckBox>(dialog, "tilesBox").setChecked(false);
      in<QComboBox>(dialog, "paperCombo").setCurrentText(QStringLiteral("A3"));
    });
  }
}

TEST_F(Printing, takesAScaleThatIsTypedAndSaysWhatIsNone) {
  takeSection();
  const struct {
    const char* typed;
    const char* answer;
  } cases[] = {{"1:750", "At 1:750 the figure"}, {"640", "At 1:640 the figure"},
               {"1 : 1000", "At 1:1000 the"},    {"about half", "type one such as 1:750"},
               {"1:0", "type one such as"},      {"1:9000000", "between 1:1 and 1:1000000"},
               {"Fit to the page", "At 1:"}};
  expectDialog([&](QWidget& dialog) {
    for (const auto& c : cases) {
      setScale(dialog, c.typed);
      settle(dialog);
      EXPECT_THAT(said(dialog), HasSubstr(c.answer)) << c.typed;
      QTest::keyClick(in<QComboBox>(dialog, "scaleCombo").lineEdit(), Qt::Key_Return);
      EXPECT_TRUE(dialog.isVisible()) << "Return ends the number only";
    }
  });
}

TEST_F(Printing, remembersItsFieldsAndBeginsWithWhatIsInView) {
  takeSection();
  expectDialog([](QWidget& dialog) {
    EXPECT_EQ(in<QComboBox>(dialog, "figureCombo").currentText(),
              QStringLiteral("Section as it is shown"));
    setScale(dialog, "1:250");
    in<QComboBox>(dialog, "paperCombo").setCurrentText(QStringLiteral("Legal"));
    in<QComboBox>(dialog, "orientationCombo").setCurrentIndex(1);
    in<QDoubleSpinBox>(dialog, "exaggerationEdit").setValue(2.5);
  });
  child<QTabWidget>("tabWidget").setCurrentIndex(1);
  expectDialog([](QWidget& dialog) {
    EXPECT_EQ(in<QComboBox>(dialog, "figureCombo").currentText(),
              QStringLiteral("Travel time curves"));
    EXPECT_EQ(in<QComboBox>(dialog, "scaleCombo").currentText(), QStringLiteral("1:250"));
    EXPECT_EQ(in<QComboBox>(dialog, "paperCombo").currentText(), QStringLiteral("Legal"));
    EXPECT_EQ(in<QComboBox>(dialog, "orientationCombo").currentIndex(), 1);
    EXPECT_EQ(in<QDoubleSpinBox>(dialog, "exaggerationEdit").value(), 2.5);
    EXPECT_FALSE(in<QDoubleSpinBox>(dialog, "exaggerationEdit").isVisible());
    EXPECT_TRUE(in<QDoubleSpinBox>(dialog, "timesEdit").isVisible());
  });
}

TEST_F(Printing, proposesAScaleThatFitsUntilOneIsChosen) {
  takeSection(300);
  const auto scaleIn = [](QWidget& dialog) {
    return in<QComboBox>(dialog, "scaleCombo").currentText().toStdString();
  };
  expectDialog([&](QWidget& dialog) {
    EXPECT_EQ(scaleIn(dialog), "1:1000");
    EXPECT_THAT(said(dialog), AllOf(HasSubstr("At 1:1000 the figure takes"),
                                    HasSubstr("the first usual scale from 1:500 on")));
    in<QComboBox>(dialog, "paperCombo").setCurrentText(QStringLiteral("A1"));
    settle(dialog);
    EXPECT_EQ(scaleIn(dialog), "1:500") << "a proposal follows the paper";
    EXPECT_THAT(said(dialog), Not(HasSubstr("first usual")));
  });
  expectDialog([&](QWidget& dialog) {
    setScale(dialog, "1:200");
    settle(dialog);
    EXPECT_EQ(scaleIn(dialog), "1:200") << "what is chosen stays";
    EXPECT_FALSE(in<QPushButton>(dialog, "pdfButton").isEnabled());
  });
  expectDialog([&](QWidget& dialog) { EXPECT_EQ(scaleIn(dialog), "1:200"); });
}

TEST_F(Printing, greysWhatIsNotThereWithTheReasonAndDrawsAllElse) {
  takeSection();
  expectDialog([](QWidget& dialog) {
    auto& figures = in<QComboBox>(dialog, "figureCombo");
    const auto* rows = qobject_cast<const QStandardItemModel*>(figures.model());
    int printable = 0;
    for (int row = 0; row < figures.count(); ++row) {
      const bool can = rows->item(row)->isEnabled();
      const std::string name = figures.itemText(row).toStdString();
      EXPECT_EQ(can, name.find(" – ") == std::string::npos) << name;
      if (!can) continue;
      ++printable;
      figures.setCurrentIndex(row);
      setScale(dialog, "Fit to the page");
      settle(dialog);
      EXPECT_TRUE(in<QPushButton>(dialog, "pdfButton").isEnabled()) << name << said(dialog);
    }
    EXPECT_GE(printable, 3);
    EXPECT_GE(figures.findText(QStringLiteral("Layered profile – there is no layered profile yet")),
              0);
  });
}

TEST(PagePrinter, printsTheSheetsOfTheFileAndOnNoOtherPaper) {
  const TomoDocument document = testing::sectionDocument(
      6, 20, 0.0, [](std::uint32_t row, std::uint32_t) { return 400.0 + 300.0 * row; });
  PrintSettings settings;
  settings.sheet = PrintSheet::on(papers().front(), true, 20.0);
  settings.tiles = true;
  PrintPages pages;
  const Status status = preparePrint(printedSection(document, {}), settings, pages);
  ASSERT_TRUE(status.ok()) << status.message();
  ASSERT_GT(pages.count(), 2U);
  const TestFolder folder;
  const auto print = [&](const char* name, int from, int to) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(folder.file(name)));
    setUpPrinter(printer, pages);
    printer.setFromTo(from, to);
    const Status printed = printPages(printer, pages);
    EXPECT_TRUE(printed.ok()) << printed.message();
    return TestFolder::get(folder.file(name));
  };
  EXPECT_THAT(print("all.pdf", 0, 0), AllOf(HasSubstr("/Count " + std::to_string(pages.count())),
                                            HasSubstr("/MediaBox [0 0 842.000000 595.000000]")));
  EXPECT_THAT(print("one.pdf", 2, 2), HasSubstr("/Count 1"));
  QPrinter other(QPrinter::HighResolution);
  other.setOutputFormat(QPrinter::PdfFormat);
  other.setOutputFileName(QString::fromStdString(folder.file("other.pdf")));
  setUpPrinter(other, pages);
  other.setPageSize(QPageSize(QPageSize::A5));
  EXPECT_THAT(printPages(other, pages).message(), HasSubstr("the sheets are made for 297 x 210"));
}

/// A printer that is out of paper after some sheets.
class EmptyPrinter : public QPrinter {
 public:
  EmptyPrinter(const std::string& file, int sheets) : mEngine(file, sheets) {
    setEngines(&mEngine, mEngine.pdf.paintEngine());
  }

 private:
  struct Engine : QPrintEngine {
    Engine(const std::string& file, int sheets) : left(sheets) {
      pdf.setOutputFormat(QPrinter::PdfFormat);
      pdf.setOutputFileName(QString::fromStdString(file));
    }
    void setProperty(PrintEnginePropertyKey key, const QVariant& value) override {
      pdf.printEngine()->setProperty(key, value);
    }
    QVariant property(PrintEnginePropertyKey key) const override {
      return pdf.printEngine()->property(key);
    }
    bool newPage() override { return --left > 0 && pdf.printEngine()->newPage(); }
    bool abort() override { return pdf.printEngine()->abort(); }
    int metric(QPaintDevice::PaintDeviceMetric id) const override {
      return pdf.printEngine()->metric(id);
    }
    QPrinter::PrinterState printerState() const override {
      return pdf.printEngine()->printerState();
    }

    QPrinter pdf{QPrinter::HighResolution};
    int left;
  };

  Engine mEngine;
};

TEST(PagePrinter, tellsHowManySheetsAPrinterTookThatFailed) {
  PrintPages pages;
  pages.sheet = {297.0, 210.0, 150.0, {}};
  pages.columns = 4;
  pages.paint = [](std::size_t, QPainter&, const QRectF&) {};
  const TestFolder folder;
  for (const int lasts : {1, 3, 4}) {
    EmptyPrinter printer(folder.file("a.pdf"), lasts);
    setUpPrinter(printer, pages);
    PrintedSheets sheets;
    EXPECT_EQ(printPages(printer, pages, &sheets).ok(), lasts == 4);
    EXPECT_EQ(sheets.sent, lasts);
    EXPECT_EQ(sheets.wanted, 4);
  }
}

}  // namespace
}  // namespace talvesk
