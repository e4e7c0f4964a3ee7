// Makes the manual pages and the completion scripts of `vif`.
//
//   make_manual VERSION DATE VIF_H EXAMPLES_DIRECTORY OUTPUT_DIRECTORY TEMPLATE...
//
// A template makes the file of its name in the output directory.
#include "Pages.h"

#include <analysis/Check.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

namespace {

using std::filesystem::path;

std::string Read(const path& name) {
  std::ifstream file(name, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + name.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

void Write(const path& name, const std::string& text) {
  std::ofstream file(name, std::ios::binary);
  if (!(file << text).flush()) throw std::runtime_error("cannot write " + name.string());
}

/// A message of each code that checking the text VIFs of a directory finds.
std::map<std::string, std::string> ExampleMessages(const path& directory) {
  std::set<path> files;  // in an order that is the same everywhere
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    if (entry.path().extension() == ".txt") files.insert(entry.path());
  }
  vifanalysis::CheckOptions options;
  options.notes = true;
  std::map<std::string, std::string> messages;
  for (const path& file : files) {
    for (const vifanalysis::Finding& finding : vifanalysis::CheckFile(file, options)) {
      messages.emplace(finding.code, finding.message);
    }
  }
  return messages;
}

void MakeAll(const std::vector<path>& arguments) {
  if (arguments.size() < 6) throw std::runtime_error("wrong number of arguments");
  manual::PageSources sources = {arguments[0].string(), arguments[1].string(), Read(arguments[2]),
                                 ExampleMessages(arguments[3])};
  manual::CPages pages(std::move(sources));
  for (auto page = arguments.begin() + 5; page != arguments.end(); ++page) {
    try {
      Write(arguments[4] / page->filename(), pages.Fill(Read(*page)));
    } catch (const std::exception& error) {
      throw std::runtime_error(page->filename().string() + ": " + error.what());
    }
  }
  pages.RequireAllHelpUsed();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    MakeAll({argv + 1, argv + argc});
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_manual: %s\n", error.what());
    return 1;
  }
}
