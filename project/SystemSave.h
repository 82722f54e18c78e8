#pragma once

namespace velmora {

class cEdSystem;

// Makes `edited` the project's system record: its music rows are checked
// against the music list, it is written to data\System.dat, and the
// "System.ini" defaults that come from it are read anew. A file that can't
// be written is reported, and the record in force stays as it was.
bool SaveSystemSettings(const cEdSystem& edited);

}  // namespace velmora
