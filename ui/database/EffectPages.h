#pragma once
#include <memory>

#include "project/DatabaseWork.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// "キャラエフェクト" and "画面エフェクト": a kind of its catalogue and the
// kind's five parameters.
std::unique_ptr<cDialog> MakeCharaEffectPage(cDialogManager& manager, cDatabaseWork& work);
std::unique_ptr<cDialog> MakeScrEffectPage(cDialogManager& manager, cDatabaseWork& work);

// The first of the binder's ids on both pages: the kind's combo box; the
// note, the swatch, the five labels, the five edits and their spins follow.
inline constexpr int kIdEffectKind = 1140;
inline constexpr int kIdEffectParam = kIdEffectKind + 3 + 5;

}  // namespace velmora
