#include "figures/SectionCamera.h"
#include "figures/SectionFigure.h"
#include "figures/SectionPaper.h"
#include "gui/WindowTest.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/CertainDocument.h"
#include "view/SectionCertainty.h"
#include "view/SectionScene.h"
#include "widgets/section/SectionView.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <cmath>
#include <string>
#include <vector>

namespace talvesk {
namespace {

using testing::sectionDocument;
using testing::WindowTest;

double hilly(std::uint32_t row, std::uint32_t column) {
  return 500.0 + 120.0 * row + 25.0 * column;
}

double patchwork(std::uint32_t row, std::uint32_t column) {
  return 400.0 + 150.0 * row + 37.0 * ((column * 7 + row * 3) % 11);
}

class Section : public WindowTest {
 protected:
  /// A window that shows the section of this document.
  void openWith(TomoDocument document) {
    open();
    child<QTabWidget>("tabWidget").setCurrentIndex(2);
    writable() = std::move(document);
    refresh();
  }
  void refresh() {
    showWritten();
    ASSERT_TRUE(QMetaObject::invokeMethod(window.get(), "on_actionGrid_view_triggered"));
    QApplication::processEvents();
  }
  SectionView& view() { return child<SectionView>("vtk_widget"); }
  QString cursorText() {
    QString text;
    for (const QLabel* label : window->statusBar()->findChildren<QLabel*>()) text += label->text();
    return text;
  }
  void moveTo(const QPointF& point, Qt::MouseButtons buttons = Qt::NoButton) {
    QMouseEvent event(QEvent::MouseMove, point, Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(view().sheet(), &event);
  }
  void wheelAt(const QPointF& point, int notches) {
    QWheelEvent event(point, view().sheet()->mapToGlobal(point.toPoint()), {}, {0, 120 * notches},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view().sheet(), &event);
  }
  QImage seen() { return view().sheet()->grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

int difference(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))});
}

/// Whether two colours are the same to an eye, `tolerance` per component.
::testing::AssertionResult alike(QRgb a, QRgb b, int tolerance) {
  if (difference(a, b) <= tolerance) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << QColor(a).name().toStdString() << " is not " << QColor(b).name().toStdString();
}

TEST_F(Section, takesTheFocusItselfWhenItComesIntoView) {
  openWith(sectionDocument(4, 6, 1.0, hilly));
  child<QTabWidget>("tabWidget").setCurrentIndex(0);
  child<QWidget>("showTracesWidget").setFocus();
  child<QTabWidget>("tabWidget").setCurrentIndex(2);
  EXPECT_EQ(window->focusWidget(), view().sheet());
}

TEST_F(Section, withoutOneThePageSaysWhatToDoNext) {
  open();
  auto& text = child<QLabel>("sectionEmptyLabel");
  EXPECT_TRUE(view().isEmpty());
  EXPECT_THAT(text.text().toStdString(), ::testing::HasSubstr("Load shot files"));
  EXPECT_FALSE(action("actionSmooth_view").isEnabled());
  EXPECT_FALSE(action("actionReset_View").isEnabled());
  writable().ttArray.edit().emplace_back();
  refresh();
  EXPECT_THAT(text.text().toStdString(), ::testing::HasSubstr("Run tomography inversion"));
}

TEST_F(Section, commandsChangeWhatIsShown) {
  TomoDocument document = sectionDocument(12, 40, 1.5, patchwork);
  document.result.edit().info_density.assign(12 * 40, 3.0);
  document.result.edit().rays = {{0, 5, 10}};
  openWith(std::move(document));
  const auto scene = [this]() -> const SectionScene& { return *view().scene(); };
  EXPECT_TRUE(action("actionGrid_view").isChecked());
  EXPECT_TRUE(action("actionNormalGeo").isChecked());
  action("actionSmooth_view").trigger();
  EXPECT_EQ(scene().fill, SectionFill::kSmooth);
  EXPECT_FALSE(action("actionGrid_view").isChecked());
  action("actionShow_rays").trigger();
  EXPECT_EQ(scene().rays.size(), 1U);
  action("actionVertical_Gradient").trigger();
  EXPECT_EQ(scene().quantity, SectionQuantity::kVerticalGradient);
  action("actionLaplacian_Gradient").trigger();
  EXPECT_EQ(scene().quantity, SectionQuantity::kLaplacian);
  EXPECT_FALSE(action("actionVertical_Gradient").isChecked());
  action("actionShow_Information_Density_Layer").trigger();
  EXPECT_EQ(scene().quantity, SectionQuantity::kInformationDensity);
  action("actionShow_Information_Density_Layer").trigger();
  EXPECT_EQ(scene().quantity, SectionQuantity::kVelocity);
  action("actionShow_Tomographic_Profile").trigger();
  EXPECT_EQ(scene().fill, SectionFill::kNone);
  action("actionShow_Tomographic_Profile").trigger();
  EXPECT_EQ(scene().fill, SectionFill::kSmooth);
  const QRect withBar = view().plotRect();
  action("actionShow_scalarbar").trigger();
  EXPECT_GT(view().plotRect().width(), withBar.width());
  action("actionShow_title").trigger();
  EXPECT_LT(view().plotRect().top(), withBar.top());
}

TEST_F(Section, aNewGridHasNoInformationDensityToShow) {
  TomoDocument document = sectionDocument(6, 20, 0.0, patchwork);
  document.result.edit().info_density.assign(120, 3.0);
  openWith(std::move(document));
  action("actionShow_Information_Density_Layer").trigger();
  writable().result.edit().info_density.assign(120, -1.0);
  refresh();
  EXPECT_EQ(view().scene()->quantity, SectionQuantity::kVelocity);
  EXPECT_FALSE(action("actionShow_Information_Density_Layer").isEnabled());
}

TEST_F(Section, markersHaveThreeSizes) {
  openWith(sectionDocument(12, 40, 0.0, patchwork));
  const auto dark = [this] {
    const QImage image = seen();
    const QPointF geophone = view().pointOf({120.0, 100.0});
    int height = 0;
    for (int y = static_cast<int>(geophone.y()) - 3; y > 0; --y) {
      if (qGray(image.pixel(static_cast<int>(geophone.x()), y)) > 120) break;
      ++height;
    }
    return height;
  };
  action("actionSmallGeo").trigger();
  const int small = dark();
  action("actionNormalGeo").trigger();
  const int normal = dark();
  action("actionLargeGeo").trigger();
  EXPECT_LT(small, normal);
  EXPECT_LT(normal, dark());
}

TEST_F(Section, theStatusBarReadsWhatIsUnderTheCursor) {
  openWith(sectionDocument(12, 40, 0.0, patchwork));
  moveTo(view().pointOf({110.25, 96.5}));
  EXPECT_EQ(cursorText().toStdString(),
            "Distance 110.25 m   Elevation 96.50 m   Depth 3.50 m   Velocity 1,183 m/s");
  action("actionVertical_Gradient").trigger();
  EXPECT_THAT(cursorText().toStdString(), ::testing::HasSubstr("Gradient "));
  action("actionVertical_Gradient").trigger();
  EXPECT_THAT(cursorText().toStdString(), ::testing::Not(::testing::HasSubstr("Gradient ")));
  action("actionShow_Tomographic_Profile").trigger();
  EXPECT_THAT(cursorText().toStdString(), ::testing::HasSubstr("Depth "));
  EXPECT_THAT(cursorText().toStdString(), ::testing::Not(::testing::HasSubstr("Velocity ")));
  action("actionShow_Tomographic_Profile").trigger();
  moveTo({2.0, 2.0});
  EXPECT_TRUE(cursorText().isEmpty());
}

TEST_F(Section, theWheelZoomsAtTheCursorAndDraggingPans) {
  openWith(sectionDocument(12, 40, 1.5, patchwork));
  const QPointF point(view().plotRect().center() + QPoint(120, 40));
  const Point2D before = view().positionOf(point);
  const double scale = view().camera().metresPerPixel;
  wheelAt(point, 3);
  EXPECT_LT(view().camera().metresPerPixel, 0.6 * scale);
  EXPECT_NEAR(view().positionOf(point).x, before.x, 1e-9);
  EXPECT_NEAR(view().positionOf(point).z, before.z, 1e-9);
  QTest::mousePress(view().sheet(), Qt::LeftButton, {}, point.toPoint());
  moveTo(point.toPoint() + QPointF(-50.0, 30.0), Qt::LeftButton);
  QTest::mouseRelease(view().sheet(), Qt::LeftButton);
  EXPECT_NEAR(view().positionOf(point.toPoint() + QPointF(-50.0, 30.0)).x,
              before.x - (point.x() - point.toPoint().x()) * view().camera().metresPerPixel, 1e-6);
  QTest::keyClick(view().sheet(), Qt::Key_Home);
  EXPECT_DOUBLE_EQ(view().camera().metresPerPixel, scale);
  QTest::keyClick(view().sheet(), Qt::Key_Plus);
  QTest::keyClick(view().sheet(), Qt::Key_Right);
  EXPECT_LT(view().camera().metresPerPixel, scale);
  EXPECT_GT(view().camera().centre.x, 119.0);
  action("actionReset_View").trigger();
  EXPECT_DOUBLE_EQ(view().camera().metresPerPixel, scale);
}

TEST_F(Section, doesNotShrinkToASpeck) {
  openWith(sectionDocument(12, 40, 1.5, patchwork));
  wheelAt(view().plotRect().center(), -200);
  EXPECT_GT(view().pointOf({139.0, 100.0}).x() - view().pointOf({99.0, 100.0}).x(), 20.0);
  wheelAt(view().plotRect().center(), 200);
  wheelAt(view().plotRect().center(), 200);
  EXPECT_GT(view().camera().metresPerPixel, 1e-5);
}

TEST_F(Section, whatIsSeenStaysUntilAnotherGridComes) {
  openWith(sectionDocument(12, 40, 1.5, patchwork));
  view().zoomIn();
  const double zoomed = view().camera().metresPerPixel;
  action("actionSmooth_view").trigger();
  EXPECT_EQ(view().camera().metresPerPixel, zoomed);
  writable() = sectionDocument(20, 90, 1.5, patchwork);
  refresh();
  EXPECT_GT(view().camera().metresPerPixel, zoomed);
  EXPECT_TRUE(QRectF(view().plotRect()).contains(view().pointOf({189.0, 80.0})));
}

TEST_F(Section, isExaggeratedAsAskedAndTurnedOnlyWhenAsked) {
  openWith(sectionDocument(12, 40, 0.0, patchwork));
  const auto ratio = [this] {
    const QPointF a = view().pointOf({110.0, 95.0});
    const QPointF b = view().pointOf({111.0, 94.0});
    return (b.y() - a.y()) / (b.x() - a.x());
  };
  EXPECT_NEAR(ratio(), 1.0, 1e-9);
  child<QToolButton>("exaggerate2").click();
  EXPECT_NEAR(ratio(), 2.0, 1e-9);
  child<QDoubleSpinBox>("exaggerationSpin").setValue(3.5);
  EXPECT_NEAR(ratio(), 3.5, 1e-9);
  view().setVerticalExaggeration(1e9);
  EXPECT_EQ(view().verticalExaggeration(), SectionCamera::kMaxExaggeration);
  action("actionSmooth_view").trigger();  // the settings have followed
  EXPECT_EQ(view().verticalExaggeration(), SectionCamera::kMaxExaggeration);
  view().setTurning(true);
  QTest::mousePress(view().sheet(), Qt::LeftButton, {}, {300, 200});
  moveTo({260.0, 230.0}, Qt::LeftButton);
  QTest::mouseRelease(view().sheet(), Qt::LeftButton);
  EXPECT_NE(view().camera().turn, 0.0);
  child<QToolButton>("turnButton").click();
  EXPECT_EQ(view().camera().turn, 0.0);
}

TEST_F(Section, keepsAnExaggerationThatItsFieldCannotShow) {
  openWith(sectionDocument(12, 40, 0.0, patchwork));
  view().setVerticalExaggeration(2.125);
  EXPECT_EQ(view().verticalExaggeration(), 2.125);
  action("actionSmooth_view").trigger();  // the settings have followed
  EXPECT_EQ(view().verticalExaggeration(), 2.125);
}

TEST_F(Section, keepsEveryExaggerationThatAProjectCanHave) {
  openWith(sectionDocument(12, 40, 0.0, patchwork));
  for (const double factor : {80.0, 100.0, 0.02, 0.01}) {
    window->session().setView(
        [factor](SectionViewSettings& section) { section.verticalExaggeration = factor; });
    EXPECT_EQ(view().verticalExaggeration(), factor);
    EXPECT_EQ(window->session().survey().section.verticalExaggeration, factor);
    EXPECT_EQ(child<QDoubleSpinBox>("exaggerationSpin").value(), factor);
  }
}

TEST_F(Section, isTurnedWithinThePlotWhateverTheSizeOfTheWindow) {
  openWith(sectionDocument(12, 40, 1.5, patchwork));
  view().setVerticalExaggeration(3.0);
  view().setTurning(true);
  const auto isWhole = [this] {
    const QRectF plot(view().plotRect());
    const SectionExtent all(*view().scene());
    for (const double x : {all.low.x, all.high.x}) {
      for (const double z : {all.low.z, all.high.z}) {
        if (!plot.contains(view().pointOf({x, z}))) return false;
      }
    }
    return true;
  };
  for (const QSize& size : {QSize(700, 400), QSize(1100, 700), QSize(1600, 1000)}) {
    window->resize(size);
    QApplication::processEvents();
    for (const QPointF& by : {QPointF(-60.0, 50.0), QPointF(-50.0, 60.0), QPointF(200.0, -30.0)}) {
      const QPoint from = view().plotRect().center();
      QTest::mousePress(view().sheet(), Qt::LeftButton, {}, from);
      moveTo(from + by, Qt::LeftButton);
      QTest::mouseRelease(view().sheet(), Qt::LeftButton);
      EXPECT_NE(view().camera().turn, 0.0);
      EXPECT_TRUE(isWhole()) << size.width() << ", " << view().camera().turn;
    }
  }
  view().zoomIn();  // what the user looks at stays from now on
  const double zoomed = view().camera().metresPerPixel;
  QTest::keyClick(view().sheet(), Qt::Key_Left);
  EXPECT_EQ(view().camera().metresPerPixel, zoomed);
}

/// The picture of `figures`, and where a position lies in it.
struct Figure {
  QImage image;
  SectionFigureLayout layout;

