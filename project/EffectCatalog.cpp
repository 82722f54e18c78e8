#include "project/EffectCatalog.h"

#include "core/SystemText.h"

namespace velmora {
namespace {

// The catalogues as written in the sources; labels and notes are UTF-8
// here and CP932 once built.
struct cParamRow {
  const char* label;
  int16_t min, max, def;
};

struct cKindRow {
  const char* name;
  const char* note;
  cParamRow params[cEffectCatalog::kParamCount];
};

constexpr cParamRow kTime5 = {"実行時間(1/10s)", 1, 9999, 5};
constexpr cParamRow kTime10 = {"実行時間(1/10s)", 1, 9999, 10};
constexpr const char* kNoteNone = "Direct3D有効時：\nDirect3D無効時：";

const cKindRow kCharaKinds[] = {
    {"破裂", kNoteNone, {kTime5, {"開始位置(dot)", 0, 999, 0}, {"終了位置(dot)", 0, 999, 32}}},
    {"分割（横）", kNoteNone,
     {kTime5, {"開始位置(dot)", 0, 999, 0}, {"終了位置(dot)", 0, 999, 32}, {"分割数", 2, 16, 4}}},
    {"分割（縦）", kNoteNone,
     {kTime5, {"開始位置(dot)", 0, 999, 0}, {"終了位置(dot)", 0, 999, 32}, {"分割数", 2, 16, 4}}},
    {"波（横）", "Direct3D有効時：\nDirect3D無効時：やや遅い",
     {kTime5, {"開始幅(dot)", 0, 999, 0}, {"終了幅(dot)", 0, 999, 32}, {"波の数", 2, 16, 2}, {"波の粗さ(dot)", 1, 4, 2}}},
    {"波（縦）", "Direct3D有効時：\nDirect3D無効時：やや遅い",
     {kTime5, {"開始幅(dot)", 0, 999, 0}, {"終了幅(dot)", 0, 999, 32}, {"波の数", 2, 16, 2}, {"波の粗さ(dot)", 1, 4, 2}}},
    {"点滅", "Direct3D有効時：速い\nDirect3D無効時：速い", {kTime10, {"点滅間隔(1/60s)", 1, 9999, 2}}},
    {"回転A", "Direct3D有効時：回転Aと回転Bは同じ\nDirect3D無効時：巨大キャラには実行速度重視",
     {kTime10, {"開始角度", 0, 9999, 0}, {"終了角度", 0, 9999, 1440}}},
    {"回転B", "Direct3D有効時：回転Aと回転Bは同じ\nDirect3D無効時：やや遅い。巨大キャラには描画精度重視",
     {kTime10, {"開始角度", 0, 9999, 0}, {"終了角度", 0, 9999, 1440}}},
    {"回転（奥）", kNoteNone, {kTime10, {"開始位置(dot)", 0, 9999, 0}, {"終了位置(dot)", 0, 9999, 256}}},
    {"円", "Direct3D有効時：\nDirect3D無効時：やや遅い",
     {kTime5, {"開始半径(dot)", 0, 32, 32}, {"終了半径(dot)", 0, 32, 0}, {"円の粗さ(dot)", 1, 4, 2}}},
    {"拡大", kNoteNone, {kTime10, {"開始幅(dot)", 0, 320, 32}, {"終了幅(dot)", 0, 320, 64}}},
    {"レンズ", "Direct3D有効時：遅過ぎ\nDirect3D無効時：遅い",
     {kTime10, {"開始距離", 0, 100, 100}, {"終了距離", 0, 100, 5}, {"ズレX(dot)", -16, 16, 0}, {"ズレY(dot)", -16, 16, 0}}},
    {"色変化", "Direct3D有効時：\nDirect3D無効時：画面が8bit色→精度悪い、16bit色以上→やや遅い",
     {kTime10, {"開始合成度", 1, 4, 1}, {"終了合成度", 1, 4, 1}, {"色", 16, 207, 16}}},
    {"半透明", "Direct3D有効時：\nDirect3D無効時：画面が8bit色→精度悪い、16bit色以上→遅過ぎ",
     {kTime10, {"点滅間隔(1/60s)", 1, 9999, 9999}}},
    {"モザイク", "Direct3D有効時：\nDirect3D無効時：画面が16bit色以上だと遅い",
     {kTime10, {"開始強度", 1, 16, 1}, {"終了強度", 1, 16, 8}}},
    {"ぼかし", "Direct3D有効時：やや遅い\nDirect3D無効時：画面が16bit色以上でのみ有効。遅い",
     {kTime10, {"開始強度", 1, 4, 1}, {"終了強度", 1, 4, 4}}},
};

const cKindRow kScrKinds[] = {
    {"移動", kNoteNone,
     {kTime10, {"開始座標X(dot)", -640, 640, 0}, {"開始座標Y(dot)", -480, 480, 0}, {"終了座標X(dot)", -640, 640, 640},
      {"終了座標Y(dot)", -480, 480, 0}}},
    {"振動（横）", kNoteNone, {kTime10, {"振動幅(dot)", 1, 640, 4}, {"振動回数", 1, 9999, 4}}},
    {"振動（縦）", kNoteNone, {kTime10, {"振動幅(dot)", 1, 480, 4}, {"振動回数", 1, 9999, 4}}},
    {"分割（横）", kNoteNone,
     {kTime10, {"開始位置(dot)", 0, 640, 0}, {"終了位置(dot)", 0, 640, 640}, {"分割数", 2, 240, 15}}},
    {"分割（縦）", kNoteNone,
     {kTime10, {"開始位置(dot)", 0, 480, 0}, {"終了位置(dot)", 0, 480, 480}, {"分割数", 2, 320, 20}}},
    {"波（横）", "Direct3D有効時：やや遅い\nDirect3D無効時：やや遅い",
     {kTime10, {"開始幅(dot)", 0, 640, 0}, {"終了幅(dot)", 0, 640, 640}, {"波の数", 2, 240, 4}, {"波の粗さ(dot)", 1, 48, 8}}},
    {"波（縦）", "Direct3D有効時：やや遅い\nDirect3D無効時：やや遅い",
     {kTime10, {"開始幅(dot)", 0, 480, 0}, {"終了幅(dot)", 0, 480, 480}, {"波の数", 2, 320, 4}, {"波の粗さ(dot)", 1, 64, 10}}},
    {"点滅", "Direct3D有効時：速い\nDirect3D無効時：速い", {kTime10, {"点滅間隔(1/60s)", 1, 9999, 10}}},
    {"回転", "Direct3D有効時：\nDirect3D無効時：遅い", {kTime10, {"開始角度", 0, 9999, 0}, {"終了角度", 0, 9999, 1440}}},
    {"円", "Direct3D有効時：やや遅い\nDirect3D無効時：やや遅い",
     {kTime10, {"開始半径(dot)", 0, 640, 640}, {"終了半径(dot)", 0, 640, 0}, {"円の粗さ(dot)", 1, 48, 8}}},
    {"拡大", "Direct3D有効時：\nDirect3D無効時：やや遅い",
     {kTime10, {"開始幅(dot)", 0, 6400, 640}, {"終了幅(dot)", 0, 6400, 1280}}},
    {"レンズ", "Direct3D有効時：遅過ぎ\nDirect3D無効時：遅過ぎ",
     {kTime10, {"開始距離", 0, 1500, 1500}, {"終了距離", 0, 1500, 5}, {"ズレX(dot)", -320, 320, 0},
      {"ズレY(dot)", -240, 240, 0}}},
    {"モザイク", "Direct3D有効時：遅過ぎ\nDirect3D無効時：画面が16bit色以上だと遅過ぎ",
     {kTime10, {"開始強度", 1, 240, 1}, {"終了強度", 1, 240, 60}}},
};

template <size_t N>
std::vector<cEffectCatalog::cKind> Build(const cKindRow (&rows)[N]) {
  std::vector<cEffectCatalog::cKind> kinds(1);  // kind 0: no name, no parameters
  for (const cKindRow& row : rows) {
    cEffectCatalog::cKind kind;
    kind.name = SysText(row.name);
    kind.note = SysText(row.note);
    for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
      const cParamRow& param = row.params[slot];
      if (!param.label) continue;
      kind.params[slot] = {SysText(param.label), param.min, param.max, param.def};
    }
    kinds.push_back(std::move(kind));
  }
  return kinds;
}

const std::string kEmpty;
const cEffectParamDef kEmptySlot;

}  // namespace

