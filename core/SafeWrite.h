#pragma once
#include <functional>
#include <string>

namespace velmora {

class cSaveData;

// Where a safe write keeps its files on the way; stored paths.
struct cSafeWritePlaces {
  std::string fresh;   // the new file, written and forced to disk before anything else moves
  std::string backup;  // the old file while the new one takes its place; empty keeps none
};

// A new file beside the target, and no backup: a rename in one folder
// replaces the old file in one step.
cSafeWritePlaces PlacesBeside(const std::string& path);

// Every file the editor writes goes through here, so that a kill at any
// moment leaves the old file or the new one whole: `write` fills
// places.fresh, which is forced to disk; the old file gets a second name at
// the backup, if one is asked for, and stays in place; a rename then puts
// the new file in place in one step. Where a rename can't (the file lies on
// another file system than places.fresh) the new file is copied beside the
// target and renamed there. The backup goes once the new file stands.
// False, with the old file where it was, when any step failed; the caller
// reports.
bool WriteFileSafely(const std::string& path, const std::function<bool(const std::string& to)>& write,
                     const cSafeWritePlaces& places);

// A record written that way; cSaveData::SaveFile is this, beside the file.
bool SaveRecordSafely(cSaveData& record, const std::string& path, const cSafeWritePlaces& places);
bool SaveRecordSafely(cSaveData& record, const std::string& path);

}  // namespace velmora