  Figure(const TomoDocument& document, const SectionViewSettings& settings,
         const ColorPalette& palette) {
    QByteArray bytes;
    const Status drawn = renderSectionFigure(document, sectionFigureOptions(settings, palette),
                                             FigureFormat::kPng, bytes, &layout);
    EXPECT_TRUE(drawn.ok()) << drawn.message();
    image = QImage::fromData(bytes);
  }
  QPointF pointOf(const Point2D& p) const {
    return {layout.xToMm(p.x) / layout.widthMm * image.width(),
            layout.elevationToMm(p.z) / layout.heightMm * image.height()};
  }
  QRgb at(const Point2D& p) const {
    return image.pixel(static_cast<int>(pointOf(p).x()), static_cast<int>(pointOf(p).y()));
  }
};

TEST_F(Section, onTheScreenAndInAFigureHasTheSameColorsAndHoles) {
  TomoDocument document = sectionDocument(12, 40, 1.5, hilly);
  for (std::uint32_t cell = 200; cell < 480; cell += 9)
    document.model.edit().editGrid().setDraw(cell, false);
  openWith(std::move(document));
  const struct {
    const char* name;
    bool smooth, filled;
    SectionQuantity quantity;
    int tolerance;
  } facts[] = {{"cells", false, false, SectionQuantity::kVelocity, 1},
               {"smooth", true, false, SectionQuantity::kVelocity, 20},
               {"bands", false, true, SectionQuantity::kVelocity, 1},
               {"gradient", false, false, SectionQuantity::kVerticalGradient, 1}};
  for (const auto& fact : facts) {
    SectionViewSettings settings;
    settings.smooth = fact.smooth;
    settings.contours.filled = fact.filled;
    settings.contours.numberOfValues = 6;
    settings.quantity = fact.quantity;
    const ColorPalette palette = *ColorPaletteList().find("Dark rainbow");
    auto scene = std::make_shared<SectionScene>();
    ASSERT_TRUE(buildSectionScene(writable(), settings, palette, {}, *scene).ok());
    const std::vector<double> levels = scene->bandLevels();
    view().showScene(scene, palette, settings);
    const QImage screen = seen();
    const Figure figure(writable(), settings, palette);
    int compared = 0;
    for (std::uint32_t cell = 40; cell < 480; ++cell) {  // markers stand in the first row
      const Point2D centre = writable().model->grid->cellCentre(cell);
      const Point2D at{centre.x - writable().model->xOffset, -centre.z};
      const auto nearEdge = [&](double level) {
        return std::abs(level - scene->cellValues[cell]) < 80.0;
      };
      if (fact.filled && std::any_of(levels.begin(), levels.end(), nearEdge)) continue;
      ++compared;
      const QPoint point(static_cast<int>(view().pointOf(at).x()),
                         static_cast<int>(view().pointOf(at).y()));
      EXPECT_TRUE(alike(screen.pixel(point), figure.at(at), fact.tolerance))
          << fact.name << " cell " << cell;
      const bool blank = (screen.pixel(point) & 0xffffffU) == 0xffffffU;
      EXPECT_EQ(blank, !scene->mesh.isDrawn(cell / 40, cell % 40)) << fact.name << " " << cell;
    }
    EXPECT_GT(compared, 150);
  }
}

/// Whether a picture has that colour, or nearly, within two pixels of a point.
bool hasNear(const QImage& image, const QPointF& point, QRgb color) {
  for (int dy = -2; dy <= 2; ++dy) {
    for (int dx = -2; dx <= 2; ++dx) {
      const QPoint at = point.toPoint() + QPoint(dx, dy);
      if (image.valid(at) && difference(image.pixel(at), color) < 90) return true;
    }
  }
  return false;
}

TEST_F(Section, onTheScreenAndInAFigureHasTheSameContours) {
  openWith(sectionDocument(12, 40, 1.5, hilly));
  SectionViewSettings settings;
  settings.geophones = GeophoneMarkers::kNone;
  settings.contours.onProfile = true;
  settings.contours.labelEvery = 0;
  settings.contours.color = {1.0, 0.0, 1.0};  // no other part of the picture has it
  const QRgb color = qRgb(255, 0, 255);
  const ColorPalette palette = *ColorPaletteList().find("White to Black");
  auto scene = std::make_shared<SectionScene>();
  ASSERT_TRUE(buildSectionScene(writable(), settings, palette, {}, *scene).ok());
  view().showScene(scene, palette, settings);
  const QImage screen = seen();
  const Figure figure(writable(), settings, palette);
  std::size_t compared = 0;
  for (const ContourLine& contour : scene->contours) {
    for (std::size_t i = 0; i < contour.points.size(); i += 5) {
      const Point2D& p = contour.points[i];
      if (readSection(*scene, p).depth.value_or(0.0) < 0.5) continue;  // under the surface line
      ++compared;
      EXPECT_TRUE(hasNear(screen, view().pointOf(p), color)) << p.x << ", " << p.z;
      EXPECT_TRUE(hasNear(figure.image, figure.pointOf(p), color)) << p.x << ", " << p.z;
    }
  }
  EXPECT_GT(compared, 30U);
  EXPECT_FALSE(hasNear(screen, view().pointOf({120.0, 104.0}), color));
  EXPECT_FALSE(hasNear(figure.image, figure.pointOf({120.0, 104.0}), color));
}

TEST_F(Section, aPictureOfAnySizeShowsTheWholeSection) {
  openWith(sectionDocument(12, 40, 0.0, patchwork));
  view().zoomIn();
  const QRgb cell = [this] {
    const ColorTable colors(ColorPaletteList().current());
    const RgbColor& c = colors[colors.indexOf(patchwork(6, 21))];
    return QColor::fromRgbF(c.r, c.g, c.b).rgb();
  }();
  const struct {
    QSize size;
    double ratio;
  } facts[] = {{{700, 400}, 1.0}, {{700, 400}, 2.0}, {{2600, 1400}, 1.0}, {{240, 160}, 1.0}};
  for (const auto& fact : facts) {
    const QImage image = view().picture(fact.size, SectionView::Part::kWhole, fact.ratio);
    ASSERT_EQ(image.size(), fact.size * fact.ratio);
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (difference(image.pixel(x, y), cell) <= 1) ++found;
      }
    }
    EXPECT_GT(found, 2) << fact.size.width();
  }
  EXPECT_TRUE(view().picture({0, 10}).isNull());
  EXPECT_TRUE(view().picture({100000, 100000}).isNull());
}

