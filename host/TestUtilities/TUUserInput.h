// How the host asks its operator.
#pragma once

#include "BaseUtilities/HostExport.h"

/// Asks the operator. A host derives from it. The library calls `ChooseFile` only; the other operations are the host's,
/// and their bodies here do what an operator who is not there would: nothing.
///
/// It is asked on the thread that calls a hook.
///
/// The order of the operations is part of the interface: `ChooseFile` is the sixth.
class ZO_API CTUUserInput {
 public:
  CTUUserInput() = default;
  CTUUserInput(const CTUUserInput&) = delete;
  CTUUserInput& operator=(const CTUUserInput&) = delete;
  virtual ~CTUUserInput();

  /// Shows a message until the operator has seen it.
  virtual void ShowMessage(const wchar_t* prompt, const wchar_t* caption);

  /// Asks a question to be answered by yes or no.
  /// \return the answer; no when there is nobody to ask
  virtual bool AskYesNo(const wchar_t* prompt, const wchar_t* caption);

  /// Asks for a number from `lowest` to `highest`.
  /// \param number receives it; untouched when the operator gives none
  /// \return whether there is one
  virtual bool AskNumber(const wchar_t* prompt, const wchar_t* caption, long lowest, long highest, long* number);

  /// Asks to choose one of some texts.
  /// \return its index, from 0; -1 when none was chosen
  virtual int ChooseItem(const wchar_t* prompt, const wchar_t* caption, const wchar_t* const* items, int count);

  /// Asks the operator to choose a file, and records the choice where `CTestSuiteLog::VifFileName` gives it back.
  /// \param prompt what is to be chosen, never null
  /// \param caption the title of the question, never null
  /// \param flags 0
  /// \param reserved 0
  /// \return whether a file was chosen
  virtual bool ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long flags,
                          unsigned long reserved) = 0;
};
