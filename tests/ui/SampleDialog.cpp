#include "SampleDialog.h"

namespace velmora::testing {
namespace {

// A control of the test's own that runs a callback from its Refresh.
class cProbeControl : public cControl {
 public:
  cProbeControl(cDialog& parent, std::function<void()>& probe)
      : cControl(eControlKind::Button, 9000, parent, nullptr), m_probe(probe) {}
  void Refresh() override {
    if (m_probe) m_probe();
  }

 private:
  std::function<void()>& m_probe;
};

}  // namespace

void cSampleDialog::BindOwnControls() { AddControl(std::make_unique<cProbeControl>(*this, onRefresh)); }

}  // namespace velmora::testing
