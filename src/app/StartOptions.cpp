#include "app/StartOptions.h"

namespace talvesk {
namespace {

const QString kVersion = QStringLiteral("Talvesk 2022.0\n");
const QString kHelp = QStringLiteral(
    "Usage: talvesk [FILES...]\n"
    "\n"
    "Opens the window of Talvesk and loads the files: a project (.tvsk), shot files (SEG-2,\n"
    "SEG-Y, SU) and a travel-time file (.otte, .txt, .xyz, .csv, .sgt).\n"
    "\n"
    "  -h, --help     print this text\n"
    "  -V, --version  print the version\n"
    "  --             everything after it is a file\n");

}  // namespace

StartOptions parseStartOptions(const QStringList& arguments) {
  StartOptions options;
  bool filesOnly = false;
  for (const QString& argument : arguments) {
    if (filesOnly || !argument.startsWith(QLatin1Char('-')) || argument == QLatin1String("-")) {
      options.files << argument;
    } else if (argument == QLatin1String("--")) {
      filesOnly = true;
    } else if (argument == QLatin1String("-h") || argument == QLatin1String("--help")) {
      return {StartOptions::Action::kPrintAndLeave, kHelp, {}};
    } else if (argument == QLatin1String("-V") || argument == QLatin1String("--version")) {
      return {StartOptions::Action::kPrintAndLeave, kVersion, {}};
    } else {
      return {StartOptions::Action::kRefuse,
              QStringLiteral("talvesk: unknown option %1\n\n").arg(argument) + kHelp,
              {}};
    }
  }
  return options;
}

}  // namespace talvesk
