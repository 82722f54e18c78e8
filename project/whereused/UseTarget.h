#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include "objects/RefSizes.h"

namespace velmora {

// What can be searched for: a variable of a scope, a row of a database
// list, or an entry of the common palette or of one stage's own palette.
enum class eUseKind : uint8_t {
  VarCommon,
  VarStage,
  AnimeSet,
  Anime,
  SwordType,
  Effect,
  CharaEffect,
  ScrEffect,
  Picture,
  Sound,
  Bgm,
  Block,
  Chara,
  Item,
  StageBlock,
  StageChara,
  StageItem,
  CharaBmp,
  Count
};

struct cUseTarget {
  eUseKind kind = eUseKind::VarCommon;
  int32_t number = 0;
  auto operator<=>(const cUseTarget&) const = default;
};

// The word the command line takes for a kind ("var-common", "sound", ...)
// and the name the search window shows (CP932).
const char* UseKindWord(eUseKind kind);
const char* UseKindLabel(eUseKind kind);

eUseKind UseKindOf(eDbList list);
eUseKind UseKindOf(ePaletteList list, ePalette palette = ePalette::Common);
// An entry of a stage's own palette is used only inside that stage's file.
bool IsStagePaletteKind(eUseKind kind);
// The list a database kind searches; none for variables and entries.
std::optional<eDbList> DbListOf(eUseKind kind);

// "sound" and "5" make sound row 5; none for an unknown word or a number
// that is not a whole number from 0 to 9999.
std::optional<cUseTarget> ParseUseTarget(const std::string& word, const std::string& number);

}  // namespace velmora
