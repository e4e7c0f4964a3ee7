#include "CompletionBlocks.h"

#include <Values.h>
#include <analysis/Rules.h>
#include <analysis/Vocabulary.h>

#include <array>
#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace manual {

namespace {

using Described = std::vector<std::pair<std::string, std::string>>;
using Commands = std::vector<Command>;

Described FindingCodes() {
  Described codes;
  for (const vifanalysis::RuleInfo& rule : vifanalysis::Rules()) codes.emplace_back(rule.code, rule.what);
  return codes;
}

Described FieldNames() {
  Described names;
  for (const vifanalysis::FieldInfo& field : vifanalysis::Fields()) names.emplace_back(field.name, field.declares);
  return names;
}

Described CommandNames(const Commands& commands) {
  Described names;
  for (const Command& command : commands) {
    if (!command.name.empty()) names.emplace_back(command.name, command.description);
  }
  return names;
}

/// A text in single quotes, as bash and zsh read it.
std::string Quoted(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + '\'';
}

/// A text in single quotes, as fish reads it.
std::string QuotedForFish(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) quoted.append(c == '\'' || c == '\\' ? "\\" : "").append(1, c);
  return quoted + '\'';
}

std::string Escaped(std::string_view text, std::string_view characters) {
  std::string escaped;
  for (const char c : text) {
    if (characters.find(c) != std::string_view::npos) escaped += '\\';
    escaped += c;
  }
  return escaped;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined.append(joined.empty() ? "" : " ").append(word);
  return joined;
}

/// The name by which the scripts know what an option takes.
std::string ScriptKind(const std::string& kind) {
  static const std::map<std::string, std::string> kinds = {
      {cli::kVifFile, "vif"},         {cli::kJsonFile, "json"},      {cli::kNewFile, "new"},
      {cli::kDirectory, "directory"}, {cli::kFindingCodes, "codes"}, {cli::kFieldName, "field"},
      {cli::kExplained, "name"},      {cli::kNumberOrAny, "group"},  {cli::kNumber, "number"}};
  const std::vector<std::string> choices = ChoicesOf(kind);
  if (!choices.empty()) return "words " + Joined(choices);
  const auto found = kinds.find(kind);
  if (found == kinds.end()) throw std::runtime_error("scripts do not know how to complete '" + kind + "'");
  return found->second;
}

// For bash: arms of `case` statements.

std::string BashOptions(const Commands& commands) {
  std::string arms;
  for (const Command& command : commands) {
    std::vector<std::string> names;
    for (const Option& option : command.options) names.insert(names.end(), option.names.begin(), option.names.end());
    arms += "    " + (command.name.empty() ? "''" : command.name) + ") REPLY=" + Quoted(Joined(names)) + " ;;\n";
  }
  return arms;
}

std::string BashValues(const Commands& commands) {
  std::string arms;
  for (const Command& command : commands) {
    for (const Option& option : command.options) {
      if (option.value.empty()) continue;
      for (const std::string& name : option.names) {
        arms += "    " + command.name + ':' + name + ") REPLY=" + Quoted(ScriptKind(option.kind)) + " ;;\n";
      }
    }
  }
  return arms;
}

std::string BashPositionals(const Commands& commands) {
  std::string arms;
  for (const Command& command : commands) {
    int position = 1;
    for (const Option& positional : command.positionals) {
      const std::string place = positional.isRepeatable ? "*" : std::to_string(position++);
      arms += "    " + command.name + ':' + place + ") REPLY=" + Quoted(ScriptKind(positional.kind)) + " ;;\n";
    }
  }
  return arms;
}

std::string BashWords(const Described& words) {
  std::string lines;
  for (const auto& [word, description] : words) lines += "    " + word + '\n';
  return lines;
}

// For zsh: specifications of `_arguments`, and words with descriptions.

std::string ZshAction(const std::string& kind) {
  const std::vector<std::string> choices = ChoicesOf(kind);
  if (!choices.empty()) return "word:(" + Joined(choices) + ')';
  const std::string name = ScriptKind(kind);
  return name + ":_vif_" + name;
}

std::string ZshOption(const Option& option) {
  std::string spec;
  if (option.isRepeatable) {
    spec = "\\*";
  } else if (option.names.size() > 1) {
    spec = Quoted('(' + Joined(option.names) + ')');
  }
  if (option.names.size() > 1) {
    spec += '{' + option.names[0] + ',' + option.names[1] + '}';
  } else {
    spec += option.names[0];
  }
  const bool isLong = option.names.size() == 1;
  std::string rest = '[' + Escaped(option.description, "[]\\:") + ']';
  if (!option.value.empty()) {
    rest = (isLong ? "=" : "") + rest + (option.value.front() == '[' ? "::" : ":") + ZshAction(option.kind);
  }
  return spec + Quoted(rest);
}

