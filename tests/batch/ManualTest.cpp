#include "batch/BatchRunner.h"
#include "batch/CommandLine.h"
#include "model/TomoDocument.h"

#include <cstdio>
#include <regex>
#include <set>

#include <gmock/gmock.h>

namespace talvesk::batchtest {
namespace {

const char* const kCommands[] = {"info",    "pick",   "invert",  "ensemble", "refract",
                                 "elastic", "export", "convert", "records",  "demo"};

std::set<std::string> longOptions(const std::string& help) {
  std::set<std::string> options;
  const std::regex option("(--[a-z][a-z-]+)");
  for (std::sregex_iterator i(help.begin(), help.end(), option), end; i != end; ++i) {
    options.insert((*i)[1]);
  }
  return options;
}

std::string withoutEscapes(std::string page) {
  return std::regex_replace(page, std::regex(R"(\\-)"), "-");
}

/// What bash offers for the last word of a line.
std::string offered(const std::string& words) {
  const Folder folder;
  const std::string script =
      folder.write("completion", manualOfCommands(ManualKind::kBashCompletion));
  const std::string line = "bash -c 'cd " + folder / "" + " && source " + script +
                           " && COMP_WORDS=(" + words +
                           ") && COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) && _talvesk_batch && "
                           "echo \"${COMPREPLY[*]}\"' 2>&1";
  std::FILE* pipe = popen(line.c_str(), "r");
  std::string text;
  char buffer[256];
  while (std::fgets(buffer, sizeof buffer, pipe) != nullptr) text += buffer;
  pclose(pipe);
  return text;
}

TEST(Manual, namesEveryOptionThatHelpNames) {
  const std::string page = withoutEscapes(manualOfCommands(ManualKind::kManualPage));
  for (const char* command : kCommands) {
    const std::string begin = std::string(".SS talvesk-batch ") + command;
    const std::size_t at = page.find(begin);
    ASSERT_NE(at, std::string::npos) << command;
    const std::string section = page.substr(at, page.find("\n.S", at + 1) - at);
    EXPECT_EQ(longOptions(section), longOptions(runBatch({command, "--help"}).out)) << command;
  }
}

TEST(Manual, letsBashCompleteCommandsOptionsAndFiles) {
  EXPECT_EQ(offered("talvesk-batch inv"), "invert\n");
  EXPECT_EQ(offered("talvesk-batch invert --smoothing-t"), "--smoothing-type\n");
  EXPECT_EQ(offered("talvesk-batch invert compl"), "completion\n");
  EXPECT_EQ(offered("talvesk-batch invert --json compl"), "completion\n");
  // A number is expected: a file would be wrong.
  EXPECT_EQ(offered("talvesk-batch invert --nodes compl"), "\n");
}

}  // namespace
}  // namespace talvesk::batchtest
