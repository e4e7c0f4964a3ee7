/* Counts the fields of dock.xml. Made for Microsoft's ABI without any of Microsoft's files, so it brings its own start
 * and output. */
#include <vif.h>

__declspec(dllimport) void* GetStdHandle(uint32_t which);
__declspec(dllimport) int WriteFile(void* file, const void* bytes, uint32_t count, uint32_t* written, void* overlapped);
__declspec(dllimport) void ExitProcess(uint32_t status);

static void print(const char* text) {
  const uint32_t standard_output = (uint32_t)-11;
  uint32_t length = 0;
  uint32_t written = 0;
  while (text[length] != '\0') ++length;
  WriteFile(GetStdHandle(standard_output), text, length, &written, NULL);
}

static void print_number(size_t number) {
  char digits[24];
  char* digit = digits + sizeof(digits) - 1;
  *digit = '\0';
  do {
    *--digit = (char)('0' + number % 10);
    number /= 10;
  } while (number != 0);
  print(digit);
}

/* Fields are read too, because that passes a structure. */
static size_t readable_fields(const vif_file* file) {
  size_t count = 0;
  vif_field field;
  field.size = sizeof(field);
  while (vif_file_field(file, count, &field) == VIF_OK && *field.name != '\0' && field.index_count <= VIF_INDEX_COUNT) {
    ++count;
  }
  return count;
}

void Start(void) {
  vif_file* file = NULL;
  vif_error* error = NULL;
  if (vif_file_make(&file, &error) == VIF_OK && vif_file_load(file, "dock.xml", NULL, &error) == VIF_OK) {
    print_number(readable_fields(file));
    print(" fields\n");
  } else {
    print(vif_error_message(error));
  }
  vif_error_free(error);
  vif_file_free(file);
  ExitProcess(0);
}
