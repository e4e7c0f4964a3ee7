// A server that nobody may call.
#pragma once

#ifdef _WIN32
#include <winsock2.h>
#else
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#endif

#include <cstdint>
#include <string>
#include <system_error>

namespace testsupport {

/// What each system's sockets name differently.
namespace sockets {

#ifdef _WIN32
using Handle = SOCKET;
using AddressSize = int;

/// While it lives, this process may use sockets.
class CUse {
 public:
  CUse() {
    WSADATA ignored;
    if (const int error = WSAStartup(MAKEWORD(2, 2), &ignored); error != 0) {
      throw std::system_error(error, std::system_category(), "sockets");
    }
  }
  CUse(const CUse&) = delete;
  CUse& operator=(const CUse&) = delete;
  ~CUse() { WSACleanup(); }
};

inline Handle Open() { return socket(AF_INET, SOCK_STREAM, 0); }
inline void Close(Handle handle) { closesocket(handle); }
inline std::system_error LastError(const char* what) { return {WSAGetLastError(), std::system_category(), what}; }
inline int Poll(WSAPOLLFD& waiting) { return WSAPoll(&waiting, 1, 0); }
using Polled = WSAPOLLFD;
#else
using Handle = int;
using AddressSize = socklen_t;
struct CUse {};

inline Handle Open() { return socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0); }
inline void Close(Handle handle) { close(handle); }
inline std::system_error LastError(const char* what) { return {errno, std::generic_category(), what}; }
inline int Poll(pollfd& waiting) { return poll(&waiting, 1, 0); }
using Polled = pollfd;
#endif

}  // namespace sockets

/// Listens on a free port of this machine while it lives.
class CLoopbackListener {
 public:
  CLoopbackListener() : m_socket(sockets::Open()) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    sockets::AddressSize size = sizeof address;
    // The socket interface takes addresses of every family as one generic type.
    auto* general = reinterpret_cast<sockaddr*>(&address);
    if (bind(m_socket, general, size) != 0 || listen(m_socket, 8) != 0 || getsockname(m_socket, general, &size) != 0) {
      throw sockets::LastError("listening");
    }
    m_port = ntohs(address.sin_port);
  }
  CLoopbackListener(const CLoopbackListener&) = delete;
  CLoopbackListener& operator=(const CLoopbackListener&) = delete;
  ~CLoopbackListener() { sockets::Close(m_socket); }

  /// Its address, such as "http://127.0.0.1:40000".
  std::string Url(const std::string& scheme) const { return scheme + "://127.0.0.1:" + std::to_string(m_port); }

  /// Whether anyone has tried to connect.
  bool WasCalled() const {
    sockets::Polled waiting{m_socket, POLLIN, 0};
    return sockets::Poll(waiting) != 0;
  }

 private:
  [[maybe_unused]] sockets::CUse m_use;
  sockets::Handle m_socket;
  std::uint16_t m_port = 0;
};

}  // namespace testsupport
