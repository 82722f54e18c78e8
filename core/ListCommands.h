#pragma once
#include <array>
#include <cstdint>

namespace velmora {

// The seven element commands of a list, in the order both id sets use.
enum class eListCommand { Cut, Copy, Paste, Append, Insert, Clear, Delete, None };
constexpr int kListCommandCount = 7;

using ListCommandIds = std::array<uint16_t, kListCommandCount>;

// Ids a list answers to. Family 0 lists clear and append, family 1 lists
// insert and delete; an id of 0 means the list has no such command. Several
// lists in one window keep apart by taking different list numbers (1 to 4).
ListCommandIds ListMenuIds(int listNumber, int family);
ListCommandIds ListAcceleratorIds(int listNumber, int family);

// The command an id stands for in a set, or None.
eListCommand CommandForId(const ListCommandIds& ids, int id);

}  // namespace velmora
