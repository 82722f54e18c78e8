#pragma once
#include <QSize>

class QWidget;

namespace velmora {

class cDialogManager;

// Builds the measuring page (dialog 285) as a property page is built, lays
// it out with the system's font and gives its client size. Nothing shows.
QSize MeasurePageClient(cDialogManager& manager, QWidget* owner);

}  // namespace velmora