const cEffectCatalog::cKind* cEffectCatalog::Find(int kind) const {
  if (kind < 0 || kind >= KindCount()) return nullptr;
  return &m_vecKinds[static_cast<size_t>(kind)];
}

const std::string& cEffectCatalog::Name(int kind) const {
  const cKind* found = Find(kind);
  return found ? found->name : kEmpty;
}

const std::string& cEffectCatalog::Note(int kind) const {
  const cKind* found = Find(kind);
  return found ? found->note : kEmpty;
}

const cEffectParamDef& cEffectCatalog::Param(int kind, int slot) const {
  const cKind* found = Find(kind);
  if (!found || slot < 0 || slot >= kParamCount) return kEmptySlot;
  return found->params[slot];
}

std::vector<std::string> cEffectCatalog::ChoiceNames() const {
  std::vector<std::string> names;
  for (int kind = 1; kind < KindCount(); ++kind) names.push_back(Name(kind));
  return names;
}

void cEffectCatalog::FillDefaults(int kind, int32_t (&params)[kParamCount]) const {
  for (int slot = 0; slot < kParamCount; ++slot) params[slot] = Param(kind, slot).m_sDefault;
}

const cEffectCatalog& CharaEffectCatalog() {
  static const cEffectCatalog catalog(Build(kCharaKinds));
  return catalog;
}

const cEffectCatalog& ScrEffectCatalog() {
  static const cEffectCatalog catalog(Build(kScrKinds));
  return catalog;
}

}  // namespace velmora
