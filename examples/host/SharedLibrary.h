// A library that is loaded while the program runs.
#pragma once

#include <stdexcept>
#include <string>

namespace host {

/// Why a library or a function in it cannot be had.
class CLibraryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A library, loaded as long as the object lives. Nothing that the library made may outlive it: neither objects, whose
/// code goes with it, nor pointers to its functions.
class CSharedLibrary {
 public:
  /// \param file a path, or a bare name, which the system's loader looks for where it looks for libraries
  /// \throws CLibraryError when it cannot be loaded
  explicit CSharedLibrary(const std::string& file);
  CSharedLibrary(const CSharedLibrary&) = delete;
  CSharedLibrary& operator=(const CSharedLibrary&) = delete;
  ~CSharedLibrary();

  /// A function that the library exports.
  /// \param name its name; only `extern "C"` functions have the plain one
  /// \throws CLibraryError when there is none
  template <typename Function>
  Function Find(const char* name) const {
    return reinterpret_cast<Function>(FindFunction(name));
  }

 private:
  using AnyFunction = void (*)();
  AnyFunction FindFunction(const char* name) const;

  std::string m_file;
  void* m_handle;
};

}  // namespace host
