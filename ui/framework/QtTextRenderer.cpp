#include "ui/framework/QtTextRenderer.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include "graphics/PixelImage.h"
#include "graphics/TextRenderer.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

// The background of an opaque line, as the drawing calls had it by default.
constexpr cColourRef kOpaqueBackground = 0xFFFFFF;

QFont FontOf(const cFontChoice* choice) {
  QFont font = QApplication::font();
  if (choice) {
    font.setFamily(FromCp932(choice->name));
    if (choice->height > 0) font.setPixelSize(choice->height);
  }
  font.setStyleStrategy(QFont::NoAntialias);
  return font;
}

class cQtTextRenderer : public cTextRenderer {
 public:
  // The line is drawn apart and then set into the image dot by dot, which
  // serves every depth, the 8-bit ones through their colour table.
  void DrawLine(cPixelImage& target, int x, int y, const std::string& line, cColourRef colour,
                bool transparentBackground, const cFontChoice* choice) override {
    const QString text = FromCp932(line);
    const QFont font = FontOf(choice);
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(text);
    if (width <= 0) return;
    QImage glyphs(width, metrics.height(), QImage::Format_ARGB32_Premultiplied);
    glyphs.fill(Qt::transparent);
    QPainter painter(&glyphs);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(0, metrics.ascent(), text);
    painter.end();
    const cPixelValue ink = target.Encode(colour);
    const cPixelValue paper = target.Encode(kOpaqueBackground);
    for (int row = 0; row < glyphs.height(); ++row) {
      const auto* pixels = reinterpret_cast<const QRgb*>(glyphs.constScanLine(row));
      for (int column = 0; column < width; ++column) {
        if (qAlpha(pixels[column]) >= 128) target.PutPixel(x + column, y + row, ink);
        else if (!transparentBackground) target.PutPixel(x + column, y + row, paper);
      }
    }
  }
};

}  // namespace

void InstallQtTextRenderer() {
  static cQtTextRenderer renderer;
  SetTextRenderer(&renderer);
}

}  // namespace velmora
