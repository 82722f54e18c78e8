#pragma once
#include <cstdint>

// How a game program says that it is one, so that the editor can pick it
// out of the executables of a project folder.
//
// A native program carries an ELF note: name "Velmora", type 1, descriptor
// the four bytes "GAME". A Windows program carries the wide string "GAME"
// as string resource 1, the way the games of Windows projects always have.

namespace velmora {

inline constexpr char kGameNoteName[] = "Velmora";
inline constexpr uint32_t kGameNoteType = 1;
inline constexpr char kGameMarkText[] = "GAME";
inline constexpr uint16_t kGameStringId = 1;

}  // namespace velmora

// Placed once at file scope in a game program's sources, this gives the
// program its note. The sizes are those of the name with its zero and of
// the descriptor.
#define VELMORA_GAME_MARK()                                   \
  static_assert(sizeof(velmora::kGameNoteName) == 8);         \
  static_assert(sizeof(velmora::kGameMarkText) - 1 == 4);     \
  asm(".pushsection .note.velmora, \"a\", @note\n"             \
      ".balign 4\n"                                           \
      ".long 8\n"                                             \
      ".long 4\n"                                             \
      ".long 1\n"                                             \
      ".asciz \"Velmora\"\n"                                  \
      ".ascii \"GAME\"\n"                                     \
      ".balign 4\n"                                           \
      ".popsection\n")
