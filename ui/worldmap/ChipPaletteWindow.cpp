#include "ui/worldmap/ChipPaletteWindow.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>

#include "core/SystemText.h"
#include "graphics/FixedBitmaps.h"
#include "project/WorldEditState.h"
#include "project/WorldMap.h"
#include "ui/controls/ScrollBar.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/QtText.h"
#include "ui/framework/WindowFrame.h"
#include "ui/palette/SurfaceImage.h"
#include "ui/stage/StageViewRules.h"
#include "ui/worldmap/WorldMapCommands.h"

namespace velmora {
namespace {

constexpr cColourRef kSelectedColour = 0xFF007F;
constexpr cColourRef kEmpty = 0x000000;

QRect WorkArea() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->availableGeometry() : QRect(0, 0, 1920, 1080);
}

}  // namespace

cChipPaletteWindow::cChipPaletteWindow(cDialogManager& manager, QWidget* parent, cWindowPlace& place,
                                       const cWorldPaletteLinks& links)
    : cWorldPalette(manager, parent, place, links) {
  SetTitle(Ui("マップチップパレット"));
  SetLogName("DLG_WORLDCHIP");
  WantScrollBars();
  WantStatusBar({0});
}

bool cChipPaletteWindow::Open(const QRect& anchor) {
  if (!Create(0, false)) return false;
  FitHeight();
  Place(anchor, false);
  // Kept on a larger desktop, or grown by a longer list: back into view.
  const QRect frame = FrameOf(*Window());
  const QRect area = WorkArea();
  MoveFrame(*Window(),
            QPoint(std::clamp(frame.x(), area.left(), std::max(area.right() + 1 - frame.width(), area.left())),
                   std::clamp(frame.y(), area.top(), std::max(area.bottom() + 1 - frame.height(), area.top()))));
  ShowWindow(*Window());
  Refresh();
  return true;
}

void cChipPaletteWindow::OnInitDialog() {
  cWorldPalette::OnInitDialog();
  HorzBar()->Bar()->hide();
  QObject::connect(VertBar()->Bar(), &QScrollBar::valueChanged, Window(), [this] { Refresh(); });
}

int cChipPaletteWindow::Rows() const {
  return (static_cast<int>(WorldMap().m_vecChips.size()) + kColumns - 1) / kColumns;
}

// Fewer rows than fit: the window is only as high as the chips.
void cChipPaletteWindow::FitHeight() {
  auto* client = static_cast<cDialogWindow*>(Window())->Client();
  client->setFixedSize(kClientWidth, std::clamp(Rows(), 1, kMaxRows) * kCell);
  VertBar()->SetRange(0, std::max(Rows() - 1, 0));
  VertBar()->SetPage(kMaxRows);
}

int cChipPaletteWindow::TopRow() const { return VertBar() ? VertBar()->Position() : 0; }

int cChipPaletteWindow::IndexAt(int x, int y) const {
  if (x < 0 || y < 0 || x >= kClientWidth) return -1;
  return x / kCell + (y / kCell + TopRow()) * kColumns;
}

void cChipPaletteWindow::Refresh() {
  if (!Window()) return;
  Render();
  ShowStatus();
  static_cast<cDialogWindow*>(Window())->Client()->update();
}

void cChipPaletteWindow::Render() {
  const QWidget* client = static_cast<cDialogWindow*>(Window())->Client();
  const int height = std::max(client->height(), 1);
  if (m_surface.Height() != height && !m_surface.CreateSurface(kClientWidth, height, 32, false)) return;
  m_surface.Fill(kEmpty);
  const cSurface& sheet = FixedBitmap(kFixedWorldChip);
  const std::vector<cEdWorldChip>& chips = WorldMap().m_vecChips;
  const int first = TopRow() * kColumns;
  const int last = std::min(static_cast<int>(chips.size()), first + (height / kCell + 1) * kColumns);
  for (int index = first; index < last; ++index) {
    const int graphic = chips[static_cast<size_t>(index)].m_iGraphic;
    if (graphic < 0) continue;
    const int at = index - first;
    m_surface.Blt(at % kColumns * kCell, at / kColumns * kCell, kCell, kCell, sheet, graphic % kColumns * kCell,
                  graphic / kColumns * kCell, false);
  }
  const cEdWorldEditState& state = WorldEdit();
  if (state.m_iMode == kWorldChipMode && state.m_iCurrent >= 0) {
    const int at = state.m_iCurrent - first;
    m_surface.SetPen(kPenSolid, 2, kSelectedColour);
    m_surface.Box(at % kColumns * kCell, at / kColumns * kCell, kCell, kCell);
    m_surface.FreePen();
  }
  m_picture = ToImage(m_surface);
}

void cChipPaletteWindow::ShowStatus() {
  const int current = WorldEdit().m_iCurrent;
  const std::vector<cEdWorldChip>& chips = WorldMap().m_vecChips;
  std::string text;
  if (current >= 0 && current < static_cast<int>(chips.size())) {
    text = std::to_string(current + 1) + " : " + chips[static_cast<size_t>(current)].m_strName;
  }
  SetStatusText(0, text);
}

void cChipPaletteWindow::OnPaint(QPainter& painter) {
  if (m_picture.isNull()) Render();
  painter.drawImage(0, 0, m_picture);
}

void cChipPaletteWindow::OnLButtonDown() {
  const int index = IndexAt(Mouse().x, Mouse().y);
  if (index < 0 || index >= static_cast<int>(WorldMap().m_vecChips.size())) return;
  WorldEdit().SelectChip(index);
  Refresh();
  Changed();
}

bool cChipPaletteWindow::OnDialogMessage(QEvent& event) {
  if (event.type() == QEvent::Wheel) {
    VertBar()->SetPosition(TopRow() + WheelCells(static_cast<QWheelEvent&>(event).angleDelta().y()));
    return true;
  }
  return cWorldPalette::OnDialogMessage(event);
}

void cChipPaletteWindow::OnDialogCommand(int id, int /*notice*/) { PassMapCommand(id); }

}  // namespace velmora
