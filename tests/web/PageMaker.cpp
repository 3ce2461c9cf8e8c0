#include "export/campaign/CampaignPage.h"
#include "figures/report/Report.h"
#include "model/KeptRun.h"
#include "model/Recordings.h"
#include "support/ConsoleCapture.h"
#include "support/TestSurveys.h"
#include "tomo/TomographyRun.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

// Writes the web pages that the tests open in a browser, into the folder named: bare (picks only),
// plain (all that a page can have), hostile (texts that would like to be more), german, large; and
// into its folder campaign a page on four lines with those of three.

namespace talvesk {
namespace {

constexpr double kInterval = 0.00025;  // seconds

void record(TomoDocument& line, std::size_t samples) {
  Recordings& recordings = line.recordings.edit();
  for (std::size_t shot = 0; shot < line.ttArray.size(); ++shot) {
    const TravelTime& times = line.ttArray[shot];
    TraceSet set(times.ttMisurati.size());
    for (std::size_t i = 0; i < set.size(); ++i) {
      set[i].sampleInterval = kInterval;
      set[i].receiverPosition = line.line->goephonesStringSet[0][i];
      std::vector<double>& wave = set[i].samples.edit();
      for (std::size_t k = 0; k < samples; ++k) {
        const double after = 300.0 * (static_cast<double>(k) * kInterval - times.ttMisurati[i]);
        wave.push_back(after < 0.0 ? 0.0 : std::sin(after) * std::exp(-0.2 * after));
      }
    }
    recordings.traceSets.push_back(set);
    recordings.filenames.push_back("/data/shot" + std::to_string(shot + 1) + ".sg2");
  }
}

TomoDocument pickedLine(int shots, int geophones) {
  const double length = 2.0 * (geophones - 1);
  std::vector<double> places;
  for (int i = 0; i < shots; ++i) places.push_back(length * i / (shots - 1));
  TomoDocument line = testing::testLine(geophones, 2.0, places, 1.0);
  testing::pickTwoLayers(line, 450.0, 1800.0, 3.0);
  for (TravelTime& times : line.ttArray.edit()) {
    for (std::size_t i = 0; i < times.ttMisurati.size(); ++i) {
      if (!hasPick(times.ttMisurati[i])) continue;
      times.ttMisurati.edit()[i] += 0.0004 * std::sin(3.0 * static_cast<double>(i));
      if (i % 2 == 0) times.setError(i, 0.0008);
    }
  }
  return line;
}

void invert(TomoDocument& line, int iterations) {
  const testing::ConsoleCapture quiet;
  TomographyParameters few;
  few.externalIterations = iterations;
  few.solverIterations = 2;
  Log log;
  const Status status = runInversion(line, few, log).status;
  if (!status.ok()) std::fprintf(stderr, "%s\n", status.message().c_str());
}

void addCertainty(TomoDocument& line) {
  const std::vector<double> velocities = line.model->grid->velocities();
  Certainty sure;
  sure.members = 20;
  sure.velocities = {velocities, velocities, velocities};
  for (std::size_t cell = 0; cell < velocities.size(); ++cell) {
    const double part = 0.02 + 0.01 * static_cast<double>(cell % 30);
    sure.velocities.low[cell] *= 1.0 - part;
    sure.velocities.high[cell] *= 1.0 + part;
  }
  sure.deviations.assign(velocities.size(), 0.1);
  sure.touched.assign(velocities.size(), 5);
  line.result.edit().certainty = sure;
}

TomoDocument fullLine() {
  TomoDocument line = pickedLine(7, 24);
  line.ttArray.edit()[1].ttMisurati.edit()[3] = kUnpicked;
  record(line, 400);
  testing::putGrid(line, 10.0, 1.0);
  invert(line, 1);
  invert(line, 2);
  addCertainty(line);
  line.map.edit().geoCoord_isSet = true;
  line.map.edit().geoCoord = {32632, 600000.0, 600040.0, 5000000.0, 5000025.0};
  line.title = "Test line";
  return line;
}

SectionLine refractor(const std::string& name) {
  return {name, {{{0.0, 97.0}, {20.0, 96.5}, {46.0, 97.2}}}};
}

bool write(const TomoDocument& line, const ReportOptions& options, const std::string& path) {
  ReportContent content;
  Status status = buildReport({line}, options, content);
  if (status.ok()) status = writeReport(content, path);
  if (!status.ok()) std::fprintf(stderr, "%s: %s\n", path.c_str(), status.message().c_str());
  return status.ok();
}

bool writeHostile(TomoDocument line, const std::string& path) {
  const std::string attack = "</script><script>window.attacked = 1</script>";
  const std::string tag = "\"><img src=x onerror=\"window.attacked = 1\">";
  ReportOptions options;
  options.title = "<script>alert(1)</script>" + attack;
  options.client = tag;
  options.author = tag + attack;
  options.notes = "<!--<script>" + tag + "\xe2\x80\xa8 1 & 2";
  options.section.palette.name = tag;
  options.section.scene.refractors = {refractor("<b>" + tag + "</b>")};
  for (std::string& name : line.recordings.edit().filenames) name = tag + ".sg2";
  for (KeptRun& run : line.runs.edit()) run.name = "<a href='javascript:alert(1)'>" + attack;
  return write(line, options, path);
}

bool writeCampaign(const TomoDocument& full, const std::string& folder) {
  QDir().mkpath(QString::fromStdString(folder));
  TomoDocument poor = full;
  poor.ttArray.edit()[0].ttMisurati.edit()[9] += 0.02;
  poor.map.edit().geoCoord = {32632, 600100.0, 600140.0, 5000070.0, 5000025.0};
  const TomoDocument picked = pickedLine(3, 12);
  std::vector<CampaignLine> lines = {
      campaignLineOf(poor, "South"), campaignLineOf(full, "../<b onclick=\"x\">50% & #1?"),
      campaignLineOf(picked, "No section"), failedLine("Torn", "line.tvsk is not a valid project")};
  std::vector<std::string> names;
  for (const CampaignLine& line : lines) names.push_back(line.name);
  const std::vector<std::string> files = campaignFileNames(names, {"index"});
  bool good = true;
  const TomoDocument* documents[] = {&poor, &full, &picked};
  for (std::size_t i = 0; i < 3; ++i) {
    lines[i].files = {files[i] + ".html"};
    good &= write(*documents[i], {}, folder + "/" + lines[i].files[0]);
  }
  CampaignTexts texts;
  texts.client = "A <client>";
  return good && writeCampaignPage(folder + "/index.html", lines, texts).ok();
}

bool writeAll(const std::string& folder) {
  const TomoDocument full = fullLine();
  ReportOptions options;
  options.client = "A client";
  options.section.scene.rays = true;
  options.section.scene.refractors = {refractor("Refractor 1")};
  bool good = write(pickedLine(3, 12), {}, folder + "/bare.html");
  good &= write(full, options, folder + "/plain.html");
  good &= writeHostile(full, folder + "/hostile.html");
  good &= writeCampaign(full, folder + "/campaign");
  QLocale::setDefault(QLocale(QLocale::German));
  good &= write(full, options, folder + "/german.html");
  QLocale::setDefault(QLocale::c());

  TomoDocument large = pickedLine(50, 96);
  record(large, 1000);
  testing::putGrid(large, 30.0, 1.0, 3);
  invert(large, 1);
  good &= write(large, {}, folder + "/large.html");
  return good;
}

}  // namespace
}  // namespace talvesk

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QLocale::setDefault(QLocale::c());
  return argc == 2 && talvesk::writeAll(argv[1]) ? 0 : 1;
}
