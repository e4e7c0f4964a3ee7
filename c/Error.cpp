// Errors and statuses.
#include "Guard.h"
#include "Utf8.h"

#include <BaseUtilities/Exceptions.h>
#include <BaseUtilities/StringConvert.h>
#include <VIFInvalidFile.h>
#include <analysis/Check.h>
#include <msxml/ComPointer.h>

#include <filesystem>
#include <iterator>
#include <new>
#include <regex>
#include <utility>
#include <vector>

/// Not a handle that is checked: it must work even when there is no memory.
struct vif_error {
  /// \param lastingMessage is not copied
  vif_error(vif_status why, const char* lastingMessage) noexcept : status(why), message(lastingMessage) {}

  vif_error(vif_status why, std::string ownMessage, std::vector<DOMDocProblem> given)
      : status(why), text(std::move(ownMessage)), message(text.c_str()), reasons(std::move(given)) {}

  const vif_status status;
  const std::string text;
  const char* const message;
  const std::vector<DOMDocProblem> reasons;
};

namespace vifc {

namespace {

/// Stands for every error about memory, so that making one does not need any. Never changed or destroyed.
vif_error& OutOfMemory() noexcept {
  alignas(vif_error) static unsigned char place[sizeof(vif_error)];
  static vif_error& error = *new (place) vif_error(VIF_ERROR_MEMORY, vif_status_text(VIF_ERROR_MEMORY));
  return error;
}

constexpr const char* kStatusTexts[] = {
    "no error",
    "an argument is NULL or out of range",
    "a handle has been freed or is of another kind",
    "memory ran out",
    "there is no such file",
    "the file cannot be read",
    "the name of the file ends neither in .txt nor in .xml",
    "the file is not a valid Vendor Info File",
    "a schema cannot be used",
    "the pattern is not a regular expression, or is too complex",
    "nothing of that name was found",
    "more than one field was found",
    "the caller cancelled the work",
    "a part of the system failed",
    "a defect of the library",
};

std::string MessageOf(const _com_error& error) {
  const wchar_t* text = error.ErrorMessage();
  return text != nullptr ? Utf16ToUtf8(text) : "COM error " + std::to_string(error.Error());
}

/// \throws std::bad_alloc
vif_status Make(vif_error** error, vif_status status, std::string message, std::vector<DOMDocProblem> reasons = {}) {
  if (error == nullptr) return status;
  MakeUtf8(message);
  for (DOMDocProblem& reason : reasons) {
    MakeUtf8(reason.element);
    MakeUtf8(reason.reason);
  }
  *error = new vif_error(status, std::move(message), std::move(reasons));
  return status;
}

/// \throws std::bad_alloc
vif_status FailWithMemory(vif_error** error) {
  try {
    throw;
  } catch (const CFailure& failure) {
    return Make(error, failure.Status(), failure.what());
  } catch (const CVIFInvalidFile& failure) {
    return Make(error, VIF_ERROR_INVALID, failure.what(), failure.Problems());
  } catch (const CZoDOMDocException& failure) {
    return Make(error, VIF_ERROR_SCHEMA, failure.what());
  } catch (const std::regex_error& failure) {
    return Make(error, VIF_ERROR_PATTERN, failure.what());
  } catch (const std::filesystem::filesystem_error& failure) {
    return Make(error, VIF_ERROR_FILE, failure.what());
  } catch (const _com_error& failure) {
    if (failure.Error() == zocom::kOutOfMemory) throw std::bad_alloc();
    return Make(error, VIF_ERROR_SYSTEM, MessageOf(failure));
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& failure) {
    return Make(error, VIF_ERROR_INTERNAL, failure.what());
  } catch (...) {
    return Make(error, VIF_ERROR_INTERNAL, vif_status_text(VIF_ERROR_INTERNAL));
  }
}

}  // namespace

vif_status Fail(vif_error** error) noexcept {
  try {
    return FailWithMemory(error);
  } catch (...) {  // there was no memory to begin with, or there is none to describe the failure
    if (error != nullptr) *error = &OutOfMemory();
    return VIF_ERROR_MEMORY;
  }
}

void CProgress::operator()(std::uint64_t done, std::uint64_t total) const {
  if (m_progress.function == nullptr || m_progress.function(m_progress.user, done, total) == 0) return;
  throw CFailure(VIF_ERROR_CANCELLED, vif_status_text(VIF_ERROR_CANCELLED));
}

}  // namespace vifc

const char* vif_status_text(vif_status status) {
  constexpr auto count = static_cast<vif_status>(std::size(vifc::kStatusTexts));
  return status >= 0 && status < count ? vifc::kStatusTexts[status] : "unknown status";
}

vif_status vif_error_status(const vif_error* error) { return error != nullptr ? error->status : VIF_OK; }

const char* vif_error_message(const vif_error* error) { return error != nullptr ? error->message : ""; }

size_t vif_error_reason_count(const vif_error* error) { return error != nullptr ? error->reasons.size() : 0; }

vif_status vif_error_reason(const vif_error* error, size_t position, vif_reason* reason) {
  if (position >= vif_error_reason_count(error)) return VIF_ERROR_ARGUMENT;
  const DOMDocProblem& problem = error->reasons[position];
  return vifc::HandOut(vif_reason{0, problem.line, problem.column, problem.element.c_str(), problem.reason.c_str()},
                       reason);
}

void vif_error_free(vif_error* error) {
  if (error != &vifc::OutOfMemory()) delete error;
}
