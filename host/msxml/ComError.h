// A failed COM call as an exception, for systems that have no COM.
#pragma once

#include "msxml/Com.h"

// Where there is COM, Com.h brings its own.
#ifndef _WIN32

/// Carries the call's result and the interface that it was made on. It has COM's name, so that the same code catches it
/// on every system. As in COM, it is not a `std::exception`.
class ZO_API _com_error {  // NOLINT(bugprone-reserved-identifier)
 public:
  /// \param result the failed call's result
  /// \param iid the interface that it was made on
  explicit _com_error(zocom::Result result, const zocom::Guid& iid = zocom::kUnknownId) noexcept;
  _com_error(const _com_error&) noexcept = default;
  _com_error& operator=(const _com_error&) noexcept = default;
  virtual ~_com_error();

  /// The failed call's result.
  zocom::Result Error() const noexcept { return m_result; }

  /// The interface whose call failed; `zocom::kUnknownId` if that is not known.
  const zocom::Guid& InterfaceId() const noexcept { return m_iid; }

  /// A text for people; null if there is none for this result. Valid until the program ends.
  const wchar_t* ErrorMessage() const noexcept;

 private:
  zocom::Result m_result;
  zocom::Guid m_iid;
};

/// Throws `_com_error`.
[[noreturn]] ZO_API void _com_issue_error(zocom::Result result);  // NOLINT(bugprone-reserved-identifier)

/// Throws a `_com_error` that names the interface.
/// \param result the failed call's result
/// \param object the object that failed; may be null
/// \param iid the interface
[[noreturn]] ZO_API void _com_issue_errorex(zocom::Result result,  // NOLINT(bugprone-reserved-identifier)
                                            zocom::Unknown* object, const zocom::Guid& iid);

#endif
