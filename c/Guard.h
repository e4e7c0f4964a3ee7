// Turns exceptions into statuses.
#pragma once

#include "Handle.h"
#include "vif.h"

#include <BaseUtilities/SystemText.h>
#include <msxml/ComApartment.h>

#include <cstddef>
#include <cstring>
#include <exception>
#include <filesystem>
#include <string>
#include <system_error>

namespace vifc {

/// A failure with its status.
class CFailure : public std::exception {
 public:
  CFailure(vif_status status, std::string message) : m_status(status), m_message(std::move(message)) {}

  vif_status Status() const noexcept { return m_status; }
  const char* what() const noexcept override { return m_message.c_str(); }

 private:
  vif_status m_status;
  std::string m_message;
};

/// The status of the exception that is being handled. Makes an error of it, unless `error` is null.
vif_status Fail(vif_error** error) noexcept;

/// Calls the body of a function. What it throws becomes the function's status and error.
template <typename Body>
vif_status Guarded(vif_error** error, const Body& body) noexcept {
  if (error != nullptr) *error = nullptr;
  try {
    body();
    return VIF_OK;
  } catch (...) {
    return Fail(error);
  }
}

/// What a function needs that reads files or names them.
class CFileScope {
  CUtf8Text m_utf8;
  CComApartment m_com;
};

/// Whether there is no file of that name.
inline bool IsMissing(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found;
}

/// \throws CFailure with VIF_ERROR_ARGUMENT
inline void Require(bool condition, const char* what) {
  if (!condition) throw CFailure(VIF_ERROR_ARGUMENT, what);
}

/// \throws CFailure when the handle is null, freed or of another kind
template <typename Handle>
Handle& Usable(Handle* handle) {
  Require(handle != nullptr, "a handle is NULL");
  if (!IsUsable(handle)) throw CFailure(VIF_ERROR_HANDLE, vif_status_text(VIF_ERROR_HANDLE));
  return *handle;
}

/// The status of a function that has no error output and finds a handle unusable.
template <typename Handle>
vif_status StatusOf(const Handle* handle) noexcept {
  if (handle == nullptr) return VIF_ERROR_ARGUMENT;
  return IsUsable(handle) ? VIF_OK : VIF_ERROR_HANDLE;
}

/// The size that a structure had in the first version that had it. To be specialised when it gets more members.
template <typename Structure>
inline constexpr std::size_t kFirstSize = sizeof(Structure);

/// The options that a caller gives: the members that both know, the rest as in a new structure. Null means none are
/// given.
/// \throws CFailure when the size is smaller than that of the first version
template <typename Structure>
Structure TakeIn(const Structure* given) {
  Structure structure = {};
  if (given == nullptr) return structure;
  Require(given->size >= kFirstSize<Structure>, "the size of a structure is too small");
  std::memcpy(&structure, given, given->size < sizeof(structure) ? given->size : sizeof(structure));
  return structure;
}

/// Fills in a caller's structure as far as it reaches. Members that only the caller knows become 0.
template <typename Structure>
vif_status HandOut(Structure filled, Structure* wanted) noexcept {
  if (wanted == nullptr || wanted->size < kFirstSize<Structure>) return VIF_ERROR_ARGUMENT;
  const std::size_t size = wanted->size;
  if (size > sizeof(filled)) std::memset(static_cast<void*>(wanted), 0, size);
  filled.size = size;
  std::memcpy(wanted, &filled, size < sizeof(filled) ? size : sizeof(filled));
  return VIF_OK;
}

/// Tells a caller of the progress.
/// \throws CFailure with VIF_ERROR_CANCELLED when the caller asks for that
class CProgress {
 public:
  explicit CProgress(const vif_progress* given) : m_progress(TakeIn(given)) {}

  bool IsWanted() const { return m_progress.function != nullptr; }

  void operator()(std::uint64_t done, std::uint64_t total) const;

 private:
  vif_progress m_progress;
};

}  // namespace vifc
