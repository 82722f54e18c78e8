#include "support/TempProject.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace velmora::testing {

cTempProject::cTempProject() {
  char pattern[] = "/tmp/velmora-test-XXXXXX";
  m_path = ::mkdtemp(pattern);
  m_previous = std::filesystem::current_path().string();
  std::filesystem::current_path(m_path);
}

cTempProject::~cTempProject() {
  std::error_code ignored;
  std::filesystem::current_path(m_previous, ignored);
  std::filesystem::remove_all(m_path, ignored);
}

std::vector<uint8_t> ReadBytes(const std::string& hostPath) {
  std::ifstream in(hostPath, std::ios::binary);
  return std::vector<uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteBytes(const std::string& hostPath, const std::vector<uint8_t>& bytes) {
  std::ofstream out(hostPath, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void WriteText(const std::string& hostPath, const std::string& text) {
  std::ofstream out(hostPath, std::ios::binary | std::ios::trunc);
  out << text;
}

std::string ReadText(const std::string& hostPath) {
  std::ifstream in(hostPath, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void MakeDirs(const std::string& hostPath) { std::filesystem::create_directories(hostPath); }

void MakeStageFolders() {
  MakeDirs("data/stg4/old_ver");
  MakeDirs("data/work");
}

cBytes& cBytes::Str(const std::string& text) {
  I32(static_cast<int32_t>(text.size()) + 1);
  if (!text.empty()) Raw(text.c_str(), text.size() + 1);
  return *this;
}

cBytes& cBytes::Raw(const void* data, size_t size) {
  const uint8_t* bytes = static_cast<const uint8_t*>(data);
  m_data.insert(m_data.end(), bytes, bytes + size);
  return *this;
}

}  // namespace velmora::testing
