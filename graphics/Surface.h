#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include "core/Log.h"
#include "graphics/BitmapFile.h"
#include "graphics/Colour.h"
#include "graphics/PixelImage.h"
#include "graphics/TextRenderer.h"

namespace velmora {

// What a load is given. An empty name, or the marker "E", asks for a blank
// surface of the blank size and depth.
struct cSurfaceSpec {
  std::string name;
  int depth = 8;
  int bMask = 0;
  int cellWidth = 0;  // cell size to mirror; 0 for none
  int cellHeight = 0;
  int blankWidth = 0;
  int blankHeight = 0;
  int divisor = 1;  // above 1: loaded shrunk by this factor
  int alignX = 0;   // with a divisor: size first cut down to a multiple of these
  int alignY = 0;
};

inline constexpr const char* kBlankSurfaceMarker = "E";

// Why a load failed, for callers that report in words of their own.
enum class eSurfaceLoad { Ok, CannotRead, UnsupportedDepth, OutOfMemory };

// Pen styles as the drawing calls number them.
enum ePenStyle { kPenSolid = 0, kPenDash = 1, kPenDot = 2, kPenDashDot = 3, kPenDashDotDot = 4, kPenNull = 5 };
// Background modes of DrawText.
enum eTextMode { kTextTransparent = 1, kTextOpaque = 2 };

struct cPen {
  int style = kPenSolid;
  int width = 1;
  cColourRef colour = 0;
};

// A picture in memory with an optional mask of the same size and depth.
// Masked pictures draw by AND-ing the mask and OR-ing the image: the mask is
// white (or index 255) where the picture is transparent, and the image is
// black (index 0) there.
class cSurface {
 public:
  cSurface() = default;
  cSurface(cSurface&&) = default;
  cSurface& operator=(cSurface&&) = default;
  cSurface(const cSurface&) = delete;
  cSurface& operator=(const cSurface&) = delete;

  // Reports a failure in a box (the out-of-memory stop for a failed
  // allocation) and gives false.
  bool Load(const cSurfaceSpec& request);
  // The same without any report.
  eSurfaceLoad TryLoad(const cSurfaceSpec& request);
  bool LoadSimple(const std::string& name, int depth, int bMask, int cellWidth, int cellHeight, int blankWidth,
                  int blankHeight, int divisor);
  // Load from the bytes of a bitmap file, without any report.
  eSurfaceLoad TryLoadFromMemory(const cSurfaceSpec& request, const uint8_t* data, size_t size);
  // A surface made of a block of another, mask included.
  bool CopyRegionOf(const cSurface& source, int sx, int sy, int w, int h);
  // A new white surface; gives false for a bad size or depth.
  bool CreateSurface(int width, int height, int depth, bool bMask, int cellWidth = 0, int cellHeight = 0);
  void Free();

  void Blt(int x, int y, int w, int h, const cSurface& source, int sx, int sy, bool bOpaque);
  void StretchBltFrom(int x, int y, int w, int h, const cSurface& source, int sx, int sy, int sw, int sh,
                      bool bOpaque);
  void Fill(cColourRef colour);
  void FillRect(int x, int y, int w, int h, cColourRef colour);
  void FillRgb(const uint8_t rgb[3]);

  void SetPen(int style, int width, cColourRef colour);
  void FreePen();
  void Line(int x1, int y1, int x2, int y2);  // the end point is not drawn
  void Box(int x, int y, int w, int h);
  void Grid(int x, int y, int w, int h, int stepY, int stepX, cColourRef colour);

  void SetFont(const std::string& name, int width, int height);
  void DrawText(int x, int y, const std::string& text, cColourRef colour, int mode);
  void DrawFormat(int x, int y, const char* format, ...) VELMORA_PRINTF(4, 5);

  bool IsLoaded() const { return !m_image.Empty(); }
  bool HasMask() const { return !m_mask.Empty(); }
  int Width() const { return m_image.Width(); }
  int Height() const { return m_image.Height(); }
  int Depth() const { return m_image.Depth(); }
  int CellWidth() const { return m_cellWidth; }
  int CellHeight() const { return m_cellHeight; }
  cPixelImage& Image() { return m_image; }
  const cPixelImage& Image() const { return m_image; }
  cPixelImage& Mask() { return m_mask; }
  const cPixelImage& Mask() const { return m_mask; }
  const cPen& Pen() const { return m_pen; }
  bool TransparentBackground() const { return m_transparentBackground; }

 private:
  bool LoadPixels(const cSurfaceSpec& request, const cBitmapHeader& header, const uint8_t* data, size_t size);
  void MirrorCells();
  void BuildMask();
  void BlackenTransparent();

  cPixelImage m_image;
  int m_cellWidth = 0;
  int m_cellHeight = 0;
  std::optional<cFontChoice> m_font;
  cPixelImage m_mask;
  cPen m_pen;
  cPen m_previousPen;
  bool m_transparentBackground = false;
};

}  // namespace velmora
