// How the host asks its operator.
#pragma once

#include "BaseUtilities/HostExport.h"

/// Asks the operator. A host derives from it. The library calls only `ChooseFile`; the other operations are for the
/// host, and here they answer as if there were no operator.
///
/// The library calls it on the thread that calls a hook.
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

  /// Asks a yes-or-no question.
  /// \return the answer; no if there is nobody to ask
  virtual bool AskYesNo(const wchar_t* prompt, const wchar_t* caption);

  /// Asks for a number.
  /// \param prompt what to enter
  /// \param caption the title of the question
  /// \param lowest the least number to accept
  /// \param highest the greatest number to accept
  /// \param number receives it; unchanged if the operator gives none
  /// \return whether the operator gave one
  virtual bool AskNumber(const wchar_t* prompt, const wchar_t* caption, long lowest, long highest, long* number);

  /// Asks the operator to choose one of several texts.
  /// \return its index, from 0; -1 if none was chosen
  virtual int ChooseItem(const wchar_t* prompt, const wchar_t* caption, const wchar_t* const* items, int count);

  /// Asks the operator to choose a file, and records the choice so that `CTestSuiteLog::VifFileName` returns it.
  /// \param prompt what to choose; never null
  /// \param caption the title of the question; never null
  /// \param flags 0
  /// \param reserved 0
  /// \return whether a file was chosen
  virtual bool ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long flags,
                          unsigned long reserved) = 0;
};
