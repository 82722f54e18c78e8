#pragma once
#include <cstdint>
#include <span>

namespace velmora {

class cEdSystem;

// A switch that brings back the game's behaviour of older versions. The
// flags stand in the system record in ascending gate order; a new project
// has them all off.
struct cCompatFlag {
  int32_t cEdSystem::*member;
  const char* name;
  uint32_t gate;
  uint32_t oldFrom;
  uint32_t oldTo;
  const char* text;  // UTF-8, the check box of the system pages

  // The value a file older than the gate gets.
  int32_t ValueForOldFile(uint32_t fileVersion) const;
};

std::span<const cCompatFlag> CompatFlags();

}  // namespace velmora
