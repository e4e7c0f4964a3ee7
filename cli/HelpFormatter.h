// How the help of the commands is laid out.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace cli {

/// Breaks lines that are wider than an ordinary terminal between words. What follows is aligned with the last column of
/// the line, where columns are separated by two or more blanks. The text of the help is ASCII.
class CHelpFormatter : public CLI::Formatter {
 public:
  CHelpFormatter();
  std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
};

}  // namespace cli
