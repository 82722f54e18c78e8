#pragma once
#include <string>
#include <vector>

namespace velmora {

// Whether the file at `stored` carries the game program's mark.
bool IsGameProgram(const std::string& stored);

// The game program of the project in the current directory: the path of
// the project option when the automatic search is off (true only when that
// file exists), else the first file of the project folder, by name, that
// carries the mark. `out` is a stored path, empty on false.
bool FindGameProgram(std::string& out);

// A Windows program runs through this loader, looked up on PATH.
inline constexpr char kWineCommand[] = "wine";

// Whether `program` is a Windows program, which runs through wine.
bool RunsUnderWine(const std::string& program);

// The command that starts `program` with `args`: the program itself, or for
// a Windows program the Windows loader found on PATH. `searchPath` tells
// whether argv[0] is to be looked up there.
std::vector<std::string> GameCommand(const std::string& program, const std::vector<std::string>& args,
                                     bool& searchPath);

}  // namespace velmora
