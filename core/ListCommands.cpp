#include "core/ListCommands.h"

namespace velmora {

namespace {

struct sListIdRow {
  uint16_t cut, copy, paste;
  uint16_t clear0;            // family 0 menus
  uint16_t insert1, delete1;  // family 1 menus
};
constexpr sListIdRow kMenuRows[4] = {
    {40038, 40039, 40040, 40041, 40042, 40043},
    {40103, 40104, 40105, 40113, 40106, 40107},
    {40108, 40109, 40110, 40114, 40111, 40112},
    {40115, 40116, 40117, 40118, 40119, 40120},
};

struct sAccelRow {
  uint16_t cut, copy, paste;
  uint16_t append0, clear0;   // Ctrl+I and Delete in family 0
  uint16_t insert1, delete1;  // Ctrl+I and Delete in family 1
};
constexpr sAccelRow kAccelRows[4] = {
    {40009, 40001, 40007, 40002, 40008, 40033, 40032},
    {40019, 40012, 40017, 40013, 40018, 40034, 40035},
    {40029, 40022, 40027, 40023, 40028, 40036, 40037},
    {40098, 40091, 40096, 40092, 40097, 40101, 40102},
};

bool ValidList(int listNumber) { return listNumber >= 1 && listNumber <= 4; }

}  // namespace

ListCommandIds ListMenuIds(int listNumber, int family) {
  if (!ValidList(listNumber)) return {};
  const sListIdRow& r = kMenuRows[listNumber - 1];
  if (family == 0) return {r.cut, r.copy, r.paste, 0, 0, r.clear0, 0};
  return {r.cut, r.copy, r.paste, 0, r.insert1, 0, r.delete1};
}

ListCommandIds ListAcceleratorIds(int listNumber, int family) {
  if (!ValidList(listNumber)) return {};
  const sAccelRow& r = kAccelRows[listNumber - 1];
  if (family == 0) return {r.cut, r.copy, r.paste, r.append0, 0, r.clear0, 0};
  return {r.cut, r.copy, r.paste, 0, r.insert1, 0, r.delete1};
}

eListCommand CommandForId(const ListCommandIds& ids, int id) {
  if (id == 0) return eListCommand::None;
  for (int i = 0; i < kListCommandCount; ++i)
    if (ids[i] == id) return static_cast<eListCommand>(i);
  return eListCommand::None;
}

}  // namespace velmora
