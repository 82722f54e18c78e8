#include "ui/whereused/EntryStartOfUse.h"

#include "core/SystemText.h"
#include "ui/entries/EntryIds.h"

namespace velmora {
namespace {

// The index names a field use by the label of the field; each stands on
// one page of its kind's editor.
struct cFieldControl {
  const char* label;  // UTF-8
  int control;
};

constexpr cFieldControl kFieldControls[] = {
    {"継承元", kIdInheritNo},
    {"グラフィック", kIdGraphicNo},
    {"取得アイテム", kIdGetItemNo},
    {"アニメセット", kIdAnimeSet},
    {"初期のキャラエフェクト", kIdStartEffect},
    {"死亡時のキャラエフェクト", kIdDeathEffect},
    {"体当たりのエフェクト", kIdBodyEffect},
    {"効果音", kIdGetSound},
};

int FieldControl(const std::string& label) {
  for (const cFieldControl& field : kFieldControls) {
    if (label == SysText(field.label)) return field.control;
  }
  return 0;
}

}  // namespace

cEditorStart EntryStartOfUse(const cUse& use) {
  cEditorStart start{0, use.flow, use.cmd, use.cond};
  if (!start.IsSet()) start.field = FieldControl(use.what);
  return start;
}

}  // namespace velmora
