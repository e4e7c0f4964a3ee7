// A failed COM call as an exception, for systems that have no COM.
#pragma once

#include "msxml/ComTypes.h"

/// Carries the result of the call and the interface that it was made on. Bears COM's name so that the code that catches
/// it is the same everywhere. It is no `std::exception`, as there.
class ZO_API _com_error {  // NOLINT(bugprone-reserved-identifier)
 public:
  explicit _com_error(HRESULT result, REFIID iid = IID_IUnknown) noexcept;
  _com_error(const _com_error&) noexcept = default;
  _com_error& operator=(const _com_error&) noexcept = default;
  virtual ~_com_error();

  /// The failing HRESULT.
  HRESULT Error() const noexcept { return m_result; }

  /// The interface that failed; `IID_IUnknown` when that is not known.
  REFIID InterfaceId() const noexcept { return m_iid; }

  /// A text for people; null when there is none for this result. Valid for ever.
  const wchar_t* ErrorMessage() const noexcept;

 private:
  HRESULT m_result;
  IID m_iid;
};

/// Throws `_com_error`.
[[noreturn]] ZO_API void _com_issue_error(HRESULT result);  // NOLINT(bugprone-reserved-identifier)

/// Throws `_com_error` that names the interface.
/// \param object the object that failed; may be null
[[noreturn]] ZO_API void _com_issue_errorex(HRESULT result, IUnknown* object,  // NOLINT(bugprone-reserved-identifier)
                                            REFIID iid);
