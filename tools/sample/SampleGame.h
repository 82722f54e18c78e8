#pragma once
#include <string>

namespace velmora::sample {

// The name the stand-in game program is built under, beside this generator.
inline constexpr char kStandinGameName[] = "velmora-standin-game";

// Copies the stand-in game program from beside the running executable into
// `folder`, executable, so that a test play of the sample project finds a
// game. False with a reason when there is none to copy.
bool PlaceStandinGame(const std::string& folder, std::string& error);

}  // namespace velmora::sample
