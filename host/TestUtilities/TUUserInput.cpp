#include "TestUtilities/TUUserInput.h"

CTUUserInput::~CTUUserInput() = default;

void CTUUserInput::ShowMessage(const wchar_t*, const wchar_t*) {}

bool CTUUserInput::AskYesNo(const wchar_t*, const wchar_t*) { return false; }

bool CTUUserInput::AskNumber(const wchar_t*, const wchar_t*, long, long, long*) { return false; }

int CTUUserInput::ChooseItem(const wchar_t*, const wchar_t*, const wchar_t* const*, int) { return -1; }
