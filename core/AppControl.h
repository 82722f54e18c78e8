#pragma once

namespace velmora {

// What the stops of the failure reporting ask of the application window.
// The GUI installs its own; without one the requests are only counted, so
// logic and tests run on after a stop the way the editor does when the
// author answers No to the close question.
class cAppControl {
 public:
  virtual ~cAppControl() = default;
  virtual void PostCloseRequest() = 0;   // the close question comes first
  virtual void DestroyMainWindow() = 0;  // at once, no question
  virtual void Beep() = 0;
  // A bad index into an empty vector has no element to give back; the
  // process ends here in an orderly way.
  [[noreturn]] virtual void EndProcess(int code) = 0;
};

cAppControl& AppControl();
void SetAppControl(cAppControl* control);  // null brings back the default

// How often the default control was asked to close; tests read these.
int CloseRequestCount();
int DestroyRequestCount();

}  // namespace velmora
