#include "platform/FileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>

#include "platform/HostPath.h"

namespace velmora {
namespace {

bool StatHost(const std::string& host, struct stat& st) { return ::stat(host.c_str(), &st) == 0; }

// `sync` forces the copy to the disk. A single copy's caller syncs it itself
// before renaming it; a copied tree's files are out of its caller's reach.
bool CopyHostFile(const std::string& from, const std::string& to, bool overwrite, bool sync) {
  int in = ::open(from.c_str(), O_RDONLY);
  if (in < 0) return false;
  int flags = O_WRONLY | O_CREAT | O_TRUNC | (overwrite ? 0 : O_EXCL);
  int out = ::open(to.c_str(), flags, 0644);
  if (out < 0) {
    ::close(in);
    return false;
  }
  char buffer[1 << 16];
  bool ok = true;
  for (;;) {
    ssize_t got = ::read(in, buffer, sizeof buffer);
    if (got == 0) break;
    if (got < 0) {
      ok = false;
      break;
    }
    for (ssize_t done = 0; done < got;) {
      ssize_t put = ::write(out, buffer + done, static_cast<size_t>(got - done));
      if (put <= 0) {
        ok = false;
        break;
      }
      done += put;
    }
    if (!ok) break;
  }
  ::close(in);
  if (ok && sync && ::fsync(out) != 0) ok = false;
  if (::close(out) != 0) ok = false;
  return ok;
}

bool CopyHostTree(const std::string& from, const std::string& to) {
  if (::mkdir(to.c_str(), 0755) != 0) return false;
  DIR* dir = ::opendir(from.c_str());
  if (!dir) return false;
  bool ok = true;
  while (dirent* entry = ::readdir(dir)) {
    std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    std::string source = from + "/" + name;
    std::string target = to + "/" + name;
    struct stat st;
    if (!StatHost(source, st)) {
      ok = false;
      break;
    }
    ok = S_ISDIR(st.st_mode) ? CopyHostTree(source, target) : CopyHostFile(source, target, false, true);
    if (!ok) break;
  }
  ::closedir(dir);
  return ok;
}

}  // namespace

std::FILE* OpenFile(const std::string& stored, const char* mode) {
  return std::fopen(HostPath(stored).c_str(), mode);
}

bool IsDirectory(const std::string& stored) {
  struct stat st;
  return StatHost(HostPath(stored), st) && S_ISDIR(st.st_mode);
}

bool FileExists(const std::string& stored) {
  struct stat st;
  return StatHost(HostPath(stored), st) && S_ISREG(st.st_mode);
}

bool IsDeviceOrPipe(const std::string& stored) {
  struct stat st;
  return StatHost(HostPath(stored), st) && !S_ISREG(st.st_mode) && !S_ISDIR(st.st_mode);
}

bool MakeDirectory(const std::string& stored) { return ::mkdir(HostPath(stored).c_str(), 0755) == 0; }

bool RemoveEmptyDirectory(const std::string& stored) { return ::rmdir(HostPath(stored).c_str()) == 0; }

bool RemoveFile(const std::string& stored) { return ::unlink(HostPath(stored).c_str()) == 0; }

bool MoveFileReplacing(const std::string& from, const std::string& to) {
  return ::rename(HostPath(from).c_str(), HostPath(to).c_str()) == 0;
}

bool CopyFileTo(const std::string& from, const std::string& to, bool overwrite) {
  return CopyHostFile(HostPath(from), HostPath(to), overwrite, false);
}

bool LinkFileTo(const std::string& from, const std::string& to) {
  return ::link(HostPath(from).c_str(), HostPath(to).c_str()) == 0;
}

bool CopyTree(const std::string& from, const std::string& to) {
  std::string source = HostPath(from);
  std::string target = HostPath(to);
  while (source.size() > 1 && source.back() == '/') source.pop_back();
  while (target.size() > 1 && target.back() == '/') target.pop_back();
  return CopyHostTree(source, target);
}

std::vector<cDirEntry> ListDirectory(const std::string& stored) {
  std::vector<cDirEntry> entries;
  std::string host = HostPath(stored);
  if (host.empty()) host = ".";
  DIR* dir = ::opendir(host.c_str());
  if (!dir) return entries;
  while (dirent* entry = ::readdir(dir)) {
    std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    struct stat st;
    bool isDir = StatHost(host + "/" + name, st) && S_ISDIR(st.st_mode);
    entries.push_back({name, isDir});
  }
  ::closedir(dir);
  return entries;
}

std::string FullHostPath(const std::string& stored) {
  std::string host = HostPath(stored);
  if (!host.empty() && host[0] == '/') return host;
  char cwd[PATH_MAX];
  if (!::getcwd(cwd, sizeof cwd)) return host;
  return host.empty() ? std::string(cwd) : std::string(cwd) + "/" + host;
}

long long FileSize(const std::string& stored) {
  struct stat st;
  if (!StatHost(HostPath(stored), st)) return -1;
  return static_cast<long long>(st.st_size);
}

cFileStamp FileStampOf(const std::string& stored) {
  struct stat st;
  if (!StatHost(HostPath(stored), st)) return {};
  return {static_cast<long long>(st.st_mtim.tv_sec) * 1000000000LL + st.st_mtim.tv_nsec, static_cast<long long>(st.st_size)};
}

}  // namespace velmora