TEST_F(Section, uncertainGroundFadesAlikeOnTheScreenAndInFiles) {
  const TomoDocument document = testing::certainDocument();
  openWith(document);
  ASSERT_TRUE(action("actionFade_uncertain").isEnabled());
  const QImage before = view().picture(view().sheet()->size());
  action("actionFade_uncertain").trigger();
  EXPECT_TRUE(action("actionFade_uncertain").isChecked());
  const QImage screen = view().picture(view().sheet()->size());

  const SectionFigureOptions options = sectionFigureOptions(
      window->session().survey().section, window->session().survey().palettes->current());
  SectionFigureLayout layout;
  QByteArray bytes;
  ASSERT_TRUE(renderSectionFigure(document, options, FigureFormat::kPng, bytes, &layout).ok());
  const QImage file = QImage::fromData(bytes);
  const auto inFile = [&](const Point2D& p) {
    return file.pixel(
        static_cast<int>(layout.xToMm(p.x) / layout.widthMm * file.width()),
        static_cast<int>(layout.elevationToMm(p.z) / layout.heightMm * file.height()));
  };
  const struct {
    double x;
    double fading;
  } facts[] = {{105.5, 0.0}, {130.5, 0.6}, {138.5, kMostFading}};
  for (const auto& fact : facts) {
    for (const double z : {98.5, 94.5}) {
      const Point2D p{fact.x, z};
      const QPoint at = view().pointOf(p).toPoint();
      EXPECT_LE(difference(screen.pixel(at), inFile(p)), 2) << p.x << ' ' << p.z;
      const QColor full(before.pixel(at));
      const auto faded = [&](int part) { return part + fact.fading * (255 - part); };
      EXPECT_NEAR(QColor(screen.pixel(at)).red(), faded(full.red()), 9.0) << p.x;
      EXPECT_NEAR(QColor(screen.pixel(at)).blue(), faded(full.blue()), 9.0) << p.x;
    }
  }
}

