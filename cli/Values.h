// What options and positionals take. The kind is the type name of the option, from which completion scripts are made.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace cli {

constexpr const char* kVifFile = "VIF";           ///< an existing VIF, text or XML
constexpr const char* kJsonFile = "JSON";         ///< an existing JSON file
constexpr const char* kNewFile = "FILE";          ///< a file to be written
constexpr const char* kDirectory = "DIR";         ///< an existing directory
constexpr const char* kFindingCodes = "CODE";     ///< codes of findings, separated by commas
constexpr const char* kFieldName = "FIELD";       ///< a field's name
constexpr const char* kExplained = "NAME";        ///< a field's name or a finding's code
constexpr const char* kNumberOrAny = "N or any";  ///< a group's number, or "any"
constexpr const char* kNumber = "N";              ///< a number

/// Between the choices in the type name of an option that takes one of several words.
constexpr char kChoiceSeparator = '|';

/// Adds an option that takes one of the words.
CLI::Option* AddChoice(CLI::App& command, const char* name, std::string& value, const char* description,
                       const std::vector<std::string>& choices);

/// Adds `--format`.
CLI::Option* AddFormat(CLI::App& command, std::string& format, const char* description,
                       const std::vector<std::string>& formats);

}  // namespace cli
