#include "sound/SmfImage.h"

#include "core/Log.h"
#include "core/SystemText.h"
#include "sound/SmfFlattener.h"
#include "sound/SoundFile.h"

namespace velmora {

cSmfImage::cSmfImage(const std::string& name) : m_strName(name) {
  cWholeFile file;
  if (!ReadSoundFile(name, file)) {
    ReportFormat(SysText("Midi %s Create ファイルが開けません"), name.c_str());
    return;
  }
  std::vector<uint8_t> image = FlattenSmf(file.data.get(), file.size, name);
  if (!image.empty()) m_pImage = std::make_unique<const std::vector<uint8_t>>(std::move(image));
}

cSmfImage::~cSmfImage() = default;

}  // namespace velmora
