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

class cEdBlock;
class cEdChara;
class cEdItem;

// The undo history of the edit stage. A step holds the cells that it
// changed: recording opens a step, and every write to a cell of the edit
// stage tells the open step first, which keeps the cell as it was.
void ClearHistory();
// Lowers the edit stage's level count when free memory is short.
void AllocHistory(int levels, int pitch, int height);
// The history for the edit stage as it now stands: after new, open, close
// and a palette load.
void RebuildHistory();
// Estimated bytes of one step of a stage of this size.
uint64_t EstimateStep(int width, int height);
void RecordStep(uint32_t mask);
// Called before a cell of the edit stage is written; cells of other
// stages, and layers outside the open step's mask, are passed over.
void NoteCellWrite(const cEdBlock& cell);
void NoteCellWrite(const cEdChara& cell);
void NoteCellWrite(const cEdItem& cell);
// For an operation that rewrites whole layers: every occupied cell of the
// layers in the mask.
void NoteLayerWrite(uint32_t mask);
void Undo();
void Redo();
bool CanUndo();
bool CanRedo();

}  // namespace velmora
