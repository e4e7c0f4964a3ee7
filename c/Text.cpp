#include "Text.h"

const char* vif_text_data(const vif_text* text) { return vifc::IsUsable(text) ? text->text.c_str() : ""; }

size_t vif_text_size(const vif_text* text) { return vifc::IsUsable(text) ? text->text.size() : 0; }

void vif_text_free(vif_text* text) { vifc::Free(text); }
