#pragma once
#include <cstddef>
#include <cstdint>

#include "core/DataFile.h"
#include "core/SaveData.h"

namespace velmora {

// Each placement holds at least its index and the record's two counts.
inline constexpr uint64_t kMinPlacementBytes = 12;

// Reads one layer's placements: their count, then each cell index with the
// cell's record behind it, which `loadCell(index)` reads. A placement
// outside the layer's `cells` is damage in the file, not a fault of the
// editor: the stream is marked damaged and the read ends there.
template <class LoadCell>
void ReadPlacements(cDataFile& file, size_t cells, LoadCell loadCell) {
  const int32_t count = ReadCount(file, kMinPlacementBytes);
  for (int32_t i = 0; i < count; ++i) {
    int32_t index = 0;
    if (!file.ReadInt32(index)) return;
    if (index < 0 || static_cast<size_t>(index) >= cells) {
      file.MarkDamaged();
      return;
    }
    loadCell(static_cast<size_t>(index));
  }
}

}  // namespace velmora
