#include "batch/Manual.h"

#include <algorithm>
#include <vector>

#include <CLI/CLI.hpp>

namespace talvesk {
namespace {

/// A text as troff prints it: hyphens of options as they are typed, no line taken for a request.
std::string troff(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\') {
      out += "\\e";
    } else if (c == '-') {
      out += "\\-";
    } else if (c == '\'') {
      out += "\\(aq";
    } else {
      out += c;
    }
  }
  return !out.empty() && out.front() == '.' ? "\\&" + out : out;
}

/// "-o, --otte"
std::string names(const CLI::Option& option) {
  std::string list;
  for (const std::string& name : option.get_snames()) {
    list += (list.empty() ? "-" : ", -") + name;
  }
  for (const std::string& name : option.get_lnames()) {
    list += (list.empty() ? "--" : ", --") + name;
  }
  return list;
}

/// "FILE" of "--otte FILE"; empty for a flag.
std::string valueName(const CLI::Option& option) {
  return option.get_type_size() == 0 ? std::string() : option.get_type_name();
}

std::vector<const CLI::Option*> optionsOf(const CLI::App& app, bool positional) {
  return app.get_options(
      [positional](const CLI::Option* option) { return option->get_positional() == positional; });
}

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

std::string entry(const std::string& name, const std::string& value, const std::string& help) {
  std::string text = ".TP\n.B " + troff(name);
  if (!value.empty()) text += " \\fI" + troff(value) + "\\fR";
  return text + "\n" + troff(help) + "\n";
}

std::string commandSection(const CLI::App& command) {
  std::string text = ".SS talvesk\\-batch " + troff(command.get_name());
  std::string entries;
  for (const CLI::Option* option : optionsOf(command, true)) {
    const bool several = option->get_expected_max() > 1;
    text += ' ' + troff(option->get_name()) + (several ? "..." : "");
    entries += entry(option->get_name(), "", option->get_description());
  }
  text += " [options]\n" + troff(command.get_description()) + ".\n";
  // Groups in the order of their first option.
  std::vector<std::string> groups;
  for (const CLI::Option* option : optionsOf(command, false)) {
    if (std::find(groups.begin(), groups.end(), option->get_group()) == groups.end()) {
      groups.push_back(option->get_group());
    }
  }
  for (const std::string& group : groups) {
    if (groups.size() > 1) entries += ".PP\n.I " + troff(group) + "\n";
    for (const CLI::Option* option : optionsOf(command, false)) {
      if (option->get_group() != group) continue;
      entries += entry(names(*option), valueName(*option), option->get_description());
    }
  }
  return text + entries;
}

std::string joined(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) list += (list.empty() ? "" : " ") + word;
  return list;
}

std::string optionWords(const CLI::App& app, bool onlyWithValue, bool onlyPaths) {
  std::vector<std::string> words;
  for (const CLI::Option* option : optionsOf(app, false)) {
    const std::string value = valueName(*option);
    if (onlyWithValue && value.empty()) continue;
    if (onlyPaths && value != "FILE") continue;
    for (const std::string& name : option->get_snames()) words.push_back("-" + name);
    for (const std::string& name : option->get_lnames()) words.push_back("--" + name);
  }
  return joined(words);
}

}  // namespace

std::string manualPage(const CLI::App& app) {
  std::string page =
      ".TH TALVESK\\-BATCH 1 \"\" \"Talvesk " TALVESK_VERSION
      "\" \"User Commands\"\n"
      ".SH NAME\ntalvesk\\-batch \\- seismic refraction surveys without windows\n"
      ".SH SYNOPSIS\n.B talvesk\\-batch\n.I command\n.RI [ options ]\n.SH DESCRIPTION\n" +
      troff(app.get_description()) +
      "\nNumbers have a decimal point in every locale.\n.SH COMMANDS\n";
  for (const CLI::App* command : commandsOf(app)) page += commandSection(*command);
  page += ".SH OPTIONS\n";
  for (const CLI::Option* option : optionsOf(app, false)) {
    page += entry(names(*option), valueName(*option), option->get_description());
  }
  return page +
         ".SH EXIT STATUS\n0 done, 1 failed, 2 wrong usage.\n.SH SEE ALSO\n.BR talvesk (1)\n";
}

std::string bashCompletion(const CLI::App& app) {
  std::vector<std::string> commands;
  std::string options;
  std::string paths;
  std::string values;
  for (const CLI::App* command : commandsOf(app)) {
    const std::string& name = command->get_name();
    commands.push_back(name);
    options += "    " + name + ") options='" + optionWords(*command, false, false) + "' ;;\n";
    paths += "    " + name + ") paths='" + optionWords(*command, true, true) + "' ;;\n";
    values += "    " + name + ") values='" + optionWords(*command, true, false) + "' ;;\n";
  }
  return "# Completion of talvesk-batch for bash.\n"
         "_talvesk_batch() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}\n"
         "  local options= paths= values=\n"
         "  COMPREPLY=()\n"
         "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
         "    COMPREPLY=($(compgen -W '" +
         joined(commands) + ' ' + optionWords(app, false, false) +
         "' -- \"$word\"))\n"
         "    return\n"
         "  fi\n"
         "  case ${COMP_WORDS[1]} in\n" +
         options + "  esac\n  case ${COMP_WORDS[1]} in\n" + paths +
         "  esac\n  case ${COMP_WORDS[1]} in\n" + values +
         "  esac\n"
         "  if [[ \" $values \" == *\" $before \"* && \" $paths \" != *\" $before \"* ]]; then\n"
         "    return  # a number or a word of its own\n"
         "  fi\n"
         "  if [[ $word == -* ]]; then\n"
         "    COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
         "  else\n"
         "    compopt -o filenames 2> /dev/null\n"
         "    mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n"
         "  fi\n"
         "}\n"
         "complete -F _talvesk_batch talvesk-batch\n";
}

}  // namespace talvesk
