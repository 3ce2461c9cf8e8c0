#include "batch/OptionParsing.h"

#include "base/StreamPlace.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"

#include <algorithm>
#include <cctype>
#include <thread>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kNameColumn = 30;
constexpr std::size_t kHelpColumns = 50;

std::string wrapped(const std::string& text) {
  std::string lines;
  std::size_t lineLength = 0;
  for (const std::string_view word : splitFields(text, ' ')) {
    if (lineLength > 0 && lineLength + 1 + word.size() > kHelpColumns) {
      lines += '\n';
      lineLength = 0;
    } else if (lineLength > 0) {
      lines += ' ';
      ++lineLength;
    }
    lines += word;
    lineLength += word.size();
  }
  return lines;
}

bool endsWith(const std::string& text, std::string_view suffix, bool anyCase) {
  if (text.size() <= suffix.size()) return false;
  return std::equal(suffix.begin(), suffix.end(), text.end() - static_cast<long>(suffix.size()),
                    [anyCase](char expected, char c) {
                      return c == expected ||
                             (anyCase && std::tolower(static_cast<unsigned char>(c)) == expected);
                    });
}

/// ".png, .svg or .pdf"
std::string listed(const std::vector<std::string>& words) {
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) list += i + 1 == words.size() ? " or " : ", ";
    list += words[i];
  }
  return list;
}

}  // namespace

CLI::Option* addPath(CLI::App& app, const std::string& name, std::string& path,
                     const std::string& help) {
  return app.add_option(name, path, help)->type_name("FILE");
}

std::vector<double> velocitiesWithin(const std::string& option, const std::string& text) {
  std::vector<double> velocities;
  for (const std::string_view field : splitFields(text, ',')) {
    velocities.push_back(
        numberWithin(option, std::string(field), rangeOf(parameters::kMinVelocity)));
  }
  return velocities;
}

CLI::Option* addThreadCount(CLI::App& app, const std::string& help,
                            const std::function<void(unsigned)>& assign) {
  constexpr int kMost = 1024;
  constexpr unsigned kPerProcessor = 4;
  static constexpr unsigned kAlways = 32;  ///< a few too many do no harm
  return addNumber<int>(app, "--threads", "N", {1, kMost}, help, [assign](int value) {
    const unsigned processors = std::max(std::thread::hardware_concurrency(), 1U);
    const unsigned most = std::max(kPerProcessor * processors, kAlways);
    const auto wanted = static_cast<unsigned>(value);
    if (wanted > most) {
      warn("--threads " + std::to_string(wanted) + ": this machine has " +
           std::to_string(processors) + " processors; " + std::to_string(most) +
           " threads are used, and the results are the same");
    }
    assign(std::min(wanted, most));
  });
}

CLI::Option* mustEndIn(CLI::Option* option, std::vector<std::string> suffixes, bool anyCase,
                       bool pipesToo) {
  const bool pipes = pipesToo || suffixes.size() == 1;
  return option->check([suffixes = std::move(suffixes), anyCase, pipes](const std::string& path) {
    if (isDiscarded(path)) return std::string();
    if (pipes && isStreamPlace(path)) return std::string();
    for (const std::string& suffix : suffixes) {
      if (endsWith(path, suffix, anyCase)) return std::string();
    }
    return "the name '" + path + "' must end in " + listed(suffixes);
  });
}

double readGrading(const std::string& option, const std::string& text) {
  if (text == "sharp") return 0.0;
  const std::string graded = "graded:";
  if (text.compare(0, graded.size(), graded) != 0) {
    throw CLI::ValidationError(option, "'" + text + "' is neither sharp nor graded:M");
  }
  return numberWithin(option, text.substr(graded.size()), rangeOf(parameters::kGrading));
}

void wrapHelp(CLI::App& app) {
  app.get_formatter()->column_width(kNameColumn);
  app.description(wrapped(app.get_description()));
  for (CLI::Option* option : app.get_options()) {
    option->description(wrapped(option->get_description()));
    if (option->get_positional()) option->type_name("");
  }
  for (CLI::App* command : app.get_subcommands({})) wrapHelp(*command);
}

}  // namespace talvesk
