#include "inspect/PngFile.h"

#include <png.h>

#include <cstdio>
#include <memory>
#include <vector>

namespace velmora::inspect {
namespace {

struct cFileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// libpng reports failures by a long jump back here; nothing with a
// destructor may live between setjmp and the calls that can fail.
bool WriteRows(std::FILE* file, int width, int height, png_bytepp rows) {
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  if (!png) return false;
  png_infop info = png_create_info_struct(png);
  if (!info || setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    return false;
  }
  png_init_io(png, file);
  png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8, PNG_COLOR_TYPE_RGB,
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  png_write_image(png, rows);
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return true;
}

}  // namespace

bool WritePng(const std::string& hostPath, const cPixelImage& image) {
  if (image.Empty() || image.Depth() != 32) return false;
  std::unique_ptr<std::FILE, cFileCloser> file(std::fopen(hostPath.c_str(), "wb"));
  if (!file) return false;
  const size_t width = static_cast<size_t>(image.Width());
  std::vector<png_byte> pixels(width * 3 * static_cast<size_t>(image.Height()));
  std::vector<png_bytep> rows(static_cast<size_t>(image.Height()));
  for (int y = 0; y < image.Height(); ++y) {
    png_byte* out = &pixels[static_cast<size_t>(y) * width * 3];
    rows[static_cast<size_t>(y)] = out;
    const uint8_t* in = image.Row(y);
    for (size_t x = 0; x < width; ++x, in += 4, out += 3) {
      out[0] = in[2];
      out[1] = in[1];
      out[2] = in[0];
    }
  }
  const bool written = WriteRows(file.get(), image.Width(), image.Height(), rows.data());
  return std::fflush(file.get()) == 0 && written;
}

}  // namespace velmora::inspect
