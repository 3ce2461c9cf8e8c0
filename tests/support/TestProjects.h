#pragma once

#include "io/ShotLoader.h"
#include "io/project/ProjectWriter.h"
#include "io/project/ProjectZip.h"
#include "io/project/projectReader.h"
#include "support/ConsoleCapture.h"
#include "support/ShotFiles.h"
#include "support/TestFolder.h"
#include "support/TestSurveys.h"

#include <QDir>
#include <map>
#include <string>

#include <gtest/gtest.h>

namespace talvesk::testing {

/// A shot into six channels 5 m apart that begins 2 ms before the shot.
inline std::string projectShot(double source, float scale = 1.0F) {
  std::vector<Seg2Channel> channels;
  for (int i = 0; i < 6; ++i) {
    std::vector<float> samples;
    for (int s = 0; s < 40; ++s) samples.push_back(scale * static_cast<float>((s * 7 + i) % 11));
    channels.push_back(
        {4, samples,
         seg2Area({"DELAY -0.002", "RECEIVER_LOCATION " + std::to_string(5 * i) + " 100",
                   "SAMPLE_INTERVAL 0.001",
                   "SOURCE_LOCATION " + std::to_string(source) + " 100"})});
  }
  return seg2Bytes(channels);
}

/// A survey of three shot files that lie in a folder, saved and loaded in a working folder.
class ProjectTest : public ::testing::Test {
 protected:
  ProjectTest() {
    QDir(QString::fromStdString(folder.path())).mkdir(QStringLiteral("work"));
    shots = {folder.put("1.dat", projectShot(-2.5)), folder.put("2.dat", projectShot(12.5, 2)),
             folder.put("3.dat", projectShot(27.5, 3))};
    ShotLoader().load(shots, project.document);
    pickTwoLayers(project.document, 400, 1500, 3);
  }

  std::string work() const { return folder.file("work/"); }
  std::string archive() const { return folder.file("line.tvsk"); }

  int save(const std::string& path, const LoadedProject& saved) {
    return writer.save(path, work(), saved.document, saved.interpretation, saved.palettes,
                       saved.section, saved.own);
  }
  int save() { return save(archive(), project); }
  int load(const std::string& path, LoadedProject& into) { return reader.load(path, work(), into); }

  /// The entries of an archive by name.
  std::map<std::string, std::string> entriesOf(const std::string& path) {
    const TestFolder extracted;
    Message why;
    EXPECT_EQ(readZip(path, extracted.path() + "/", why), 0) << why;
    std::map<std::string, std::string> entries;
    const QStringList names =
        QDir(QString::fromStdString(extracted.path())).entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
      entries[name.toStdString()] = TestFolder::get(extracted.file(name.toStdString()));
    }
    return entries;
  }
  /// An archive of these entries, put together outside the writer.
  std::string pack(const std::string& name, const std::map<std::string, std::string>& entries) {
    const TestFolder loose;
    std::vector<std::string> files;
    for (const auto& [entry, bytes] : entries) files.push_back(loose.put(entry, bytes));
    Message why;
    EXPECT_EQ(writeZip(folder.file(name), files, why), 0) << why;
    return folder.file(name);
  }
  /// What is in the working folder.
  QStringList leftovers() const {
    return QDir(QString::fromStdString(work()))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  TestFolder folder;
  ConsoleCapture console;
  std::vector<std::string> shots;
  LoadedProject project;  ///< what is saved
  ProjectWriter writer;
  projectReader reader;
};

/// The text with one element, its children included, cut out.
inline std::string without(std::string xml, const std::string& element) {
  const std::size_t first = xml.find("<" + element);
  EXPECT_NE(first, std::string::npos) << element;
  const std::size_t startEnd = xml.find('>', first);
  if (xml[startEnd - 1] == '/') return xml.erase(first, startEnd + 1 - first);
  const std::string end = "</" + element + ">";
  return xml.erase(first, xml.find(end, first) + end.size() - first);
}

/// The text with one piece of it replaced, which must be there.
inline std::string with(std::string text, const std::string& before, const std::string& after) {
  const std::size_t at = text.find(before);
  EXPECT_NE(at, std::string::npos) << before;
  return at == std::string::npos ? text : text.replace(at, before.size(), after);
}

}  // namespace talvesk::testing
