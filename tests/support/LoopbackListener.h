// Something on the network that must not be called.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <string>
#include <system_error>

namespace testsupport {

/// Listens on a free port of this machine as long as it lives.
class CLoopbackListener {
 public:
  CLoopbackListener() : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    // The socket interface asks for addresses of every family as one general type.
    auto* general = reinterpret_cast<sockaddr*>(&address);
    if (bind(m_socket, general, size) != 0 || listen(m_socket, 8) != 0 || getsockname(m_socket, general, &size) != 0) {
      throw std::system_error(errno, std::generic_category(), "listening");
    }
    m_port = ntohs(address.sin_port);
  }
  CLoopbackListener(const CLoopbackListener&) = delete;
  CLoopbackListener& operator=(const CLoopbackListener&) = delete;
  ~CLoopbackListener() { close(m_socket); }

  /// Its address, such as "http://127.0.0.1:40000".
  std::string Url(const std::string& scheme) const { return scheme + "://127.0.0.1:" + std::to_string(m_port); }

  /// Whether anyone has tried to connect.
  bool WasCalled() const {
    pollfd waiting{m_socket, POLLIN, 0};
    return poll(&waiting, 1, 0) != 0;
  }

 private:
  int m_socket;
  std::uint16_t m_port = 0;
};

}  // namespace testsupport
