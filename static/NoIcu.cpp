// Stands in for ICU, which libxml2 asks for an encoding only after iconv did not know it.

extern "C" {

/// ICU's `ucnv_open`, which finds no converter. Without one, libxml2 calls no other function of ICU.
/// \param error receives U_FILE_ACCESS_ERROR
void* OpenNoIcuConverter(const char* name, int* error);

void* OpenNoIcuConverter(const char*, int* error) {
  constexpr int fileAccessError = 4;
  *error = fileAccessError;
  return nullptr;
}
}
