#include "app/dialogs/doFilteringDialog.h"
#include "gui/ModalScript.h"
#include "model/Recordings.h"
#include "processing/TraceFilters.h"
#include "support/ConsoleCapture.h"
#include "support/ShotDocument.h"
#include "widgets/SpectrumPlot.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <cmath>
#include <memory>
#include <stdexcept>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using testing::ModalScript;
using testing::shotDocument;

constexpr std::size_t kSamples = 400;  // of 0.25 ms
constexpr double kHighest = 1990.0;    // Hz: bin 199 of 200, 10 Hz each

/// The filter dialog on the second of three shots.
class Filtering : public ::testing::Test {
 protected:
  Filtering() : document(shotDocument(3, 4, kSamples)), raw(document.recordings->traceSets) {}

  void open(const std::vector<std::int32_t>& alsoShots = {}) {
    dialog = std::make_unique<doFilteringDialog>(document, 1, alsoShots);
    dialog->show();
  }
  template <typename Widget>
  Widget& child(const char* name) {
    auto* found = dialog->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }
  void low(double hertz, int order) {
    child<QCheckBox>("lowPassCBox").setChecked(true);
    child<QDoubleSpinBox>("doubleFxLowpass").setValue(hertz);
    child<QSpinBox>("lowPassOrder").setValue(order);
  }
  void high(double hertz, int order) {
    child<QCheckBox>("hiPassCBox").setChecked(true);
    child<QDoubleSpinBox>("doubleFxHighPass").setValue(hertz);
    child<QSpinBox>("hiPassOrder").setValue(order);
  }
  void apply() { child<QPushButton>("button_apply_filter").click(); }
  void expectBox(const char* text, const char* details = "") {
    dialogs.expectBox("Caution", text, details, QMessageBox::Ok);
  }

  const Samples& filtered(std::size_t shot, std::size_t trace) const {
    return document.recordings->traceSets[shot][trace].filtered;
  }
  bool untouched() const {
    if (dialog->changedDocument()) return false;
    for (std::size_t s = 0; s < raw.size(); ++s) {
      for (std::size_t t = 0; t < raw[s].size(); ++t) {
        if (document.recordings->traceSets[s][t].samples != raw[s][t].samples) return false;
        if (filtered(s, t) != raw[s][t].filtered) return false;
      }
    }
    return true;
  }
  static std::vector<double> lowOf(Span<double> in, double hertz, int order) {
    std::vector<double> out;
    EXPECT_TRUE(lowPass(in, order, hertz / (2.0 * kHighest), out).ok());
    return out;
  }
  static std::vector<double> highOf(Span<double> in, double hertz, int order) {
    std::vector<double> out;
    EXPECT_TRUE(highPass(in, order, hertz / (2.0 * kHighest), out).ok());
    return out;
  }

  ConsoleCapture console;
  ModalScript dialogs;
  TomoDocument document;
  std::vector<TraceSet> raw;
  std::unique_ptr<doFilteringDialog> dialog;
};

TEST_F(Filtering, opensOnTheRawSamplesAndKnowsTheirHighestFrequency) {
  open();
  EXPECT_DOUBLE_EQ(dialog->highestFrequency(), kHighest);
  EXPECT_EQ(dialog->windowTitle().toStdString(), "Trace Filtering");
  EXPECT_TRUE(child<QRadioButton>("displayOriginal").isChecked());
  EXPECT_FALSE(child<QRadioButton>("displayFiltered").isEnabled());
  EXPECT_FALSE(child<QRadioButton>("applyToFiltered").isEnabled());
  EXPECT_EQ(child<SpectrumPlot>("spectrumWidget").points(), 35U) << "bins below 350 Hz";
  EXPECT_EQ(child<editTravelTimesWidget>("tracesWidget").shot(), 0);
  dialog->close();
  EXPECT_TRUE(untouched());
}

