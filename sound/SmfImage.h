#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

// A Standard MIDI File read whole and flattened into a format 0 image.
class cSmfImage {
 public:
  // Reads the file at the stored path `name`; a file that can't be read or
  // isn't of format 0 or 1 is reported and leaves no image.
  explicit cSmfImage(const std::string& name);
  virtual ~cSmfImage();
  cSmfImage(const cSmfImage&) = delete;
  cSmfImage& operator=(const cSmfImage&) = delete;

  bool HasImage() const { return m_pImage != nullptr; }

 protected:
  std::unique_ptr<const std::vector<uint8_t>> m_pImage;  // null when the file couldn't be read
  std::string m_strName;                                 // for messages only
};

}  // namespace velmora
