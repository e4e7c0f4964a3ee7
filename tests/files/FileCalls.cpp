#include "FileCalls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>

namespace testsupport {

// The GNU C library has separate names for the functions and types for large files.
#ifdef __GLIBC__
using Status = struct stat64;
constexpr const char* kStatusOfDescriptor = "fstat64";
#else
using Status = struct stat;
constexpr const char* kStatusOfDescriptor = "fstat";
#endif

struct CFileCalls::Watch {
  Watch(std::string name, FileScript decisions) : file(std::move(name)), script(std::move(decisions)) {}

  std::string file;
  FileScript script;
  std::array<std::size_t, 4> counts = {};
  // What was last opened by the name.
  bool isOpened = false;
  decltype(Status::st_dev) device = 0;
  decltype(Status::st_ino) inode = 0;
  std::size_t position = 0;
};

namespace {

using Kind = FileCall::Kind;

/// The next function of that name, which the one here overrides.
template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// The watch of the living object. Calls happen before anything in the program is initialised, and after its end.
CFileCalls::Watch* g_watch = nullptr;

thread_local bool t_isPassing = false;  // in the script's own calls and in nested calls

int RealStatus(int descriptor, Status* status) {
  static auto* const real = Real<int(int, Status*)>(kStatusOfDescriptor);
  return real(descriptor, status);
}

bool IsWatched(const char* name) {
  return g_watch != nullptr && !t_isPassing && name != nullptr && g_watch->file == name;
}

bool IsWatched(int descriptor) {
  if (g_watch == nullptr || t_isPassing || !g_watch->isOpened) return false;
  Status status = {};
  return RealStatus(descriptor, &status) == 0 && status.st_dev == g_watch->device && status.st_ino == g_watch->inode;
}

FileCallFate Decide(Kind kind) {
  t_isPassing = true;
  const int former = errno;
  const std::size_t number = ++g_watch->counts[static_cast<std::size_t>(kind)];
  const FileCallFate fate = g_watch->script({kind, number, g_watch->position});
  errno = fate.error != 0 ? fate.error : former;
  t_isPassing = false;
  return fate;
}

/// Remembers what has been opened by the name.
void TakeOpened(int descriptor) {
  Status status = {};
  if (RealStatus(descriptor, &status) != 0) return;
  g_watch->isOpened = true;
  g_watch->device = status.st_dev;
  g_watch->inode = status.st_ino;
  g_watch->position = 0;
}

template <typename... Mode>
int Open(const char* function, const char* name, int flags, Mode... mode) {
  auto* const real = Real<int(const char*, int, ...)>(function);
  const bool isWatched = IsWatched(name);
  if (isWatched && Decide(Kind::Open).error != 0) return -1;
  const int descriptor = real(name, flags, mode...);
  if (isWatched && descriptor >= 0) TakeOpened(descriptor);
  return descriptor;
}

int Open(const char* function, const char* name, int flags, va_list arguments) {
  if ((flags & O_CREAT) == 0) return Open(function, name, flags);
  return Open(function, name, flags, va_arg(arguments, int));
}

std::FILE* OpenStream(const char* function, const char* name, const char* mode) {
  auto* const real = Real<std::FILE*(const char*, const char*)>(function);
  const bool isWatched = IsWatched(name);
  if (isWatched && Decide(Kind::Open).error != 0) return nullptr;
  const bool wasPassing = std::exchange(t_isPassing, true);  // it may call the functions here
  std::FILE* file = real(name, mode);
  t_isPassing = wasPassing;
  if (isWatched && file != nullptr) TakeOpened(fileno(file));
  return file;
}

template <typename AnyStatus>
int StatusOfName(const char* function, const char* name, AnyStatus* status) {
  auto* const real = Real<int(const char*, AnyStatus*)>(function);
  return IsWatched(name) && Decide(Kind::Stat).error != 0 ? -1 : real(name, status);
}

template <typename AnyStatus>
int StatusOfDescriptor(const char* function, int descriptor, AnyStatus* status) {
  auto* const real = Real<int(int, AnyStatus*)>(function);
  return IsWatched(descriptor) && Decide(Kind::Status).error != 0 ? -1 : real(descriptor, status);
}

}  // namespace

CFileCalls::CFileCalls(const std::filesystem::path& file, FileScript script)
    : m_watch(std::make_unique<Watch>(file.native(), std::move(script))) {
  g_watch = m_watch.get();
}

CFileCalls::~CFileCalls() { g_watch = nullptr; }

std::size_t CFileCalls::Count(FileCall::Kind kind) const { return m_watch->counts[static_cast<std::size_t>(kind)]; }

}  // namespace testsupport

using testsupport::Decide;
using testsupport::IsWatched;
using testsupport::Kind;
using testsupport::Real;

// These override the C library's functions in the program and all its libraries.
#define FRONT __attribute__((visibility("default")))

extern "C" FRONT int open(const char* name, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const int descriptor = testsupport::Open("open", name, flags, arguments);
  va_end(arguments);
  return descriptor;
}

extern "C" FRONT std::FILE* fopen(const char* name, const char* mode) {
  return testsupport::OpenStream("fopen", name, mode);
}

extern "C" FRONT int stat(const char* name, struct stat* status) noexcept {
  return testsupport::StatusOfName("stat", name, status);
}

extern "C" FRONT int fstat(int descriptor, struct stat* status) noexcept {
  return testsupport::StatusOfDescriptor("fstat", descriptor, status);
}

extern "C" FRONT ssize_t read(int descriptor, void* buffer, std::size_t size) {
  static auto* const real = Real<ssize_t(int, void*, std::size_t)>("read");
  if (!IsWatched(descriptor)) return real(descriptor, buffer, size);
  const testsupport::FileCallFate fate = Decide(Kind::Read);
  if (fate.error != 0) return -1;
  const ssize_t count = real(descriptor, buffer, std::min(size, fate.mostBytes));
  if (count > 0) testsupport::g_watch->position += static_cast<std::size_t>(count);
  return count;
}

#ifdef __GLIBC__
extern "C" FRONT int open64(const char* name, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const int descriptor = testsupport::Open("open64", name, flags, arguments);
  va_end(arguments);
  return descriptor;
}

extern "C" FRONT std::FILE* fopen64(const char* name, const char* mode) {
  return testsupport::OpenStream("fopen64", name, mode);
}

extern "C" FRONT int stat64(const char* name, struct stat64* status) noexcept {
  return testsupport::StatusOfName("stat64", name, status);
}

extern "C" FRONT int fstat64(int descriptor, struct stat64* status) noexcept {
  return testsupport::StatusOfDescriptor("fstat64", descriptor, status);
}
#endif
