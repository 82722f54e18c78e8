#include "sound/SmfImage.h"

#include <cstdio>

#include "core/Log.h"
#include "core/SystemText.h"
#include "platform/FileSystem.h"
#include "sound/SmfFlattener.h"

namespace velmora {
namespace {

bool ReadWhole(const std::string& name, std::vector<uint8_t>& bytes) {
  std::FILE* file = OpenFile(name, "rb");
  if (!file) return false;
  uint8_t chunk[1 << 14];
  size_t got;
  while ((got = std::fread(chunk, 1, sizeof chunk, file)) > 0) bytes.insert(bytes.end(), chunk, chunk + got);
  bool ok = !std::ferror(file);
  std::fclose(file);
  return ok;
}

}  // namespace

cSmfImage::cSmfImage(const std::string& name) : m_strName(name) {
  std::vector<uint8_t> file;
  if (!ReadWhole(name, file)) {
    ReportFormat(SysText("Midi %s Create ファイルが開けません"), name.c_str());
    return;
  }
  std::vector<uint8_t> image = FlattenSmf(file.data(), file.size(), name);
  if (!image.empty()) m_pImage = std::make_unique<const std::vector<uint8_t>>(std::move(image));
}

cSmfImage::~cSmfImage() = default;

}  // namespace velmora
