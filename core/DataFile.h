#pragma once
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

// An open data file, read or written in the record stream's shape. Reads
// never run past the end: a read that the file cannot satisfy leaves its
// target untouched and ends the stream, so every later read fails too and a
// short or damaged file simply ends the blocks being read.
class cDataFile {
 public:
  static std::unique_ptr<cDataFile> OpenForRead(const std::string& stored);
  static std::unique_ptr<cDataFile> OpenForWrite(const std::string& stored);
  // Reads bytes already in memory (which must outlive the file).
  static std::unique_ptr<cDataFile> FromMemory(const void* data, size_t size);
  ~cDataFile();
  cDataFile(const cDataFile&) = delete;
  cDataFile& operator=(const cDataFile&) = delete;

  // Records move a few bytes at a time, so the buffered case is inline.
  bool Read(void* target, size_t bytes) {
    if (m_bEnded || bytes > m_nBufEnd - m_nBufPos) return ReadThroughBuffer(target, bytes);
    std::memcpy(target, m_buffer.data() + m_nBufPos, bytes);
    m_nBufPos += bytes;
    m_nPos += bytes;
    return true;
  }
  bool ReadInt32(int32_t& value) { return Read(&value, sizeof value); }
  bool Skip(size_t bytes);
  void Write(const void* source, size_t bytes) {
    if (m_bWriteFailed || bytes > m_buffer.size() - m_nBufEnd) return WriteThroughBuffer(source, bytes);
    std::memcpy(m_buffer.data() + m_nBufEnd, source, bytes);
    m_nBufEnd += bytes;
  }
  void WriteInt32(int32_t value) { Write(&value, sizeof value); }

  // The next `bytes` of the file in one piece, not consumed; null when the
  // file or the buffer cannot hold that many, and a caller then reads piece
  // by piece. Valid until the next call on the file other than Consume.
  const char* Peek(size_t bytes) {
    if (m_bEnded || bytes > m_nBufEnd - m_nBufPos) return PeekAfterRefill(bytes);
    return m_buffer.data() + m_nBufPos;
  }
  // Consumes bytes that Peek has just shown.
  void Consume(size_t bytes) {
    m_nBufPos += bytes;
    m_nPos += bytes;
  }
  // Peek and Consume in one.
  const char* ReadSpan(size_t bytes) {
    const char* span = Peek(bytes);
    if (span) Consume(bytes);
    return span;
  }
  // Room for the next `bytes` of output, counted as written; null when the
  // buffer is smaller or a write failed, and the caller writes piecewise.
  char* WriteSpan(size_t bytes);

  // Bytes left to read. A count that promises more than this is damaged.
  uint64_t Remaining() const { return m_nSize - m_nPos; }
  bool Ended() const { return m_bEnded; }
  // Damage found by a reader (a count beyond the file, a bad length). The
  // stream is ended with it.
  void MarkDamaged() { m_bDamaged = m_bEnded = true; }
  bool Damaged() const { return m_bDamaged; }
  bool WriteFailed() const { return m_bWriteFailed; }
  // Closes the file; false when a write or the close failed.
  bool Close();

 private:
  static constexpr size_t kStreamBuffer = size_t{1} << 16;
  explicit cDataFile(std::FILE* file, uint64_t size) : m_pFile(file), m_buffer(kStreamBuffer), m_nSize(size) {}
  bool Refill();
  bool ReadThroughBuffer(void* target, size_t bytes);
  const char* PeekAfterRefill(size_t bytes);
  void WriteThroughBuffer(const void* source, size_t bytes);
  void Flush();
  std::FILE* m_pFile;
  // The C library is called once per block of this buffer, not per field.
  std::vector<char> m_buffer;
  size_t m_nBufPos = 0;
  size_t m_nBufEnd = 0;
  bool m_bWriting = false;
  uint64_t m_nSize;
  uint64_t m_nPos = 0;
  bool m_bEnded = false;
  bool m_bDamaged = false;
  bool m_bWriteFailed = false;
};

using DataFilePtr = std::unique_ptr<cDataFile>;

}  // namespace velmora
