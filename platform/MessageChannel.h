#pragma once
#include <cstdint>
#include <string>

namespace velmora {

// The way a game program tells the editor something, standing where a
// window message to the editor's window class stood: one datagram to a
// local socket named after that class and the user. A message is a 32-bit
// little-endian identifier, optionally followed by data that the editor
// doesn't read.

// "Velmora_Editor.<uid>": what the editor listens on and a game sends to.
std::string EditorChannelName();

class cMessageReceiver {
 public:
  cMessageReceiver() = default;
  ~cMessageReceiver();
  cMessageReceiver(const cMessageReceiver&) = delete;
  cMessageReceiver& operator=(const cMessageReceiver&) = delete;

  // False when the name is taken (another editor of the same user listens
  // on it) or the socket can't be made.
  bool Open(const std::string& name);
  void Close();
  // Readable when a message waits; for an event loop to watch.
  int Fd() const { return m_fd; }
  // The next waiting message, without blocking. Messages too short to
  // hold an identifier and messages from other users are dropped.
  bool Receive(uint32_t& id);

 private:
  int m_fd = -1;
};

// False when nobody listens on `name` or the message can't be sent.
bool SendChannelMessage(const std::string& name, uint32_t id);

}  // namespace velmora
