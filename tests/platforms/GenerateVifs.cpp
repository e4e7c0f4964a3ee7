// Writes random VIFs, text and XML, valid and broken, for comparing two builds of the command.
#include "RandomTextVif.h"
#include "RandomXmlVif.h"
#include "support/Random.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <ios>
#include <random>
#include <string>

namespace {

void Write(const std::filesystem::path& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary);
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
}

void Generate(const std::filesystem::path& directory, unsigned count) {
  std::filesystem::create_directories(directory);
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (unsigned i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    Write(directory / ("t" + number + ".txt"), platforms::RandomTextVif(generator));
    Write(directory / ("x" + number + ".xml"), platforms::RandomXmlVif(generator));
  }
}

}  // namespace

int main(int argc, char** argv) {
  unsigned count = 0;
  if (argc != 3 || std::from_chars(argv[2], argv[2] + std::strlen(argv[2]), count).ec != std::errc()) {
    std::fputs(
        "usage: generate_vifs DIRECTORY COUNT\nWrites so many files of each form; the environment's "
        "VIF_TEST_SEED says which.\n",
        stderr);
    return 2;
  }
  try {
    Generate(argv[1], count);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "generate_vifs: %s\n", error.what());
    return 1;
  }
  std::printf("%u text and %u XML files; %s\n", count, count, testsupport::SeedMessage().c_str());
  return 0;
}
