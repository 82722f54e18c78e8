#include "project/whereused/UseTarget.h"

#include <charconv>
#include <iterator>

#include "core/SystemText.h"

namespace velmora {
namespace {

struct cKindRow {
  eUseKind kind;
  const char* word;
  const char* label;  // UTF-8 source, CP932 through SysText
  std::optional<eDbList> list;
};

// In the order of eUseKind.
constexpr cKindRow kKinds[] = {
    {eUseKind::VarCommon, "var-common", "コモン変数", std::nullopt},
    {eUseKind::VarStage, "var-stage", "ステージ変数", std::nullopt},
    {eUseKind::AnimeSet, "anime-set", "アニメセット", eDbList::AnimeSet},
    {eUseKind::Anime, "anime", "アニメ", eDbList::Anime},
    {eUseKind::SwordType, "sword", "ソードタイプ", eDbList::SwordType},
    {eUseKind::Effect, "effect", "エフェクト", eDbList::Effect},
    {eUseKind::CharaEffect, "chara-effect", "キャラエフェクト", eDbList::CharaEffect},
    {eUseKind::ScrEffect, "screen-effect", "画面エフェクト", eDbList::ScrEffect},
    {eUseKind::Picture, "picture", "ピクチャー", eDbList::Picture},
    {eUseKind::Sound, "sound", "効果音", eDbList::Sound},
    {eUseKind::Bgm, "bgm", "BGM", eDbList::Bgm},
    {eUseKind::Block, "block", "コモンパレットのブロック", std::nullopt},
    {eUseKind::Chara, "chara", "コモンパレットのキャラ", std::nullopt},
    {eUseKind::Item, "item", "コモンパレットのアイテム", std::nullopt},
    {eUseKind::StageBlock, "stage-block", "ステージパレットのブロック", std::nullopt},
    {eUseKind::StageChara, "stage-chara", "ステージパレットのキャラ", std::nullopt},
    {eUseKind::StageItem, "stage-item", "ステージパレットのアイテム", std::nullopt},
    {eUseKind::CharaBmp, "chara-bmp", "キャラの専用bmp", eDbList::BmpCharaExc},
};
static_assert(std::size(kKinds) == static_cast<size_t>(eUseKind::Count));

const cKindRow& RowOf(eUseKind kind) { return kKinds[static_cast<size_t>(kind)]; }

constexpr int kMaxSearchNumber = 9999;

}  // namespace

const char* UseKindWord(eUseKind kind) { return RowOf(kind).word; }
const char* UseKindLabel(eUseKind kind) { return SysText(RowOf(kind).label); }

eUseKind UseKindOf(eDbList list) {
  for (const cKindRow& row : kKinds) {
    if (row.list == list) return row.kind;
  }
  return eUseKind::Count;
}

eUseKind UseKindOf(ePaletteList list, ePalette palette) {
  constexpr eUseKind kCommon[] = {eUseKind::Block, eUseKind::Chara, eUseKind::Item};
  constexpr eUseKind kStage[] = {eUseKind::StageBlock, eUseKind::StageChara, eUseKind::StageItem};
  return (palette == ePalette::Common ? kCommon : kStage)[static_cast<size_t>(list)];
}

bool IsStagePaletteKind(eUseKind kind) {
  return kind == eUseKind::StageBlock || kind == eUseKind::StageChara || kind == eUseKind::StageItem;
}

std::optional<eDbList> DbListOf(eUseKind kind) { return RowOf(kind).list; }

std::optional<cUseTarget> ParseUseTarget(const std::string& word, const std::string& number) {
  int value = 0;
  const char* end = number.data() + number.size();
  auto [ptr, ec] = std::from_chars(number.data(), end, value);
  if (number.empty() || ec != std::errc() || ptr != end || value < 0 || value > kMaxSearchNumber) return std::nullopt;
  for (const cKindRow& row : kKinds) {
    if (word == row.word) return cUseTarget{row.kind, value};
  }
  return std::nullopt;
}

}  // namespace velmora
