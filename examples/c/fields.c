/* Lists the fields of VIFs, in C: fields FILE... */
#include <stdio.h>
#include <vif.h>

/* Says why a call failed, and frees the error. */
static int refuse(vif_error* error) {
  size_t i;
  fprintf(stderr, "fields: %s\n", vif_error_message(error));
  for (i = 0; i < vif_error_reason_count(error); ++i) {
    vif_reason reason = {sizeof(reason), 0, 0, NULL, NULL};
    vif_error_reason(error, i, &reason);
    fprintf(stderr, "  line %lu: %s\n", (unsigned long)reason.line, reason.text);
  }
  vif_error_free(error);
  return 1;
}

static void print_field(const vif_field* field) {
  uint32_t i;
  for (i = 0; i < field->index_count; ++i) {
    const vif_index* index = &field->indexes[i];
    printf("%s", vif_location_name(index->location));
    if (index->number != VIF_ANY_NUMBER) printf(" %lu", (unsigned long)index->number);
    printf(i + 1 < field->index_count ? ", " : ": ");
  }
  printf("%s=%s", field->name, field->value);
  printf(*field->description != '\0' ? " (%s)\n" : "%s\n", field->description);
}

int main(int argc, char** argv) {
  vif_file* file = NULL;
  vif_error* error = NULL;
  size_t position;
  int i;
  if (vif_file_make(&file, &error) != VIF_OK) return refuse(error);
  for (i = 1; i < argc; ++i) {
    if (vif_file_load(file, argv[i], NULL, &error) != VIF_OK) {
      vif_file_free(file);
      return refuse(error);
    }
  }
  for (position = 0; position < vif_file_field_count(file); ++position) {
    vif_field field;
    field.size = sizeof(field);
    if (vif_file_field(file, position, &field) == VIF_OK) print_field(&field);
  }
  printf("Fields: %lu, components: %lu\n", (unsigned long)position, (unsigned long)vif_file_component_count(file));
  vif_file_free(file);
  return 0;
}
