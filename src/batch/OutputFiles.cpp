#include "batch/OutputFiles.h"

#include "base/AtomicFile.h"
#include "base/StandardStreams.h"
#include "base/StreamPlace.h"
#include "batch/Failure.h"
#include "batch/Options.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <iostream>

namespace talvesk {
namespace {

bool isOutput(const std::string& path) {
  return path == kStandardOutput || isStandardOutput(path);
}

/// One spelling per place, whether or not the file exists yet.
QString placeOf(const std::string& path) {
  if (isOutput(path)) return QString::fromLatin1(kStandardOutput);
  const QFileInfo file(QString::fromStdString(path));
  if (isStreamPlace(path)) return file.absoluteFilePath();
  if (file.exists()) return file.canonicalFilePath();
  return QDir(file.absolutePath()).canonicalPath() + '/' + file.fileName();
}

Status checkPlace(const OutputFile& output) {
  const auto refuse = [&](const std::string& why) {
    return Status::failure("Cannot write " + output.path + ": " + why);
  };
  if (!isFileName(output.path)) return refuse("its name is not valid UTF-8 text");
  if (isStreamPlace(output.path)) return {};
  const QFileInfo file(QString::fromStdString(output.path));
  const QFileInfo folder(file.absolutePath());
  const std::string folderName = folder.filePath().toStdString();
  if (file.isDir() || file.fileName().isEmpty()) return refuse("it is a folder");
  if (file.exists() && !file.isFile()) return refuse("it is not a regular file");
  if (!folder.isDir()) return refuse("there is no folder " + folderName);
  if (!folder.isWritable()) return refuse("the folder " + folderName + " is not writable");
  if (file.exists() && !file.isWritable()) return refuse("the file is write-protected");
  return {};
}

Status openPipe(const std::string& path) {
  // Other outputs are still to come when one reader leaves.
  if (isStreamPlace(path) && !isStandardOutput(path)) outliveReaders();
  if (!isNamedPipe(path)) return {};
  return holdPipeOpen(path);
}

}  // namespace

bool writesToOutput(const std::vector<OutputFile>& outputs) {
  return std::any_of(outputs.begin(), outputs.end(),
                     [](const OutputFile& output) { return isOutput(output.path); });
}

Status checkOutputFiles(const std::vector<OutputFile>& outputs,
                        const std::vector<std::string>& inputs) {
  std::vector<OutputFile> files;
  for (const OutputFile& output : outputs) {
    // Any number of outputs may vanish in /dev/null.
    if (!output.path.empty() && !isDevice(output.path)) files.push_back(output);
  }
  for (std::size_t i = 0; i < files.size(); ++i) {
    const QString place = placeOf(files[i].path);
    for (std::size_t j = 0; j < i; ++j) {
      if (placeOf(files[j].path) != place) continue;
      return Status::failure(
          files[j].option + " and " + files[i].option + " name the same file " + files[i].path,
          kWrongUsage);
    }
    for (const std::string& input : inputs) {
      if (placeOf(input) != place) continue;
      return Status::failure(files[i].option + " would overwrite the input " + input, kWrongUsage);
    }
  }
  for (const OutputFile& output : files) {
    if (output.path == kStandardOutput) continue;
    Status status = checkPlace(output);
    if (!status.ok()) return status;
  }
  for (const OutputFile& output : files) {
    Status status = openPipe(output.path);
    if (!status.ok()) return status;
  }
  return {};
}

Status writeOutput(const std::string& path, const std::string& text) {
  if (path != kStandardOutput) return writeFileAtomically(path, text);
  std::cout << text << std::flush;
  if (std::cout) return {};
  return Status::failure("Cannot write to the standard output");
}

void OutputAttempts::operator()(const std::string& path, const Write& write) {
  if (path.empty() || isDiscarded(path)) return;
  if (const Status status = write(path); !status.ok()) {
    mExitCode = failed(status.message());
  } else if (mSummary != nullptr) {
    *mSummary << "Wrote " << path << std::endl;
  }
}

}  // namespace talvesk
