#pragma once
#include "core/SystemIni.h"

namespace velmora {

class cEdSystem;

// The defaults "System.ini" starts from: the default entries of the
// system record's keys, taken by their row.
void FillSystemIniDefaults(const cEdSystem& system, cSystemIniDefaults& defaults);

}  // namespace velmora
