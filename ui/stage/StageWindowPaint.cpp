#include <QGuiApplication>
#include <QPainter>
#include <algorithm>

#include "stage/StageEdit.h"
#include "ui/framework/DialogWindow.h"
#include "ui/palette/SurfaceImage.h"
#include "ui/stage/BrushPreview.h"
#include "ui/stage/StageWindow.h"
#include "graphics/stageview/StageView.h"

// Painting: the view is drawn from the records into an off-screen surface
// of the client's size, which then goes to the window in one copy.

namespace velmora {

void cStageWindow::RenderView() {
  FitView(m_view, Geometry().clientWidth, Geometry().clientHeight);
  cViewOptions options;
  options.hasStage = StageEdit().m_bHasStage != 0;
  options.cursor = CursorFrame(StageEdit(), m_cursor);
  const bool allLayers = QGuiApplication::keyboardModifiers() & Qt::ShiftModifier;
  options.preview = [&](cSurface& out) {
    DrawBrushPreview(EditStage(), StageEdit(), m_cursor, allLayers, out, ScrollX(), ScrollY());
  };
  options.marks = m_marks;
  RenderStageView(EditStage(), m_view, ScrollX(), ScrollY(), options);
}

void cStageWindow::SetMarks(std::vector<cCellFrame> marks) {
  m_marks = std::move(marks);
  UpdateStates();
  Repaint();
}

void cStageWindow::ShowCell(int x, int y) {
  const cGeometry& geometry = Geometry();
  const int columns = geometry.clientWidth / kCellDots, rows = geometry.clientHeight / kCellDots;
  // The cell comes to the middle of the view, as far as the edges allow.
  ScrollTo(std::max(0, x - columns / 2), std::max(0, y - rows / 2));
  m_cursor = {x, y};
  Repaint();
}

void cStageWindow::OnPaint(QPainter& painter) {
  RenderView();
  DrawView(painter, m_view);
  SetStatusText(0, CursorStatusText(m_cursor));
}

void cStageWindow::Repaint() {
  if (IsOpen()) static_cast<cDialogWindow*>(Window())->Client()->update();
  if (m_pPalettes) m_pPalettes->Refresh();
}

}  // namespace velmora
