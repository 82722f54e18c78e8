#include "ui/system/FontPreview.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QVBoxLayout>

#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr int kSamplePointSize = 16;

}  // namespace

cFontPreview::cFontPreview(QWidget* parent)
    : QWidget(parent), m_pSample(new QLabel(Ui("abc ABC あいう 剣弾魔龍"), this)), m_pStandIn(new QLabel(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  // The page is laid out before a face is chosen: the sample keeps room for
  // a face wider than the standard one, and the note wraps, so that neither
  // widens the page afterwards.
  const QFontMetrics standard(QFont(font().family(), kSamplePointSize));
  m_pSample->setFrameShape(QFrame::StyledPanel);
  m_pSample->setMinimumSize(standard.horizontalAdvance(m_pSample->text()) * 3 / 2, standard.height() * 3 / 2);
  m_pStandIn->setWordWrap(true);
  m_pStandIn->setMinimumHeight(fontMetrics().height() * 2);
  column->addWidget(m_pSample);
  column->addWidget(m_pStandIn);
}

void cFontPreview::ShowFace(const QString& face) {
  QFont sample(face, kSamplePointSize);
  m_pSample->setFont(sample);
  if (QFontDatabase::hasFamily(face)) {
    m_pStandIn->clear();
    return;
  }
  const QString used = QFontInfo(sample).family();
  m_pStandIn->setText(Ui("このコンピューターにないフォントです。「%1」で代わりに表示しています。").arg(used));
}

}  // namespace velmora
