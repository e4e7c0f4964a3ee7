// Prints what a product can supply: the voltage and current of each source PDO of each component.
#include <VendorInfoFile.h>
#include <msxml/ComApartment.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

// The value of one field of a source PDO in volts, amperes or watts. The unit says what its number counts.
double Value(const std::vector<CVIFField>& fields, const CVIFField& pdo, const std::string& name, double unit) {
  const VifIndex component = {eVifLocComponent, pdo.Index(eVifLocComponent)};
  const VifIndex sourcePdo = {eVifLocSrcPdo, pdo.Index(eVifLocSrcPdo)};
  for (const CVIFField& field : fields) {
    if (!field.Match(name.c_str(), component, sourcePdo, CVIFField::UNSPECIFIED_INDEX)) continue;
    if (field.GetULongNumericValue() == CVIFField::VIF_VALUE_UNSET_64) break;  // too large to be a number
    return static_cast<double>(field.GetULongNumericValue()) * unit;
  }
  throw std::runtime_error(name + " is missing or no number in source PDO " + std::to_string(pdo.Index(eVifLocSrcPdo)));
}

void PrintPdo(const std::vector<CVIFField>& fields, const CVIFField& pdo) {
  const VifIndexNumber i = pdo.Index(eVifLocSrcPdo);
  if (i == CVIFField::INDEX_NOT_SPECIFIED) throw std::runtime_error("a source PDO has no number");
  const auto at = "Component " + std::to_string(pdo.Index(eVifLocComponent)) + ", source PDO " + std::to_string(i);
  const auto value = [&](const char* name, double unit) { return Value(fields, pdo, name, unit); };
  const auto type = pdo.GetULongNumericValue();
  if (type == 0) {  // fixed: 50 mV and 10 mA
    std::printf("%s: %.2f V, %.2f A\n", at.c_str(), value("Src_PDO_Voltage", 0.05), value("Src_PDO_Max_Current", 0.01));
  } else if (type == 1 || type == 2) {  // battery: 50 mV and 250 mW; variable: 50 mV and 10 mA
    std::printf("%s: %.2f to %.2f V, %.2f %s\n", at.c_str(), value("Src_PDO_Min_Voltage", 0.05),
                value("Src_PDO_Max_Voltage", 0.05),
                type == 1 ? value("Src_PDO_Max_Power", 0.25) : value("Src_PDO_Max_Current", 0.01),
                type == 1 ? "W" : "A");
  } else if (type == 3 && value("Src_PDO_APDO_Type", 1) < 1) {  // programmable: 100 mV and 50 mA
    std::printf("%s: %.2f to %.2f V, %.2f A\n", at.c_str(), value("Src_PDO_Min_Voltage", 0.1),
                value("Src_PDO_Max_Voltage", 0.1), value("Src_PDO_Max_Current", 0.05));
  } else {
    std::printf("%s: of a type that this program does not know\n", at.c_str());
  }
}

}  // namespace

int main(int argc, char* argv[]) try {
  if (argc != 2) throw std::runtime_error("needs the name of one FILE");
  const CComApartment apartment;  // on Windows, XML files are read through COM
  CVendorInfoFile vif;
  vif.Append(argv[1]);
  const VifFieldList fields = vif.GetFields();  // kept in a variable: the loop borrows from it
  for (const CVIFField& field : *fields)        // each source PDO states its supply type once
    if (std::string_view(field.Name()) == "Src_PDO_Supply_Type") PrintPdo(*fields, field);
  return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
} catch (const std::exception& error) {
  std::fprintf(stderr, "source_pdos: %s\n", error.what());
  return EXIT_FAILURE;
} catch (const _com_error& error) {  // is no std::exception
  std::fprintf(stderr, "source_pdos: COM error 0x%08X\n", static_cast<unsigned>(error.Error()));
  return EXIT_FAILURE;
}
