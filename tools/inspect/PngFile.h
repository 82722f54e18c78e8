#pragma once
#include <string>

#include "graphics/PixelImage.h"

namespace velmora::inspect {

// Writes a 32-bit image as an RGB PNG to a host path; false when the file
// can't be written or the image isn't 32-bit.
bool WritePng(const std::string& hostPath, const cPixelImage& image);

}  // namespace velmora::inspect