TEST_F(Section, depthBandsAreThoseOfTheVelocitiesAskedFor) {
  openWith(testing::certainDocument());
  dialogs.expect([&](QWidget& dialog) {
    auto* field = dialog.findChild<QLineEdit*>();
    EXPECT_FALSE(field->text().isEmpty()) << "one is proposed";
    field->setText(QStringLiteral("700; fast"));
    dialogs.expect([&](QWidget& warning) {
      dialogs.expect([](QWidget& again) {
        again.findChild<QLineEdit*>()->setText(QStringLiteral("900; 700"));
        static_cast<QDialog&>(again).accept();
      });
      static_cast<QDialog&>(warning).accept();
    });
    static_cast<QDialog&>(dialog).accept();
  });
  action("actionDepth_bands").trigger();
  EXPECT_EQ(window->session().survey().section.bandVelocities, (std::vector<double>{700.0, 900.0}));
  EXPECT_TRUE(action("actionDepth_bands").isChecked());
  ASSERT_EQ(view().scene()->depthBands.size(), 2U);
  // Picks that change make it the certainty of others, which the picture says at once.
  EXPECT_FALSE(view().scene()->certainty->picksChanged);
  child<editTravelTimesWidget>("showTracesWidget").editPick(0, 3, 0.011);
  EXPECT_TRUE(view().scene()->certainty->picksChanged);
}

