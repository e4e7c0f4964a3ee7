// How the help of the commands is laid out.
#pragma once

#include <CLI/CLI.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace cli {

/// No line of the help is wider.
inline constexpr std::size_t kHelpWidth = 90;

/// The text, which is ASCII, broken between words so that all of it fits into the help when its first line begins in
/// that column, counted from 0, and the others below it.
std::string WrapHelp(std::string_view text, std::size_t column);

/// Breaks the descriptions of options and commands.
class CHelpFormatter : public CLI::Formatter {
 public:
  CHelpFormatter();
  std::string make_option_desc(const CLI::Option* option) const override;
  std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
};

}  // namespace cli
