// A program built against the installed library only: prints the number of fields and the value of the last.
#include <BaseUtilities/Exceptions.h>
#include <VendorInfoFile.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  try {
    const CVendorInfoFile vif(argv[1]);
    const VifFieldList fields = vif.GetFields();
    std::printf("%zu fields, last %s\n", vif.Count(), fields->back().MakeOutputString().get());
  } catch (const CZoException& error) {
    std::printf("refused: %s\n", error.what());
    return 1;
  }
  return 0;
}
