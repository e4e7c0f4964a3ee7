// Outcomes of calls, kept without allocating so that they can be examined once there is memory again.
#pragma once

#include <exception>
#include <new>
#include <optional>
#include <utility>

namespace testsupport {

/// A call's result, or the exception that it throws.
template <typename Result>
class COutcome {
 public:
  /// \throws std::bad_alloc if the call does
  template <typename Call>
  explicit COutcome(const Call& call) {
    try {
      m_result.emplace(call());
    } catch (const std::bad_alloc&) {
      throw;
    } catch (...) {
      m_exception = std::current_exception();
    }
  }

  /// Returns the result, or rethrows the exception.
  const Result& Get() const {
    if (m_exception != nullptr) std::rethrow_exception(m_exception);
    return *m_result;
  }

 private:
  std::optional<Result> m_result;
  std::exception_ptr m_exception;
};

template <typename Call>
COutcome(const Call&) -> COutcome<decltype(std::declval<const Call&>()())>;

}  // namespace testsupport
