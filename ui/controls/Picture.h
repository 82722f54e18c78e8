#pragma once
#include <QImage>

#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

class cPictureView;

// A display-only picture with two images: a page draws into the back one
// and presents it whole, so the screen never shows half a drawing.
class cPicture : public cControl {
 public:
  cPicture(cDialog& parent, cPictureView* view, const cPictureDesc& desc);
  // Filled with colour 0 and ready for drawing.
  QImage& BeginDraw();
  void Present();
  // Draws a finished picture and presents it.
  void Show(const QImage& image);

 private:
  cPictureView* m_pView;
  QImage m_back;
};

}  // namespace velmora
