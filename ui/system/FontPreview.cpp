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
  m_pSample->setFrameShape(QFrame::StyledPanel);
  m_pSample->setMinimumHeight(QFontMetrics(QFont(font().family(), kSamplePointSize)).height() * 3 / 2);
  column->addWidget(m_pSample);
  column->addWidget(m_pStandIn);
  // The note keeps its line when it is empty, so the page doesn't move.
  m_pStandIn->setMinimumHeight(fontMetrics().height());
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

bool cFontPreview::ShowsStandIn() const { return !m_pStandIn->text().isEmpty(); }

}  // namespace velmora
