#pragma once

namespace velmora {

// What the application does to its windows after one event.
struct cWindowSetSteps {
  bool hideSet = false;       // hide the palette windows of the current mode
  bool minimiseHost = false;  // the main window goes to the task bar
  bool restore = false;       // main window normal, focus flag set, windows shown as the settings hold them
};

// Whether the author has minimised the editor, and what each activation
// or window-state event does about it. The stage (or world map) window
// stands in the task bar for the set; its palettes vanish with it and come
// back when it returns, but only then: becoming active at any other time
// leaves alone what a dialog has hidden.
class cWindowSetState {
 public:
  cWindowSetSteps UserMinimised();
  cWindowSetSteps ActivationChanged(bool active);
  cWindowSetSteps RestoredFromTaskBar();
  bool Minimised() const { return m_bMinimised; }

 private:
  cWindowSetSteps Restore();

  bool m_bMinimised = false;
};

}  // namespace velmora
