#pragma once
#include <vector>

namespace velmora {

// The operations of the move dialog, in the order of its combo box.
enum class eMoveOp { Move = 0, CopyInsert = 1, Erase = 2 };

// Moves, copies or erases entries first..last of a palette vector; entry 0
// is the reserved first entry and never takes part. Numbers are vector
// indices. A range outside the vector, or an empty one, does nothing.
// Returns whether the vector changed.
template <class Element>
bool MoveEntries(std::vector<Element>& vec, int first, int last, int target, eMoveOp op) {
  const int count = static_cast<int>(vec.size());
  const int n = last - first + 1;
  if (n < 1 || first < 1 || last >= count) return false;
  if (op != eMoveOp::Erase && (target < 1 || target > count)) return false;
  if (op == eMoveOp::Move && (target == first || target == first + 1)) return false;
  std::vector<Element> range(vec.begin() + first, vec.begin() + last + 1);
  if (op != eMoveOp::CopyInsert) vec.erase(vec.begin() + first, vec.begin() + last + 1);
  if (op == eMoveOp::Erase) return true;
  int at = target;
  if (op == eMoveOp::Move && target >= first) at = target - n;
  // A target inside the moved range has no place left after the erase.
  if (at < 1 || at > static_cast<int>(vec.size())) {
    vec.insert(vec.begin() + first, range.begin(), range.end());
    return false;
  }
  vec.insert(vec.begin() + at, range.begin(), range.end());
  return true;
}

// The palette's selection after a move: past the end it falls on the last entry.
inline int SelectionAfterMove(int sel, int count) { return sel >= count ? count - 1 : sel; }

}  // namespace velmora
