#pragma once

namespace velmora {

// A stage's layers are blocks of tens of megabytes, freed and taken again
// at every load, resize and undo step. Mapped afresh each time, as the C
// library does with blocks this large, every page of them faults in again
// (on a virtual machine that costs more than reading the stage); kept in
// the heap, a new layer reuses the pages of the last. Called once, before
// the first stage is made.
void KeepLayersInHeap();

}  // namespace velmora
