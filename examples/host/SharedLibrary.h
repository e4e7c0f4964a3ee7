// A library that is loaded at run time.
#pragma once

#include <stdexcept>
#include <string>

namespace host {

/// Says why a library or a function in it cannot be used.
class CLibraryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A library that is loaded while the object lives. Nothing from the library may outlive it: neither its objects, whose
/// code is unloaded with it, nor pointers to its functions.
class CSharedLibrary {
 public:
  /// \param file a path, or a bare name, for which the system's loader searches its usual places
  /// \throws CLibraryError if it cannot be loaded
  explicit CSharedLibrary(const std::string& file);
  CSharedLibrary(const CSharedLibrary&) = delete;
  CSharedLibrary& operator=(const CSharedLibrary&) = delete;
  ~CSharedLibrary();

  /// A function that the library exports.
  /// \param name its name, which is the plain one only for `extern "C"` functions
  /// \throws CLibraryError if there is none
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
