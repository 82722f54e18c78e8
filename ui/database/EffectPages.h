#pragma once
namespace velmora {

// The pages "キャラエフェクト" and "画面エフェクト": a kind of its catalogue
// and the kind's five parameters. The first of the binder's ids on both: the kind's combo box; the
// pages is the kind's combo box; the note, the swatch, the five labels,
// the five edits and their spins follow.
inline constexpr int kIdEffectKind = 1140;
inline constexpr int kIdEffectParam = kIdEffectKind + 3 + 5;

}  // namespace velmora
