#pragma once
#include <cstdint>
#include <cstdio>
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

  bool Read(void* target, size_t bytes);
  bool ReadInt32(int32_t& value) { return Read(&value, sizeof value); }
  bool Skip(size_t bytes);
  void Write(const void* source, size_t bytes);
  void WriteInt32(int32_t value) { Write(&value, sizeof value); }

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
  explicit cDataFile(std::FILE* file, uint64_t size) : m_pFile(file), m_nSize(size) {}
  bool Refill();
  void Flush();
  std::FILE* m_pFile;
  // Records move a few bytes at a time; they go through this buffer so that
  // the C library is called once per block, not once per field.
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
