#include "batch/Commands.h"
#include "batch/Failure.h"
#include "batch/Options.h"

#include <QTextCodec>
#include <exception>
#include <new>

int main(int argc, char** argv) {
  // File names are bytes that the user gave; they must not pass through the codec of a locale that
  // cannot spell them.
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  try {
    const talvesk::CommandLine line = talvesk::parseCommandLine(argc, argv);
    if (!line.command) return line.exitCode;
    return std::visit([](const auto& options) { return talvesk::run(options); }, *line.command);
  } catch (const std::bad_alloc&) {
    return talvesk::failed("there is not enough memory");
  } catch (const std::exception& error) {
    return talvesk::failed(error.what());
  }
}
