#pragma once
#include <QMargins>
#include <QRect>

class QWidget;

namespace velmora {

class cWindowPlace;

// Window places as the author sees them: the outer frame that the window
// manager draws around a window, title bar included. The frame is known
// only while the manager frames the window; before it is shown, and while
// it is hidden, the margins of the first framed window stand in, since one
// manager frames our windows alike. Without a manager a frame is the
// window itself.

// The frame of a top-level window, shown or not yet shown.
QRect FrameOf(const QWidget& window);

// The margins of the frame around the window's own area.
QMargins FrameMargins(const QWidget& window);

// Puts the frame's top left at `frame`'s and gives the window the frame's
// size, within the window's limits. Before the window is first shown the
// place is exact; the size is made exact by placing it once more after
// WaitUntilShown.
void PlaceFrame(QWidget& window, const QRect& frame);

// Puts the frame's top left at `topLeft`; the size stays.
void MoveFrame(QWidget& window, QPoint topLeft);

// The frame that a place of the editor settings keeps, and keeping the
// frame of a window there.
QRect FrameOfPlace(const cWindowPlace& place);
void KeepPlace(cWindowPlace& place, const QWidget& window);

// Lets the window system show a window just shown, so that its frame is
// known: at most `limitMs`, taking no input meanwhile. False when it did
// not show in time.
bool WaitUntilShown(QWidget& window, int limitMs = 1000);

}  // namespace velmora
