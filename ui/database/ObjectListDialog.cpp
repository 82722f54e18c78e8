#include "ui/database/ObjectListDialog.h"

#include <QMouseEvent>
#include <QPainter>
#include <functional>

#include "graphics/FixedBitmaps.h"
#include "ui/framework/Commands.h"
#include "ui/palette/SurfaceImage.h"

namespace velmora {
namespace {

constexpr int kIdSheet = 1003;
constexpr int kCell = 32;
constexpr int kRowsPerColumn = 15;
constexpr QRgb kFrameColour = qRgb(255, 0, 128);

// The composed sheet with a frame on the chosen picture; a click reports
// the picture under it.
class cSheetPicker : public QWidget {
 public:
  cSheetPicker(QWidget* parent, const QImage& sheet, const int16_t& chosen)
      : QWidget(parent), m_sheet(sheet), m_chosen(chosen) {
    setFixedSize(kComposedSheetWidth, kComposedSheetHeight);
  }
  std::function<void(int number)> onPick;
  std::function<void()> onAccept;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawImage(0, 0, m_sheet);
    painter.setPen(QPen(QColor(kFrameColour), 2));
    painter.drawRect(m_chosen / kRowsPerColumn * kCell + 1, m_chosen % kRowsPerColumn * kCell + 1, kCell - 2, kCell - 2);
  }
  void mousePressEvent(QMouseEvent* event) override {
    const int number = cObjectListDialog::NumberAt(event->position().toPoint().x(), event->position().toPoint().y());
    if (number && onPick) onPick(number);
  }
  // The press before it picked the picture already.
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    const QPoint at = event->position().toPoint();
    if (cObjectListDialog::NumberAt(at.x(), at.y()) && onAccept) onAccept();
  }

 private:
  QImage m_sheet;
  const int16_t& m_chosen;
};

}  // namespace

cObjectListDialog::cObjectListDialog(cDialogManager& manager, QWidget* parent, int sampleKind, int16_t& number)
    : cRecordDialog(manager, parent, number) {
  SetTitle(QString::fromUtf8("一覧"));
  SetLogName("object list");
  // Blocks, characters, items and shots each have a sheet of their own,
  // laid out alike; the composed sheets follow in that order.
  const int sheet = sampleKind >= 0 && sampleKind < kSheetMark - kSheetBlock ? kSheetBlock + sampleKind : kSheetBlock;
  m_form.rows = {{nullptr, cCustomDesc{kIdSheet, [this, sheet](QWidget* parentWidget) -> QWidget* {
                                         auto* picker = new cSheetPicker(parentWidget, ToImage(FixedBitmap(sheet)), Work());
                                         picker->onPick = [this](int picked) { Pick(picked); };
                                         picker->onAccept = [this] { SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0); };
                                         return picker;
                                       }}}};
}

int cObjectListDialog::NumberAt(int x, int y) {
  if (x < 0 || y < 0 || x >= kComposedSheetWidth || y >= kRowsPerColumn * kCell) return 0;
  const int number = x / kCell * kRowsPerColumn + y / kCell;
  return number >= kFirstNumber && number <= kLastNumber ? number : 0;
}

void cObjectListDialog::Pick(int number) {
  if (number < kFirstNumber || number > kLastNumber) return;
  Work() = static_cast<int16_t>(number);
  if (QWidget* sheet = Item(kIdSheet)) sheet->update();
}

}  // namespace velmora
