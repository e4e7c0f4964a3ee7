#include "TextlessErrors.h"

#include "msxml/ComError.h"

namespace {

bool g_areTextless = false;

}  // namespace

namespace testsupport {

CTextlessErrors::CTextlessErrors() { g_areTextless = true; }

CTextlessErrors::~CTextlessErrors() { g_areTextless = false; }

}  // namespace testsupport

// Overrides the library's own.
const wchar_t* _com_error::ErrorMessage() const noexcept { return g_areTextless ? nullptr : L"some text"; }
