#pragma once
#include "core/SystemIni.h"

namespace velmora {

class cEdSystem;

// The defaults "System.ini" starts from: the default entries of the
// system record's keys, taken by their row.
void FillSystemIniDefaults(const cEdSystem& system, cSystemIniDefaults& defaults);

// What the editor holds of the project's "System.ini".
cSystemIni& ProjectSystemIni();
// Reads "System.ini" over the defaults of the system record in force; a
// missing or damaged file leaves the defaults. Runs at start and again
// whenever the system record changed, so the defaults follow it.
void ReadProjectSystemIni();

}  // namespace velmora
