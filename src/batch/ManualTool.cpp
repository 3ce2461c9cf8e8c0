#include "batch/CommandLine.h"

#include <iostream>
#include <string>

/// Writes the manual page ("man") or the completion of bash ("bash") of talvesk-batch on standard
/// output; part of the build only.
int main(int argc, char** argv) {
  const std::string kind = argc == 2 ? argv[1] : "";
  if (kind != "man" && kind != "bash") {
    std::cerr << "usage: batch_manual man|bash\n";
    return talvesk::kWrongUsage;
  }
  using talvesk::ManualKind;
  std::cout << talvesk::manualOfCommands(kind == "man" ? ManualKind::kManualPage
                                                       : ManualKind::kBashCompletion);
  return std::cout.flush() ? talvesk::kDone : talvesk::kFailed;
}
