// How the help of the commands is laid out.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace cli {

/// Lays out the help itself, because the layout of CLI11's own formatter differs from version to version. Lines wider
/// than an ordinary terminal are broken between words. What follows is aligned with the last column of the line, where
/// columns are separated by two or more blanks. The text of the help is ASCII.
///
/// What an option takes is described by its `option_text` only.
class CHelpFormatter : public CLI::FormatterBase {
 public:
  std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
};

}  // namespace cli
