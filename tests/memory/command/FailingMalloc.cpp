// Replaces the C library's malloc in a program that is started with LD_PRELOAD. Environment variables say what fails:
// VIF_TEST_FAILS_AT is the number of an allocation, counted from 1 at the start of `main`, because no program can be
// loaded without memory for its libraries; if VIF_TEST_FAILS_ON is set, all later allocations fail too. VIF_TEST_COUNT
// names a file that receives the number of allocations at the end.
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" {
// The GNU C library's own.
void* __libc_malloc(std::size_t size);                     // NOLINT(bugprone-reserved-identifier)
void* __libc_calloc(std::size_t count, std::size_t size);  // NOLINT(bugprone-reserved-identifier)
void* __libc_realloc(void* memory, std::size_t size);      // NOLINT(bugprone-reserved-identifier)
}

namespace {

std::atomic<bool> g_isArmed = false;
std::atomic<unsigned long> g_count = 0;
unsigned long g_failsAt = 0;
bool g_failsOn = false;
bool g_isSpared = false;

/// The address range of libxml2's code, whose own allocations do not fail: how libxml2 handles that is not tested here.
std::uintptr_t g_xmlBegin = 0;
std::uintptr_t g_xmlEnd = 0;

int FindLibXml2(dl_phdr_info* library, std::size_t, void*) {
  if (std::string_view(library->dlpi_name).find("/libxml2.so") == std::string_view::npos) return 0;
  g_xmlBegin = library->dlpi_addr;
  for (int i = 0; i < library->dlpi_phnum; ++i) {
    const auto& part = library->dlpi_phdr[i];
    if (part.p_type == PT_LOAD) g_xmlEnd = std::max(g_xmlEnd, library->dlpi_addr + part.p_vaddr + part.p_memsz);
  }
  return 1;
}

/// \param caller the return address of the call
bool MustFail(const void* caller) {
  if (!g_isArmed || g_isSpared) return false;
  const auto address = reinterpret_cast<std::uintptr_t>(caller);
  if (address >= g_xmlBegin && address < g_xmlEnd) return false;
  const unsigned long number = ++g_count;
  const bool mustFail = number == g_failsAt || (g_failsOn && g_failsAt != 0 && number > g_failsAt);
  if (mustFail) errno = ENOMEM;
  return mustFail;
}

using Main = int (*)(int, char**, char**);
Main g_main = nullptr;

int ArmAndRun(int argc, char** argv, char** environment) {
  const char* number = std::getenv("VIF_TEST_FAILS_AT");
  g_failsAt = number != nullptr ? std::strtoul(number, nullptr, 10) : 0;
  g_failsOn = std::getenv("VIF_TEST_FAILS_ON") != nullptr;
  dl_iterate_phdr(FindLibXml2, nullptr);
  g_isArmed = true;
  return g_main(argc, argv, environment);
}

__attribute__((destructor)) void Report() {
  g_isArmed = false;
  const char* name = std::getenv("VIF_TEST_COUNT");
  if (name == nullptr) return;
  char digits[24];
  const char* end = std::to_chars(digits, digits + sizeof(digits), g_count.load()).ptr;
  const int file = open(name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (file < 0 || write(file, digits, static_cast<std::size_t>(end - digits)) < 0) _exit(99);
  close(file);
}

}  // namespace

#define FRONT __attribute__((visibility("default")))

extern "C" FRONT void* malloc(std::size_t size) noexcept {
  return MustFail(__builtin_return_address(0)) ? nullptr : __libc_malloc(size);
}
extern "C" FRONT void* calloc(std::size_t count, std::size_t size) noexcept {
  return MustFail(__builtin_return_address(0)) ? nullptr : __libc_calloc(count, size);
}
extern "C" FRONT void* realloc(void* memory, std::size_t size) noexcept {
  return MustFail(__builtin_return_address(0)) ? nullptr : __libc_realloc(memory, size);
}

namespace {

/// Calls the real function of that name, with no allocation failing.
template <typename Result, typename... Arguments>
Result CallSpared(const char* name, Arguments... arguments) {
  const auto real = reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, name));
  struct Spared {
    Spared() { g_isSpared = true; }
    ~Spared() { g_isSpared = false; }
  } spared;
  return real(arguments...);
}

}  // namespace

// The GNU C library aborts the process when it has no memory to register a thread-local object's destructor.
// NOLINTNEXTLINE(bugprone-reserved-identifier): it is the C library's name
extern "C" FRONT int __cxa_thread_atexit_impl(void (*destroy)(void*), void* object, void* library) {
  return CallSpared<int>("__cxa_thread_atexit_impl", destroy, object, library);
}

/// The entry point of a program.
// NOLINTNEXTLINE(bugprone-reserved-identifier): it is the C library's name
extern "C" FRONT int __libc_start_main(Main main, int argc, char** argv, void (*begin)(), void (*end)(),
                                       void (*endOfLoader)(), void* stack) {
  g_main = main;
  const auto real = reinterpret_cast<decltype(&__libc_start_main)>(dlsym(RTLD_NEXT, "__libc_start_main"));
  return real(ArmAndRun, argc, argv, begin, end, endOfLoader, stack);
}
