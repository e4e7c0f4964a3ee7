// What calls end in, kept without taking memory, so that it can be looked at when there is memory again.
#pragma once

#include <exception>
#include <new>
#include <optional>
#include <utility>

namespace testsupport {

/// A call's result, or the exception that it ends with.
template <typename Result>
class COutcome {
 public:
  /// \throws std::bad_alloc when the call does
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

  /// The result, or the exception once more.
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
