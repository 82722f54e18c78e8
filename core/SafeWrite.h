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

// Writes `path` so that a kill at any moment leaves the old file or the new
// one whole: `write` fills places.fresh, which is forced to disk; the old
// file moves to the backup, if one is asked for; a rename then puts the new
// file in place. Where the rename can't (another drive) the file is written
// in place. The backup goes once the new file stands. False, with the old
// file where it was, when any step failed; the caller reports.
bool WriteFileSafely(const std::string& path, const std::function<bool(const std::string& to)>& write,
                     const cSafeWritePlaces& places);

// A record written that way, beside its file.
bool SaveRecordSafely(cSaveData& record, const std::string& path);

}  // namespace velmora
