#include "Pages.h"

#include "CommandBlocks.h"
#include "CompletionBlocks.h"
#include "FieldBlocks.h"
#include "Header.h"
#include "HelpText.h"
#include "Lines.h"
#include "Mdoc.h"
#include "RuleBlocks.h"

#include <stdexcept>

namespace manual {

namespace {

constexpr const char* kProgram = "vif";

}  // namespace

CPages::CPages(PageSources sources) : m_sources(std::move(sources)), m_commands(ReadCommands()) {}

const Command& CPages::Find(const std::string& name) const {
  for (const Command& command : m_commands) {
    if (command.name == (name == kProgram ? "" : name)) return command;
  }
  throw std::runtime_error("there is no command '" + name + "'");
}

void CPages::Use(const std::string& command, const std::string& section) {
  for (const HelpSection& each : ParseHelp(Find(command).footer)) {
    if (each.title != section) continue;
    m_used.emplace(command, section);
    return;
  }
  throw std::runtime_error("the help of " + command + " has no section '" + section + "'");
}

std::string CPages::Head(const std::string& title, const std::string& section) const {
  return ".Dd " + m_sources.date + "\n.Dt " + title + ' ' + section + "\n.Os \"vif " + m_sources.version + "\"\n";
}

const std::string& CPages::Message(const std::string& code) const {
  const auto example = m_sources.examples.find(code);
  if (example == m_sources.examples.end())
    throw std::runtime_error("there is no example of the finding '" + code + "'");
  return example->second;
}

std::string CPages::Follow(const std::vector<std::string>& directive) {
  const std::string& name = directive.front();
  const auto argument = [&](std::size_t i) -> const std::string& {
    if (directive.size() <= i) throw std::runtime_error("the directive " + name + " lacks an argument");
    return directive[i];
  };
  const auto command = [&]() -> const Command& { return Find(argument(1)); };
  const auto useHelp = [&](const std::string& section) -> const Command& {
    Use(argument(1), section);
    return command();
  };
  if (name == "@head") return Head(argument(1), argument(2));
  if (name == "@commands") return CommandList(m_commands);
  if (name == "@synopsis") return Synopsis(command());
  if (name == "@description") return Description(useHelp(""));
  if (name == "@description-after-name") return DescriptionAfterName(useHelp(""));
  if (name == "@options") return OptionLists(command());
  if (name == "@rows") return RowList(useHelp(argument(2)), argument(2));
  if (name == "@exit-status") return ExitStatus(useHelp(std::string(kExitStatus)));
  if (name == "@leave-out") {
    Use(argument(1), argument(2) == "text" ? "" : argument(2));
    return {};
  }
  if (name == "@message") return Paragraph(Message(argument(1)));
  if (name == "@rules-about-form") return RuleList(true, m_sources.examples);
  if (name == "@rules-about-content") return RuleList(false, m_sources.examples);
  if (name == "@fields") return FieldLists();
  if (name == "@header-introduction") return HeaderIntroduction(m_sources.header);
  if (name == "@header-functions") return HeaderFunctions(m_sources.header);
  if (name == "@header-parts") return HeaderParts(m_sources.header);
  return CompletionBlock(name, m_commands);
}

std::string CPages::Fill(std::string_view page) {
  std::string filled;
  std::string transcript;
  bool isInTranscript = false;
  for (const std::string_view line : LinesOf(page)) {
    if (line == "@end") {
      filled += Literal(transcript);
      transcript.clear();
      isInTranscript = false;
    } else if (isInTranscript) {
      transcript.append(line).append("\n");
    } else if (line == "@transcript") {
      isInTranscript = true;
    } else if (line.starts_with('@')) {
      const std::vector<std::string_view> words = WordsOf(line);
      filled += Follow({words.begin(), words.end()});
    } else {
      filled.append(line).append("\n");
    }
  }
  if (isInTranscript) throw std::runtime_error("a transcript has no end");
  return filled;
}

void CPages::RequireAllHelpUsed() const {
  for (const Command& command : m_commands) {
    const std::string name = command.name.empty() ? kProgram : command.name;
    for (const HelpSection& section : ParseHelp(command.footer)) {
      if (m_used.count({name, section.title}) != 0) continue;
      throw std::runtime_error("no page has or leaves out the section '" + section.title + "' of the help of " + name);
    }
  }
}

}  // namespace manual
