#include "core/DataFile.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>

#include "platform/FileSystem.h"

namespace velmora {

std::unique_ptr<cDataFile> cDataFile::OpenForRead(const std::string& stored) {
  std::FILE* file = OpenFile(stored, "rb");
  if (!file) return nullptr;
  struct stat st;
  if (::fstat(fileno(file), &st) != 0 || !S_ISREG(st.st_mode)) {
    std::fclose(file);
    return nullptr;
  }
  std::setvbuf(file, nullptr, _IONBF, 0);
  return std::unique_ptr<cDataFile>(new cDataFile(file, static_cast<uint64_t>(st.st_size)));
}

std::unique_ptr<cDataFile> cDataFile::OpenForWrite(const std::string& stored) {
  std::FILE* file = OpenFile(stored, "wb");
  if (!file) return nullptr;
  std::setvbuf(file, nullptr, _IONBF, 0);
  std::unique_ptr<cDataFile> data(new cDataFile(file, 0));
  data->m_bWriting = true;
  return data;
}

std::unique_ptr<cDataFile> cDataFile::FromMemory(const void* data, size_t size) {
  static char empty = 0;
  std::FILE* file = ::fmemopen(size ? const_cast<void*>(data) : &empty, size ? size : 1, "rb");
  if (!file) return nullptr;
  return std::unique_ptr<cDataFile>(new cDataFile(file, size));
}

cDataFile::~cDataFile() { Close(); }

bool cDataFile::Refill() {
  const size_t wanted = static_cast<size_t>(std::min<uint64_t>(m_buffer.size(), Remaining()));
  m_nBufPos = 0;
  m_nBufEnd = fread_unlocked(m_buffer.data(), 1, wanted, m_pFile);
  return m_nBufEnd > 0;
}

bool cDataFile::ReadThroughBuffer(void* target, size_t bytes) {
  if (m_bEnded || bytes > Remaining()) {
    m_bEnded = true;
    return false;
  }
  char* out = static_cast<char*>(target);
  size_t left = bytes;
  while (left > 0) {
    if (m_nBufPos == m_nBufEnd && !Refill()) {
      m_bEnded = true;
      return false;
    }
    const size_t piece = std::min(left, m_nBufEnd - m_nBufPos);
    std::memcpy(out, m_buffer.data() + m_nBufPos, piece);
    m_nBufPos += piece;
    out += piece;
    left -= piece;
  }
  m_nPos += bytes;
  return true;
}

const char* cDataFile::PeekAfterRefill(size_t bytes) {
  if (m_bEnded || bytes > Remaining() || bytes > kStreamBuffer) return nullptr;
  // Keep what is buffered and fill the rest of the buffer behind it.
  const size_t kept = m_nBufEnd - m_nBufPos;
  std::memmove(m_buffer.data(), m_buffer.data() + m_nBufPos, kept);
  const size_t wanted = static_cast<size_t>(std::min<uint64_t>(m_buffer.size() - kept, Remaining() - kept));
  m_nBufPos = 0;
  m_nBufEnd = kept + fread_unlocked(m_buffer.data() + kept, 1, wanted, m_pFile);
  if (bytes > m_nBufEnd) return nullptr;
  return m_buffer.data();
}

char* cDataFile::WriteSpan(size_t bytes) {
  if (m_bWriteFailed || bytes > kStreamBuffer) return nullptr;
  if (bytes > m_buffer.size() - m_nBufEnd) Flush();
  char* span = m_buffer.data() + m_nBufEnd;
  m_nBufEnd += bytes;
  return span;
}

bool cDataFile::Skip(size_t bytes) {
  if (m_bEnded || bytes > Remaining()) {
    m_bEnded = true;
    return false;
  }
  const size_t buffered = m_nBufEnd - m_nBufPos;
  if (bytes <= buffered) {
    m_nBufPos += bytes;
  } else {
    if (std::fseek(m_pFile, static_cast<long>(bytes - buffered), SEEK_CUR) != 0) {
      m_bEnded = true;
      return false;
    }
    m_nBufPos = m_nBufEnd = 0;
  }
  m_nPos += bytes;
  return true;
}

void cDataFile::WriteThroughBuffer(const void* source, size_t bytes) {
  if (bytes == 0 || m_bWriteFailed) return;
  if (bytes > m_buffer.size() - m_nBufEnd) Flush();
  if (bytes >= m_buffer.size()) {
    if (fwrite_unlocked(source, 1, bytes, m_pFile) != bytes) m_bWriteFailed = true;
    return;
  }
  std::memcpy(m_buffer.data() + m_nBufEnd, source, bytes);
  m_nBufEnd += bytes;
}

void cDataFile::Flush() {
  if (m_nBufEnd > 0 && fwrite_unlocked(m_buffer.data(), 1, m_nBufEnd, m_pFile) != m_nBufEnd) m_bWriteFailed = true;
  m_nBufEnd = 0;
}

bool cDataFile::Close() {
  if (!m_pFile) return !m_bWriteFailed;
  if (m_bWriting) Flush();
  if (std::fclose(m_pFile) != 0) m_bWriteFailed = true;
  m_pFile = nullptr;
  return !m_bWriteFailed;
}

}  // namespace velmora
