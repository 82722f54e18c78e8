#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velmora::testing {

// A fresh empty folder made the current directory for the life of the
// object, the way the editor runs inside its project folder. The previous
// directory comes back and the folder is removed afterwards.
class cTempProject {
 public:
  cTempProject();
  ~cTempProject();
  cTempProject(const cTempProject&) = delete;
  cTempProject& operator=(const cTempProject&) = delete;
  const std::string& Path() const { return m_path; }

 private:
  std::string m_path;
  std::string m_previous;
};

// Whole-file helpers on host paths relative to the current directory.
std::vector<uint8_t> ReadBytes(const std::string& hostPath);
void WriteBytes(const std::string& hostPath, const std::vector<uint8_t>& bytes);
void WriteText(const std::string& hostPath, const std::string& text);
std::string ReadText(const std::string& hostPath);
void MakeDirs(const std::string& hostPath);
// The stage folder with its old-version folder, and the work folder that
// holds a stage while it is saved.
void MakeStageFolders();

// Builds record-stream bytes by hand, so tests state a file exactly.
class cBytes {
 public:
  cBytes& U8(uint8_t v) { return Raw(&v, 1); }
  cBytes& I16(int16_t v) { return Raw(&v, 2); }
  cBytes& I32(int32_t v) { return Raw(&v, 4); }
  cBytes& U32(uint32_t v) { return Raw(&v, 4); }
  cBytes& F64(double v) { return Raw(&v, 8); }
  // A string the way the stream writes it: length+1, then text and zero.
  cBytes& Str(const std::string& text);
  cBytes& Raw(const void* data, size_t size);
  const std::vector<uint8_t>& Data() const { return m_data; }

 private:
  std::vector<uint8_t> m_data;
};

}  // namespace velmora::testing
