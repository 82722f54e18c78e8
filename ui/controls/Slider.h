#pragma once
#include <QSlider>

#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

// A track bar with a companion numeric edit on the same field. Moving it
// shows the position in the edit and runs the dialog's command path as if
// the slider were a button.
class cSlider : public cControl {
 public:
  cSlider(cDialog& parent, QSlider* slider, const cSliderDesc& desc);
  void Enable(bool enable) override;
  void Refresh() override;
  void Commit() override;
  bool OnScroll(QObject* bar, int action) override;

 private:
  void ShowInEdit(int position);

  QSlider* m_pSlider;
  cValueField m_field;
  int m_nEditId;
};

}  // namespace velmora
