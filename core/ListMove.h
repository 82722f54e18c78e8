#pragma once
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace velmora {

// The operations of the move dialog, in the order of its combo box.
enum class eMoveOp : int32_t { Move = 0, CopyInsert = 1, Erase = 2 };

// What the author asks of the move dialog. Numbers are vector indices;
// entry 0 is the reserved first entry and never takes part.
struct cMoveRequest {
  int32_t nFirst = 1;
  int32_t nLast = 1;
  int32_t nTarget = 1;
  int32_t nOp = static_cast<int32_t>(eMoveOp::Move);
};

// Where an entry inserted at `index` of a palette vector goes. At or
// behind the end it is appended, and so it is below 1, where it would push
// the reserved entry off its place.
inline int EntryInsertPosition(int index, int size) { return (index < 1 || index >= size) ? size : index; }

// Moves, copies or erases entries first..last of a palette vector. A range
// that isn't one of real entries, an unknown operation, or a move onto the
// range's own place does nothing. Returns whether the vector changed.
template <class Element>
bool MoveEntries(std::vector<Element>& vec, const cMoveRequest& request) {
  const int count = static_cast<int>(vec.size());
  const int first = request.nFirst;
  const int n = request.nLast - first + 1;
  const auto op = static_cast<eMoveOp>(request.nOp);
  if (n < 1 || first < 1 || request.nLast >= count) return false;
  if (request.nOp < 0 || request.nOp > static_cast<int32_t>(eMoveOp::Erase)) return false;
  if (op == eMoveOp::Move && (request.nTarget == first || request.nTarget == first + 1)) return false;
  const auto begin = vec.begin() + first;
  const auto end = begin + n;
  std::vector<Element> range(begin, end);
  if (op != eMoveOp::CopyInsert) vec.erase(begin, end);
  if (op == eMoveOp::Erase) return true;
  // A target behind the range's start counts in the list as it was.
  const int at = (op == eMoveOp::Move && request.nTarget >= first) ? request.nTarget - n : request.nTarget;
  for (int i = 0; i < n; ++i) {
    const int position = EntryInsertPosition(at + i, static_cast<int>(vec.size()));
    vec.insert(vec.begin() + position, std::move(range[static_cast<size_t>(i)]));
  }
  return true;
}

// The palette's selection after a move: past the end it falls on the last entry.
inline int SelectionAfterMove(int sel, int count) { return sel >= count ? count - 1 : sel; }

}  // namespace velmora
