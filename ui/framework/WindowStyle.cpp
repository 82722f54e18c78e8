#include "ui/framework/WindowStyle.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLayout>
#include <QWidget>

namespace velmora {
namespace {

struct cStyleRule {
  eWindowStyle style;
  Qt::WindowFlags flags;
  QLayout::SizeConstraint sizing;
  bool takesFocus;
};

// Without the customize hint the window system offers every box it has.
constexpr Qt::WindowFlags kTitleAndClose =
    Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

const cStyleRule kRules[] = {
    {eWindowStyle::SmallDialog, Qt::Dialog | kTitleAndClose, QLayout::SetFixedSize, true},
    {eWindowStyle::ToolWindow, Qt::Dialog | kTitleAndClose, QLayout::SetMinAndMaxSize, false},
    {eWindowStyle::MainWindow,
     Qt::Window | kTitleAndClose | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint,
     QLayout::SetMinAndMaxSize, true},
};

const cStyleRule& RuleOf(eWindowStyle style) {
  for (const cStyleRule& rule : kRules) {
    if (rule.style == style) return rule;
  }
  return kRules[0];
}

// Window managers draw titles in a bold face of about the desktop's size.
// Beside the title the frame holds the window's icon and its boxes: some
// managers show minimise and maximise whatever a window asks for, so room
// is kept for the icon, three boxes and the space around them.
constexpr int kFrameBoxes = 6;
constexpr int kBoxPadding = 8;

}  // namespace

Qt::WindowFlags WindowFlagsOf(eWindowStyle style) { return RuleOf(style).flags; }

void ApplyWindowStyle(QWidget& window, eWindowStyle style) {
  const cStyleRule& rule = RuleOf(style);
  window.setWindowFlags(rule.flags);
  if (window.layout()) window.layout()->setSizeConstraint(rule.sizing);
  window.setAttribute(Qt::WA_ShowWithoutActivating, !rule.takesFocus);
}

int TitleFitWidth(const QString& title) {
  QFont font = QApplication::font();
  font.setBold(true);
  const QFontMetrics metrics(font);
  return metrics.horizontalAdvance(title) + kFrameBoxes * (metrics.height() + kBoxPadding);
}

void ShowWindow(QWidget& window) {
  if (window.isVisible()) return;
  QWidget* active = QApplication::activeWindow();
  window.show();
  if (!window.testAttribute(Qt::WA_ShowWithoutActivating) || !active || active == &window) return;
  if (active->isVisible()) active->activateWindow();
}

}  // namespace velmora