std::string ZshArms(const Commands& commands) {
  std::string arms;
  for (const Command& command : commands) {
    if (command.name.empty()) continue;
    arms += "    " + command.name + ")\n      _arguments -S";
    for (const Option& option : command.options) arms += " \\\n        " + ZshOption(option);
    int position = 1;
    for (const Option& positional : command.positionals) {
      const std::string place = positional.isRepeatable ? "*" : std::to_string(position++);
      arms += " \\\n        " + Quoted(place + ':' + ZshAction(positional.kind));
    }
    arms += " && ret=0\n      ;;\n";
  }
  return arms;
}

/// The options of vif itself, after which nothing else follows.
std::string ZshOwnOptions(const Commands& commands) {
  std::string lines;
  for (const Option& option : commands.front().options) {
    for (const std::string& name : option.names) {
      lines += "    " + Quoted("(- 1 *)" + name + '[' + Escaped(option.description, "[]\\:") + ']') + " \\\n";
    }
  }
  return lines;
}

std::string ZshWords(const Described& words) {
  std::string lines;
  for (const auto& [word, description] : words) {
    lines += "    " + Quoted(word + ':' + Escaped(description, "\\:")) + '\n';
  }
  return lines;
}

// For fish: calls of `complete`, and words with descriptions.

std::string FishCondition(const std::string& condition) { return "complete -c vif -n " + QuotedForFish(condition); }

/// What completes a value; file names are completed by functions of the script, too.
std::string FishSource(const std::string& kind) {
  const std::vector<std::string> choices = ChoicesOf(kind);
  return choices.empty() ? "(__vif_" + ScriptKind(kind) + ')' : Joined(choices);
}

std::string FishOption(const std::string& command, const Option& option) {
  std::string line = FishCondition("__vif_in " + command);
  for (const std::string& name : option.names) {
    line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  if (!option.value.empty()) {
    line += (option.value.front() == '[' ? " -f -a " : " -x -a ") + QuotedForFish(FishSource(option.kind));
  }
  return line + " -d " + QuotedForFish(option.description) + '\n';
}

std::string FishCommands(const Commands& commands) {
  std::string lines;
  for (const Command& command : commands) {
    const std::string name = command.name.empty() ? "''" : command.name;
    if (!command.name.empty()) {
      lines.append(FishCondition("__vif_in ''")).append(" -a ").append(name);
      lines.append(" -d ").append(QuotedForFish(command.description)).append("\n");
    }
    for (const Option& option : command.options) lines += FishOption(name, option);
    int position = 1;
    for (const Option& positional : command.positionals) {
      std::string place = "__vif_in " + name;
      if (!positional.isRepeatable) place.append(" ").append(std::to_string(position++));
      lines.append(FishCondition(place)).append(" -a ");
      lines.append(QuotedForFish(FishSource(positional.kind))).append("\n");
    }
  }
  return lines;
}

std::string FishWords(const Described& words) {
  std::string lines;
  for (const auto& [word, description] : words) {
    std::string entry = word;
    entry.append("\t").append(description);
    lines.append("        ").append(QuotedForFish(entry)).append(" \\\n");
  }
  return lines.substr(0, lines.size() - 3) + '\n';
}

/// The options that take a value, or those that may have one.
std::string FishOptionNames(const Commands& commands, bool isOptional) {
  std::set<std::string> names;
  for (const Command& command : commands) {
    for (const Option& option : command.options) {
      if (option.value.empty() || option.value.starts_with('[') != isOptional) continue;
      names.insert(option.names.begin(), option.names.end());
    }
  }
  return "        " + Joined({names.begin(), names.end()}) + '\n';
}

struct Directive {
  const char* name;
  std::function<std::string(const Commands&)> make;
};

}  // namespace

std::string CompletionBlock(const std::string& directive, const Commands& commands) {
  static const std::array directives = {
      Directive{"@bash-options", BashOptions},
      Directive{"@bash-values", BashValues},
      Directive{"@bash-positionals", BashPositionals},
      Directive{"@bash-commands", [](const Commands& all) { return BashWords(CommandNames(all)); }},
      Directive{"@bash-codes", [](const Commands&) { return BashWords(FindingCodes()); }},
      Directive{"@bash-fields", [](const Commands&) { return BashWords(FieldNames()); }},
      Directive{"@zsh-arms", ZshArms},
      Directive{"@zsh-own-options", ZshOwnOptions},
      Directive{"@zsh-commands", [](const Commands& all) { return ZshWords(CommandNames(all)); }},
      Directive{"@zsh-codes", [](const Commands&) { return ZshWords(FindingCodes()); }},
      Directive{"@zsh-fields", [](const Commands&) { return ZshWords(FieldNames()); }},
      Directive{"@fish-commands", FishCommands},
      Directive{"@fish-value-options", [](const Commands& all) { return FishOptionNames(all, false); }},
      Directive{"@fish-number-options", [](const Commands& all) { return FishOptionNames(all, true); }},
      Directive{"@fish-codes", [](const Commands&) { return FishWords(FindingCodes()); }},
      Directive{"@fish-fields", [](const Commands&) { return FishWords(FieldNames()); }},
  };
  for (const Directive& each : directives) {
    if (directive == each.name) return each.make(commands);
  }
  throw std::runtime_error("there is no directive " + directive);
}

}  // namespace manual
