#include "base/FileReplacement.h"
#include "base/SampleStore.h"
#include "base/StandardStreams.h"
#include "batch/CommandLine.h"
#include "batch/Commands.h"
#include "batch/Failure.h"
#include "model/TomoDocument.h"

#include <QTextCodec>
#include <exception>
#include <iostream>
#include <new>

namespace {

/// What could not be printed makes a failure of a command that went well.
int afterPrinting(int exitCode) {
  std::cout.flush();
  if (std::cout || exitCode != talvesk::kDone) return exitCode;
  return talvesk::failed("Cannot write to the standard output");
}

}  // namespace

int main(int argc, char** argv) {
  talvesk::occupyClosedStreams();
  talvesk::outliveSizeLimits();
  // File names are bytes that the user gave; they must not pass through the codec of a locale that
  // cannot spell them.
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  try {
    const talvesk::CommandLine line = talvesk::parseCommandLine(argc, argv);
    if (!line.command) return afterPrinting(line.exitCode);
    talvesk::SampleStore::instance().setWhen(line.samplesOnDisk);
    return afterPrinting(
        std::visit([](const auto& options) { return talvesk::run(options); }, *line.command));
  } catch (const std::bad_alloc&) {
    return talvesk::failed("there is not enough memory");
  } catch (const std::exception& error) {
    return talvesk::failed(error.what());
  }
}
