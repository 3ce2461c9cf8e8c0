#include "batch/BatchRunner.h"

#include "base/TextNumber.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <cmath>
#include <csignal>
#include <fstream>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

namespace talvesk::batchtest {
namespace {

constexpr int kPatience = 240000;  // milliseconds

void start(QProcess& process, const char* program, const std::vector<std::string>& arguments,
           const Environment& environment) {
  QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
  for (const auto& [name, value] : environment) {
    variables.insert(QString::fromStdString(name), QString::fromStdString(value));
  }
  process.setProcessEnvironment(variables);
  QStringList list;
  for (const std::string& argument : arguments) list << QString::fromStdString(argument);
  process.start(QString::fromUtf8(program), list);
  ASSERT_TRUE(process.waitForStarted()) << program;
}

void finish(QProcess& process, Outcome& outcome) {
  process.waitForFinished(kPatience);
  if (process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit) {
    outcome.code = process.exitCode();
  }
  outcome.out += process.readAllStandardOutput().toStdString();
  outcome.err += process.readAllStandardError().toStdString();
}

}  // namespace

Outcome runBatch(const std::vector<std::string>& arguments, const Environment& environment) {
  QProcess process;
  Outcome outcome;
  start(process, TALVESK_BATCH, arguments, environment);
  finish(process, outcome);
  return outcome;
}

Outcome runExample(const std::string& script, const std::vector<std::string>& arguments) {
  QProcess process;
  Outcome outcome;
  std::vector<std::string> all = {std::string(TALVESK_EXAMPLES "/") + script};
  all.insert(all.end(), arguments.begin(), arguments.end());
  start(process, "sh", all, {{"TALVESK_BATCH", TALVESK_BATCH}});
  finish(process, outcome);
  return outcome;
}

Outcome interruptBatch(const std::vector<std::string>& arguments, const std::string& trigger,
                       int signal) {
  QProcess process;
  Outcome outcome;
  start(process, TALVESK_BATCH, arguments, {});
  process.setReadChannel(QProcess::StandardError);  // what is waited for
  while (outcome.err.find(trigger) == std::string::npos && process.waitForReadyRead(kPatience)) {
    outcome.err += process.readAllStandardError().toStdString();
  }
  if (process.processId() > 0) kill(static_cast<pid_t>(process.processId()), signal);
  finish(process, outcome);
  return outcome;
}

std::string Folder::operator/(const std::string& name) const {
  return mDir.filePath(QString::fromStdString(name)).toStdString();
}

std::string Folder::write(const std::string& name, const std::string& bytes) const {
  const std::string path = *this / name;
  std::ofstream(path, std::ios::binary) << bytes;
  return path;
}

bool Folder::holds(const std::string& name) const {
  return QFileInfo::exists(mDir.filePath(QString::fromStdString(name)));
}

std::size_t Folder::fileCount() const {
  return static_cast<std::size_t>(
      QDir(mDir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size());
}

std::string contentsOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string smallLine() {
  constexpr double kThickness = 4.0;
  const double shots[] = {0.5, 12.5, 23.5};
  const auto list = [](std::size_t n, const auto& value) {
    std::string line;
    for (std::size_t i = 0; i < n; ++i) line += formatDouble(value(i)) + ";";
    return line + "\n";
  };
  const auto geophone = [](std::size_t i) { return 2.0 * static_cast<double>(i); };
  std::string text = "otte\n1.0\n2\n1\n" + list(13, geophone) +
                     list(13, [&](std::size_t i) { return 10.0 + 0.05 * geophone(i); }) +
                     list(3, [&](std::size_t i) { return shots[i]; }) +
                     list(3, [&](std::size_t i) { return 10.0 + 0.05 * shots[i]; });
  for (std::size_t shot = 0; shot < 3; ++shot) {
    text += "0\n" + std::to_string(shot) + "\n" + list(13, [&](std::size_t i) {
              const double offset = std::fabs(geophone(i) - shots[shot]);
              const double slant = std::sqrt(1.0 / (600.0 * 600.0) - 1.0 / (1800.0 * 1800.0));
              return 1000.0 * std::min(offset / 600.0, offset / 1800.0 + 2.0 * kThickness * slant);
            });
  }
  return text;
}

}  // namespace talvesk::batchtest
