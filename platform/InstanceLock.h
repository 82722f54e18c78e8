#pragma once
#include <string>

namespace velmora {

// A lock that one process of the user holds at a time, named by a UTF-8
// name: the guard against running the editor twice. It is a locked file in
// the user's runtime folder (or /tmp, with the user id in its name), so the
// lock goes with its process however that ends.
class cInstanceLock {
 public:
  explicit cInstanceLock(const std::string& utf8Name);
  ~cInstanceLock();
  cInstanceLock(const cInstanceLock&) = delete;
  cInstanceLock& operator=(const cInstanceLock&) = delete;

  // Another process (or another lock object) holds the name. A lock file
  // that can't be made at all tells nothing, and counts as free.
  bool HeldElsewhere() const { return m_bHeldElsewhere; }
  void Release();
  const std::string& FilePath() const { return m_strPath; }

 private:
  std::string m_strPath;
  int m_fd = -1;
  bool m_bHeldElsewhere = false;
};

}  // namespace velmora
