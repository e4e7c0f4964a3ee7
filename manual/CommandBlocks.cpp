#include "CommandBlocks.h"

#include "HelpText.h"
#include "Mdoc.h"

#include <cctype>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace manual {

namespace {

constexpr const char* kListBegin = ".Bl -tag -width Ds\n";
constexpr const char* kListEnd = ".El\n";

std::string Flag(const std::string& name) { return "Fl " + Argument(std::string_view(name).substr(1)); }

/// The value as macros: "Ar FORMAT", "Op Ar N"; empty for none.
std::string ValueOf(const Option& option) {
  if (option.value.empty()) return {};
  if (option.value.front() != '[') return " Ar " + Argument(option.value);
  return " Op Ar " + Argument(option.value.substr(1, option.value.size() - 2));
}

std::string PositionalMacros(const Option& positional) {
  const std::string name = "Ar " + Argument(positional.names.front()) + (positional.isRepeatable ? " ..." : "");
  return positional.isRequired ? name : "Op " + name;
}

std::string Item(const std::string& macros, const std::string& text) {
  return ".It " + macros + '\n' + Paragraph(Sentence(text));
}

std::string OptionItem(const Option& option) {
  std::string macros;
  for (const std::string& name : option.names) macros += (macros.empty() ? "" : " , ") + Flag(name);
  return Item(macros + ValueOf(option), option.description);
}

std::string OptionList(const Command& command, const std::string& group) {
  std::string list;
  for (const Option& option : command.options) {
    if (option.group == group) list += OptionItem(option);
  }
  return list;
}

std::vector<std::string> OtherGroups(const Command& command) {
  std::vector<std::string> groups;
  for (const Option& option : command.options) {
    if (!option.group.empty() && (groups.empty() || groups.back() != option.group)) groups.push_back(option.group);
  }
  return groups;
}

bool IsHelp(const Option& option) { return option.names.back() == "--help"; }

HelpSection SectionOf(const Command& command, std::string_view title) {
  for (const HelpSection& section : ParseHelp(command.footer)) {
    if (section.title == title) return section;
  }
  throw std::runtime_error("the help of " + command.name + " has no section '" + std::string(title) + "'");
}

}  // namespace

std::string CommandList(const std::vector<Command>& commands) {
  std::string list = kListBegin;
  for (const Command& command : commands) {
    if (command.name.empty()) continue;
    list += ".It Cm " + Argument(command.name) + '\n' + Paragraph(Sentence(command.description)) + "See\n.Xr vif-" +
            command.name + " 1 .\n";
  }
  return list + kListEnd;
}

std::string Synopsis(const Command& command) {
  std::string synopsis = ".Nm vif " + command.name + '\n';
  for (const Option& option : command.options) {
    if (IsHelp(option)) continue;
    synopsis += ".Op " + Flag(option.names.front()) + ValueOf(option) + '\n';
  }
  for (const Option& positional : command.positionals) synopsis += '.' + PositionalMacros(positional) + '\n';
  return synopsis + ".Nm vif " + command.name + "\n.Fl \\-help\n";
}

std::string Description(const Command& command) {
  const std::vector<HelpSection> sections = ParseHelp(command.footer);
  std::string description;
  for (const HelpSection& section : sections) {
    if (!section.title.empty()) continue;
    for (const std::string& paragraph : section.paragraphs) {
      std::string text = Paragraph(paragraph);
      if (!description.empty()) description += ".Pp\n";
      description += text;
    }
  }
  return description;
}

std::string DescriptionAfterName(const Command& command) {
  std::string description = Description(command);
  description[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(description[0])));
  return description;
}

std::string OptionLists(const Command& command) {
  std::string list = kListBegin;
  for (const Option& positional : command.positionals) {
    list += Item("Ar " + Argument(positional.names.front()) + (positional.isRepeatable ? " ..." : ""),
                 positional.description);
  }
  list += OptionList(command, "") + kListEnd;
  for (const std::string& group : OtherGroups(command)) {
    list += ".Ss " + Arguments(group) + '\n' + kListBegin + OptionList(command, group) + kListEnd;
  }
  return list;
}

std::string RowList(const Command& command, const std::string& section) {
  std::string list = kListBegin;
  const HelpSection found = SectionOf(command, section);
  for (const auto& [name, text] : found.rows) {
    std::string sentence = Sentence(text);
    sentence[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(sentence[0])));
    list += ".It Cm " + Argument(name) + '\n' + Paragraph(sentence);
  }
  return list + kListEnd;
}

std::string ExitStatus(const Command& command) {
  std::string list = ".Bl -tag -width 1n\n";
  const HelpSection section = SectionOf(command, kExitStatus);
  std::string_view rest = section.paragraphs.front();
  while (!rest.empty()) {
    std::size_t end = rest.find("; ");
    while (end != std::string_view::npos && std::isdigit(static_cast<unsigned char>(rest[end + 2])) == 0) {
      end = rest.find("; ", end + 1);
    }
    std::string text(rest.substr(2, end == std::string_view::npos ? end : end - 2));
    text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    list += ".It Li " + std::string(1, rest.front()) + '\n' + Paragraph(Sentence(text));
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 2);
  }
  return list + kListEnd;
}

}  // namespace manual
