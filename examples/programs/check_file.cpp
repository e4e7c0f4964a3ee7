// Prints all findings of a file: what is wrong with its form, and where what it declares contradicts itself.
#include <analysis/Check.h>

#include <cstdio>
#include <exception>

int main(int argc, char** argv) {
  try {
    for (const vifanalysis::Finding& finding : vifanalysis::CheckFile(argc > 1 ? argv[1] : "charger.txt")) {
      std::printf("line %zu: %s\n", finding.line, finding.message.c_str());
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