TEST_F(Section, oddSectionsAreDrawnOrExplained) {
  openWith(sectionDocument(12, 40, 0.0, patchwork));
  const auto constant = [](std::uint32_t, std::uint32_t) { return 800.0; };
  writable() = sectionDocument(5, 10, 0.0, constant);
  refresh();
  EXPECT_FALSE(view().isEmpty());
  EXPECT_FALSE(seen().isNull());
  for (const char* name : {"actionVertical_Gradient", "actionLaplacian_Gradient"}) {
    action(name).trigger();
    EXPECT_FALSE(seen().isNull());
  }
  action("actionLaplacian_Gradient").trigger();

  writable() = sectionDocument(5, 10, 0.0, patchwork);
  for (std::uint32_t cell = 0; cell < 50; ++cell)
    writable().model.edit().editGrid().setDraw(cell, cell == 7);
  for (const char* name : {"actionGrid_view", "actionSmooth_view", "actionGrid_view"}) {
    action(name).trigger();
    EXPECT_FALSE(view().isEmpty());
    EXPECT_FALSE(seen().isNull());
  }

  writable() = sectionDocument(1, 1, 0.0, constant);  // one cell has no gradient
  refresh();
  EXPECT_FALSE(seen().isNull());
  action("actionVertical_Gradient").trigger();
  EXPECT_TRUE(view().isEmpty());
  EXPECT_TRUE(action("actionVertical_Gradient").isEnabled());  // the way back
  action("actionVertical_Gradient").trigger();
  EXPECT_FALSE(view().isEmpty());

  writable() = sectionDocument(0, 10, 0.0, constant);
  refresh();
  EXPECT_TRUE(view().isEmpty());
  EXPECT_THAT(child<QLabel>("sectionEmptyLabel").text().toStdString(),
              ::testing::HasSubstr("greater than the cell size"));
}

}  // namespace
}  // namespace talvesk
