#include "BaseUtilities/Exceptions.h"

namespace {

const char* TextOr(const char* message, const char* defaultMessage) {
  return message != nullptr && *message != '\0' ? message : defaultMessage;
}

}  // namespace

CZoException::~CZoException() = default;

CZoRunTimeException::CZoRunTimeException(const char* message)
    : std::runtime_error(  // NOLINT(bugprone-throw-keyword-missing): it is the base
          TextOr(message, "Run time exception thrown")) {}

CZoRunTimeException::~CZoRunTimeException() = default;

const char* CZoRunTimeException::what() const noexcept { return std::runtime_error::what(); }

CZoDOMDocException::CZoDOMDocException(const char* message)
    : m_message(  // NOLINT(bugprone-throw-keyword-missing): it only holds the text
          TextOr(message, "DOM document exception thrown")) {}

CZoDOMDocException::~CZoDOMDocException() = default;

const char* CZoDOMDocException::what() const noexcept { return m_message.what(); }
