// Loads a text VIF that contains a vendor's own field names next to those of the VIF format.
#include <VendorInfoFile.h>
#include <msxml/ComApartment.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <regex>
#include <vector>

namespace {

// The built-in definitions plus one for names such as QPW_Cable_Drop2, which is a field of source PDO 2.
std::vector<VifFieldDef> MakeFieldDefs() {
  std::vector<VifFieldDef> fieldDefs = VifFieldDefs::GetVifFieldDefs();  // a copy; the original is never changed
  fieldDefs.push_back({
      .name = L"QPW_Cable_Drop",                          // the name to store; not copied, so use a literal
      .pattern = std::wregex(L"QPW_Cable_Drop([0-9]+)"),  // the first group captures the number of the source PDO
      .locations = {eVifLocComponent, eVifLocSrcPdo},     // outermost first; the third slot stays unused
  });
  return fieldDefs;
}

// Loads the file with these definitions or, if null, the built-in ones.
CVendorInfoFile Load(const char* fileName, std::vector<VifFieldDef>* fieldDefs) {
  CVendorInfoFile vif(nullptr, fieldDefs);
  vif.Append(fileName);
  return vif;
}

void PrintOwnFields(const CVendorInfoFile& vif) {
  const VifIndex any = CVIFField::UNSPECIFIED_INDEX;
  const VifFieldList fields = vif.GetFields();  // kept in a variable: the loop borrows from it
  for (const CVIFField& field : *fields) {
    if (!field.Match("QPW_.*", any, any, any)) continue;
    std::cout << "  " << field.MakeOutputString().get();
    if (field.HasIndex(eVifLocSrcPdo)) std::cout << " in source PDO " << field.Index(eVifLocSrcPdo);
    std::cout << '\n';
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) {
    std::cerr << "usage: own_field_names FILE\n";
    return EXIT_FAILURE;
  }
  try {
    const CComApartment apartment;  // on Windows, XML files are read through COM
    // A name that no definition knows is kept as written, and its field belongs to no group.
    std::cout << "With the built-in definitions:\n";
    PrintOwnFields(Load(argv[1], nullptr));

    // The object borrows the definitions, so they are declared before it and outlive it.
    std::vector<VifFieldDef> fieldDefs = MakeFieldDefs();
    const CVendorInfoFile vif = Load(argv[1], &fieldDefs);
    std::cout << "With the vendor's own definition added:\n";
    PrintOwnFields(vif);
  } catch (const std::exception& error) {
    std::cerr << "own_field_names: " << error.what() << '\n';
    return EXIT_FAILURE;
  } catch (const _com_error& error) {  // not a std::exception
    std::cerr << "own_field_names: COM error 0x" << std::hex << static_cast<unsigned>(error.Error()) << '\n';
    return EXIT_FAILURE;
  }
  return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
