#pragma once
#include <Qt>

class QString;
class QWidget;

namespace velmora {

// What kind of top-level window a dialog is. The frame's boxes, the sizing
// rule and whether showing takes the focus all follow from it, so every
// window of a kind behaves alike on any desktop.
enum class eWindowStyle {
  // Prompts, confirmations, progress and small forms: a title and a close
  // box, no minimise or maximise, and exactly the size of the content.
  SmallDialog,
  // Palettes and the like beside the main window: a title and a close box,
  // resizable within the limits of their content, and shown without taking
  // the focus from the window the author works in.
  ToolWindow,
  // The stage window: minimise, maximise and close, resizable within the
  // limits of its content.
  MainWindow,
};

// The frame flags of a style; for windows that Qt makes itself, such as
// message boxes.
Qt::WindowFlags WindowFlagsOf(eWindowStyle style);

// Flags, sizing rule and focus rule of `style` on a top-level window whose
// layout holds its content. Before the window is first shown.
void ApplyWindowStyle(QWidget& window, eWindowStyle style);

// The width a frame needs to show `title` whole, with its buttons beside.
int TitleFitWidth(const QString& title);

// Shows a window that is hidden. A window that must not take the focus
// gives it back at once on platforms that activate every window shown.
void ShowWindow(QWidget& window);

}  // namespace velmora
