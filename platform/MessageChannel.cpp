#include "platform/MessageChannel.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

#include "platform/ByteOrder.h"

namespace velmora {
namespace {

// An abstract socket: no file to clean up after a crash, gone with the process.
bool AbstractAddress(const std::string& name, sockaddr_un& address, socklen_t& length) {
  std::memset(&address, 0, sizeof address);
  address.sun_family = AF_UNIX;
  if (name.empty() || name.size() + 1 > sizeof address.sun_path) return false;
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  return true;
}

int MakeSocket() { return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

bool SentBySameUser(msghdr& header) {
  for (cmsghdr* part = CMSG_FIRSTHDR(&header); part; part = CMSG_NXTHDR(&header, part)) {
    if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_CREDENTIALS) continue;
    ucred credentials;
    std::memcpy(&credentials, CMSG_DATA(part), sizeof credentials);
    return credentials.uid == ::getuid();
  }
  return false;
}

}  // namespace

std::string EditorChannelName() { return "Velmora_Editor." + std::to_string(::getuid()); }

cMessageReceiver::~cMessageReceiver() { Close(); }

void cMessageReceiver::Close() {
  if (m_fd >= 0) ::close(m_fd);
  m_fd = -1;
}

bool cMessageReceiver::Open(const std::string& name) {
  Close();
  sockaddr_un address;
  socklen_t length = 0;
  if (!AbstractAddress(name, address, length)) return false;
  m_fd = MakeSocket();
  if (m_fd < 0) return false;
  const int on = 1;
  if (::setsockopt(m_fd, SOL_SOCKET, SO_PASSCRED, &on, sizeof on) != 0 ||
      ::bind(m_fd, reinterpret_cast<sockaddr*>(&address), length) != 0) {
    Close();
    return false;
  }
  return true;
}

bool cMessageReceiver::Receive(uint32_t& id) {
  while (m_fd >= 0) {
    uint8_t data[4];
    iovec part{data, sizeof data};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(ucred))];
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    header.msg_control = control;
    header.msg_controllen = sizeof control;
    // MSG_TRUNC gives the whole length: a message carrying data after its
    // identifier is read for its identifier and the rest is dropped.
    const ssize_t got = ::recvmsg(m_fd, &header, MSG_DONTWAIT | MSG_TRUNC);
    if (got < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    if (got < static_cast<ssize_t>(sizeof data) || !SentBySameUser(header)) continue;
    id = ReadLittle(data, sizeof data);
    return true;
  }
  return false;
}

bool SendChannelMessage(const std::string& name, uint32_t id) {
  sockaddr_un address;
  socklen_t length = 0;
  if (!AbstractAddress(name, address, length)) return false;
  const int fd = MakeSocket();
  if (fd < 0) return false;
  uint8_t data[4];
  StoreLittle(data, id, sizeof data);
  const ssize_t sent = ::sendto(fd, data, sizeof data, 0, reinterpret_cast<sockaddr*>(&address), length);
  ::close(fd);
  return sent == static_cast<ssize_t>(sizeof data);
}

}  // namespace velmora
