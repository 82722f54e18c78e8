#include "core/SheetRate.h"

namespace velmora {
namespace {

// The measuring page's client size on the system the templates were drawn on.
constexpr double kDesignWidth = 393.0;
constexpr double kDesignHeight = 235.0;
constexpr uint32_t kFirstTrustedVersion = 874;

}  // namespace

bool StoredSheetRateFits(const SheetSize& stored, uint32_t fileVersion, int osMajor, int osMinor,
                         const cUiFont& font) {
  return stored.m_nSystemMajor == osMajor && stored.m_nSystemMinor == osMinor &&
         stored.m_strFontFace == font.face && stored.m_nFontWidth == font.width &&
         stored.m_nFontHeight == font.height && fileVersion >= kFirstTrustedVersion;
}

cSheetRate SheetRateFromClient(int width, int height) {
  cSheetRate rate;
  if (width > 0) rate.x = kDesignWidth / width;
  if (height > 0) rate.y = kDesignHeight / height;
  return rate;
}

}  // namespace velmora
