// Lists every field of one or more Vendor Info Files: its place, its name, its value and what that means.
#include <VendorInfoFile.h>
#include <msxml/ComApartment.h>

#include <cstdlib>
#include <exception>
#include <iostream>

namespace {

// Prints a field's groups, outermost first, such as "Component 1, SrcPdo 2".
void PrintLocation(const CVIFField& field) {
  const char* separator = "";
  for (const auto& [location, number] : field.Indexes()) {
    if (location == eVifLocUnset) continue;
    std::cout << separator << GetVifLocInfo(location).name;
    if (number != CVIFField::INDEX_NOT_SPECIFIED) std::cout << ' ' << number;
    separator = ", ";
  }
}

void PrintField(const CVIFField& field) {
  if (field.IndexCount() > 0) {
    PrintLocation(field);
    std::cout << ": ";
  }
  std::cout << field.MakeOutputString().get();
  if (field.Description()[0] != '\0') std::cout << " (" << field.Description() << ')';
  std::cout << '\n';
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 2) {
    std::cerr << "usage: list_fields FILE...\n";
    return EXIT_FAILURE;
  }
  try {
    const CComApartment apartment;  // on Windows, XML files are read through COM
    CVendorInfoFile vif;
    for (int i = 1; i < argc; ++i) vif.Append(argv[i]);  // each text VIF becomes one more component

    // GetFields() returns a list of copies. Keep it in a variable: in `for (... : *vif.GetFields())` the list would
    // be destroyed before the loop begins.
    const VifFieldList fields = vif.GetFields();
    for (const CVIFField& field : *fields) PrintField(field);
    std::cout << "Fields: " << vif.Count() << ", components: " << vif.ComponentCount() << '\n';
  } catch (const std::exception& error) {  // the file is missing, is not a VIF, cannot be read, ...
    std::cerr << "list_fields: " << error.what() << '\n';
    return EXIT_FAILURE;
  } catch (const _com_error& error) {  // not a std::exception
    std::cerr << "list_fields: COM error 0x" << std::hex << static_cast<unsigned>(error.Error()) << '\n';
    return EXIT_FAILURE;
  }
  return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
