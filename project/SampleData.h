#pragma once
#include <string>
#include <vector>

namespace velmora {

// The project-wide files of a sample project, made from code: a database
// naming the pictures the sample generator draws and its sounds
// (wave\free.wav, bgm\Free.mid, bgm\Free.ogg), a world map and a system
// record. Each writes into data\ or into default\ and makes the folders it
// needs; false when a file could not be written.
enum class eDataFolder { Data, Default };

bool WriteSampleDatabase(eDataFolder folder);
// One world event per stage, in order along the map's road; `stages` are
// stage paths relative to the project folder.
bool WriteSampleWorldMap(eDataFolder folder, const std::vector<std::string>& stages);
bool WriteSampleSystem(eDataFolder folder);

}  // namespace velmora