TEST_F(Filtering, appliesLowPassHighPassOrTheCascadeOfBoth) {
  struct Case {
    bool low, high;
  };
  for (const Case& chosen : {Case{true, false}, Case{false, true}, Case{true, true}}) {
    document = shotDocument(3, 4, kSamples);
    open();
    if (chosen.low) low(120.0, 3);
    if (chosen.high) high(30.0, 2);
    apply();
    for (std::size_t t = 0; t < 4; ++t) {
      std::vector<double> expected(raw[1][t].samples.begin(), raw[1][t].samples.end());
      if (chosen.low) expected = lowOf(expected, 120.0, 3);
      if (chosen.high) expected = highOf(expected, 30.0, 2);
      EXPECT_EQ(filtered(1, t), expected) << chosen.low << chosen.high << t;
      EXPECT_EQ(document.recordings->traceSets[1][t].samples, raw[1][t].samples);
      EXPECT_TRUE(filtered(0, t).empty() && filtered(2, t).empty());
    }
    EXPECT_TRUE(dialog->changedDocument());
    EXPECT_TRUE(child<QRadioButton>("displayFiltered").isChecked());
    EXPECT_TRUE(child<editTravelTimesWidget>("tracesWidget").options().showFiltered);
    EXPECT_TRUE(child<QRadioButton>("applyToFiltered").isEnabled());
  }
}

TEST_F(Filtering, neitherFilterOnlyTurnsToWhatWasFilteredBefore) {
  for (Trace& trace : document.recordings.edit().traceSets[1])
    trace.filtered.edit() = {1.0, 2.0, 3.0};
  raw = document.recordings->traceSets;
  open();
  EXPECT_TRUE(child<QRadioButton>("displayFiltered").isEnabled());
  apply();
  EXPECT_TRUE(untouched());
  EXPECT_TRUE(child<QRadioButton>("displayFiltered").isChecked());
}

TEST_F(Filtering, refusesAnOrderBelowOneOfAFilterThatIsUsed) {
  open();
  const char* const text = "No filter applied. Filter order must be greater then 0.";
  low(120.0, 0);
  expectBox(text);
  apply();
  high(30.0, 2);
  expectBox(text);
  apply();
  child<QSpinBox>("hiPassOrder").setValue(0);
  child<QCheckBox>("lowPassCBox").setChecked(false);
  expectBox(text);
  apply();
  EXPECT_TRUE(untouched());
  EXPECT_TRUE(child<QRadioButton>("displayOriginal").isChecked());
  child<QCheckBox>("hiPassCBox").setChecked(false);
  apply();
  EXPECT_TRUE(dialogs.finished()) << "an order that is not used does no harm";
}

TEST_F(Filtering, refusesACutOffBeyondTheSpectrumWithFrequencyAndLimit) {
  open();
  low(2500.0, 2);
  expectBox("No filter applied.", "2500 Hz must be above 0 Hz and below 1990 Hz");
  apply();
  EXPECT_TRUE(untouched());
}

TEST_F(Filtering, tellsOfTracesThatCannotBeFiltered) {
  document.recordings.edit().traceSets[1][2].samples.edit()[7] = std::nan("");
  open();
  low(120.0, 2);
  expectBox("1 trace(s) stay as they were.", "trace 3: sample 7 is nan");
  apply();
  EXPECT_TRUE(filtered(1, 2).empty());
  EXPECT_EQ(filtered(1, 1), lowOf(raw[1][1].samples, 120.0, 2));
}

TEST_F(Filtering, worksOnWhatWasFilteredBeforeWhenAsked) {
  open();
  low(120.0, 2);
  apply();
  const Samples once = filtered(1, 0);
  child<QRadioButton>("applyToFiltered").setChecked(true);
  apply();
  EXPECT_EQ(filtered(1, 0), lowOf(once, 120.0, 2));
  child<QRadioButton>("applyToOriginal").setChecked(true);
  apply();
  EXPECT_EQ(filtered(1, 0), once);
  EXPECT_DOUBLE_EQ(dialog->highestFrequency(), kHighest);
}

TEST_F(Filtering, reachesTheOtherShotsWhenAsked) {
  open({0, 1, 2});
  low(120.0, 2);
  apply();
  for (std::size_t shot = 0; shot < 3; ++shot) {
    EXPECT_EQ(filtered(shot, 3), lowOf(raw[shot][3].samples, 120.0, 2)) << shot;
  }
}

TEST_F(Filtering, shotsWithoutSamplesGiveEmptyCopies) {
  for (Trace& trace : document.recordings.edit().traceSets[1]) trace.samples.edit().clear();
  open();
  EXPECT_EQ(child<SpectrumPlot>("spectrumWidget").points(), 0U);
  low(120.0, 2);
  expectBox("No filter applied.", "the traces are too short");
  apply();
  EXPECT_TRUE(filtered(1, 0).empty());
}

}  // namespace
}  // namespace talvesk
