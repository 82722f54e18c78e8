#pragma once

namespace velmora {

class PrjOption;

// Makes `edited` the project's options and writes data\PrjOption.dat. A
// file that can't be written is reported, and the options in force stay
// as they were.
bool SaveProjectOptions(const PrjOption& edited);

// The inherit defaults can only be edited with one flag per group of each
// kind. Anything else means the build or the file is wrong: that is told,
// every later save is forbidden and the editor ends, so the damage can't
// reach disk. False then.
bool CheckInheritDefaults(const PrjOption& option);

}  // namespace velmora
