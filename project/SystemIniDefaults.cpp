#include "project/SystemIniDefaults.h"

#include <iterator>

#include "project/SystemRecord.h"

namespace velmora {
namespace {

// The settings in the order of the record's keys. A key may be renamed on
// the system pages; its row keeps its meaning.
int32_t cSystemIniDefaults::* const kNumberRows[cEdSystem::kOptionCount] = {
    &cSystemIniDefaults::nDirect3D,     &cSystemIniDefaults::nWindowMode,    &cSystemIniDefaults::nBpp,
    &cSystemIniDefaults::nVSync,        &cSystemIniDefaults::nD3DFontCache,  &cSystemIniDefaults::nDDFontCache,
    &cSystemIniDefaults::nDDVideoStretch, &cSystemIniDefaults::nShowFps,     nullptr,
    &cSystemIniDefaults::nEnglish,      &cSystemIniDefaults::nMidiDirectMusic,
};
constexpr size_t kFreeStageRow = 8;

}  // namespace

void FillSystemIniDefaults(const cEdSystem& system, cSystemIniDefaults& defaults) {
  defaults = cSystemIniDefaults();
  for (size_t row = 0; row < system.m_vecOptions.size() && row < std::size(kNumberRows); ++row) {
    const cEdSysOption& option = system.m_vecOptions[row];
    if (row == kFreeStageRow) defaults.strFreeStage = option.m_strDefault;
    else defaults.*kNumberRows[row] = option.m_iDefault;
  }
}

cSystemIni& ProjectSystemIni() {
  static cSystemIni ini;
  return ini;
}

void ReadProjectSystemIni() {
  cSystemIniDefaults defaults;
  FillSystemIniDefaults(SystemRecord(), defaults);
  cSystemIni& ini = ProjectSystemIni();
  if (!LoadSystemIni("System.ini", ini, defaults)) ResetSystemIni(ini, defaults);
}

}  // namespace velmora
