// The host's exception classes.
#pragma once

#include "BaseUtilities/HostExport.h"

#include <exception>
#include <stdexcept>

/// What every exception of the host has in common. It is not derived from `std::exception`, so that the classes below
/// can be caught both as this and, without ambiguity, as `std::exception`.
class ZO_API CZoException {
 public:
  CZoException(const CZoException&) = default;
  CZoException(CZoException&&) = default;
  CZoException& operator=(const CZoException&) = default;
  CZoException& operator=(CZoException&&) = default;
  virtual ~CZoException();

  /// The message, UTF-8 unless it quotes a file name that is not; never null; valid while the exception lives.
  virtual const char* what() const noexcept = 0;

 protected:
  CZoException() = default;
};

/// A failure at run time: a file that cannot be loaded, a field that is not numeric, a query that finds too many
/// fields. Catchable as `CZoException`, `std::runtime_error` and `std::exception`.
class ZO_API CZoRunTimeException : public CZoException, public std::runtime_error {
 public:
  /// \param message null or empty means "Run time exception thrown".
  explicit CZoRunTimeException(const char* message = nullptr);
  CZoRunTimeException(const CZoRunTimeException&) = default;
  CZoRunTimeException(CZoRunTimeException&&) = default;
  CZoRunTimeException& operator=(const CZoRunTimeException&) = default;
  CZoRunTimeException& operator=(CZoRunTimeException&&) = default;
  ~CZoRunTimeException() override;

  const char* what() const noexcept override;
};

/// A failure in an XML document. Catchable as `CZoException` and as `std::exception`.
class ZO_API CZoDOMDocException : public CZoException, public std::exception {
 public:
  /// \param message null or empty means "DOM document exception thrown".
  explicit CZoDOMDocException(const char* message = nullptr);
  CZoDOMDocException(const CZoDOMDocException&) = default;
  CZoDOMDocException(CZoDOMDocException&&) = default;
  CZoDOMDocException& operator=(const CZoDOMDocException&) = default;
  CZoDOMDocException& operator=(CZoDOMDocException&&) = default;
  ~CZoDOMDocException() override;

  const char* what() const noexcept override;

 private:
  std::runtime_error m_message;  // holds the text so that copying the exception cannot fail
};
