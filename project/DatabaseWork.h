#pragma once
#include <vector>

#include "project/Database.h"
#include "project/WorldMapRecords.h"

namespace velmora {

// What the database window edits: a copy of the ten lists and of the world
// map's chips. Nothing reaches the project's own lists before OK.
struct cDatabaseWork {
  cEdDatabase db;
  std::vector<cEdWorldChip> chips;
};

// The lists as the window opens on them. Each of the project's own lists
// is first grown to its least count, as the record rule of the lists says
// for every list page that opens, so that a list read empty from its file
// is written grown by the next save.
cDatabaseWork OpenDatabaseWork();

// OK: the project's lists take the copies, the character bitmaps are made
// anew from their list, and the ten database files and data\WorldMap.dat
// are written. A bitmap that fails is told and the files are written all
// the same. False when a file could not be written.
bool ApplyDatabaseWork(const cDatabaseWork& work);

// Makes every character's own bitmap anew from the database; a file that
// fails is told by name, and the rebuild then ends with the message that
// the bitmaps could not be made.
bool RebuildCharaBitmaps();

}  // namespace velmora
