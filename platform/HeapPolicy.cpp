#include "platform/HeapPolicy.h"

#include <malloc.h>

namespace velmora {
namespace {

// Above the largest layer of a 512 x 512 stage (about 60 MB) with room to
// spare; anything larger is still mapped on its own.
constexpr int kLargestHeapBlock = 256 << 20;

}  // namespace

void KeepLayersInHeap() {
  // Refused by a C library with a lower limit: the layers are then mapped
  // as before, which costs time but nothing else.
  mallopt(M_MMAP_THRESHOLD, kLargestHeapBlock);
  // A stage is loaded on a worker thread, which would get an arena of its
  // own: one that maps its blocks afresh and gives them back at every load.
  // With one arena for all, the worker's records go where the editor keeps
  // the rest, and the user-interface thread allocates little meanwhile.
  mallopt(M_ARENA_MAX, 1);
}

}  // namespace velmora
