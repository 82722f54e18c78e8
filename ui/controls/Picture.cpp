#include "ui/controls/Picture.h"

#include <QPainter>

#include "ui/controls/EditWidgets.h"

namespace velmora {

cPicture::cPicture(cDialog& parent, cPictureView* view, const cPictureDesc& desc)
    : cControl(eControlKind::Picture, desc.id, parent, view),
      m_pView(view),
      m_back(desc.width, desc.height, QImage::Format_RGB32) {}

QImage& cPicture::BeginDraw() {
  m_back.fill(0);
  return m_back;
}

void cPicture::Show(const QImage& image) {
  QPainter(&BeginDraw()).drawImage(0, 0, image);
  Present();
}

void cPicture::Present() {
  if (!Widget()) return;
  m_pView->Front() = m_back.copy();
  m_pView->update();
}

}  // namespace velmora
