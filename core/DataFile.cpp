#include "core/DataFile.h"

#include <sys/stat.h>

#include "platform/FileSystem.h"

namespace velmora {
namespace {

constexpr size_t kStreamBuffer = 1 << 16;

}  // namespace

std::unique_ptr<cDataFile> cDataFile::OpenForRead(const std::string& stored) {
  std::FILE* file = OpenFile(stored, "rb");
  if (!file) return nullptr;
  struct stat st;
  if (::fstat(fileno(file), &st) != 0 || !S_ISREG(st.st_mode)) {
    std::fclose(file);
    return nullptr;
  }
  std::setvbuf(file, nullptr, _IOFBF, kStreamBuffer);
  return std::unique_ptr<cDataFile>(new cDataFile(file, static_cast<uint64_t>(st.st_size)));
}

std::unique_ptr<cDataFile> cDataFile::OpenForWrite(const std::string& stored) {
  std::FILE* file = OpenFile(stored, "wb");
  if (!file) return nullptr;
  std::setvbuf(file, nullptr, _IOFBF, kStreamBuffer);
  return std::unique_ptr<cDataFile>(new cDataFile(file, 0));
}

std::unique_ptr<cDataFile> cDataFile::FromMemory(const void* data, size_t size) {
  static char empty = 0;
  std::FILE* file = ::fmemopen(size ? const_cast<void*>(data) : &empty, size ? size : 1, "rb");
  if (!file) return nullptr;
  return std::unique_ptr<cDataFile>(new cDataFile(file, size));
}

cDataFile::~cDataFile() { Close(); }

bool cDataFile::Read(void* target, size_t bytes) {
  if (m_bEnded || bytes > Remaining()) {
    m_bEnded = true;
    return false;
  }
  if (bytes == 0) return true;
  if (fread_unlocked(target, 1, bytes, m_pFile) != bytes) {
    m_bEnded = true;
    return false;
  }
  m_nPos += bytes;
  return true;
}

bool cDataFile::Skip(size_t bytes) {
  if (m_bEnded || bytes > Remaining()) {
    m_bEnded = true;
    return false;
  }
  if (std::fseek(m_pFile, static_cast<long>(bytes), SEEK_CUR) != 0) {
    m_bEnded = true;
    return false;
  }
  m_nPos += bytes;
  return true;
}

void cDataFile::Write(const void* source, size_t bytes) {
  if (bytes == 0 || m_bWriteFailed) return;
  if (fwrite_unlocked(source, 1, bytes, m_pFile) != bytes) m_bWriteFailed = true;
}

bool cDataFile::Close() {
  if (!m_pFile) return !m_bWriteFailed;
  if (std::fclose(m_pFile) != 0) m_bWriteFailed = true;
  m_pFile = nullptr;
  return !m_bWriteFailed;
}

}  // namespace velmora
