#pragma once
#include <cstdint>
#include <string>

namespace velmora {

// Layer bits of an undo step.
inline constexpr uint32_t kLayerBlock = 1;
inline constexpr uint32_t kLayerChara = 2;
inline constexpr uint32_t kLayerItem = 4;
inline constexpr uint32_t kLayerAll = 7;

inline uint32_t LayerBit(int layer) { return 1u << layer; }

// The undo history of the edit stage: whole-layer snapshots in slots that
// all exist beforehand, so recording inside a stroke allocates nothing.
void ClearHistory();
// Lowers the edit stage's level count when free memory is short.
void AllocHistory(int levels, int pitch, int height);
// The history for the edit stage as it now stands: after new, open, close
// and a palette load.
void RebuildHistory();
// Estimated bytes of one step of a stage of this size.
uint64_t EstimateStep(int width, int height);
void RecordStep(uint32_t mask);
void Undo();
void Redo();
bool CanUndo();
bool CanRedo();

}  // namespace velmora
