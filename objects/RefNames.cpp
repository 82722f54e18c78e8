#include "objects/RefNames.h"

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/PaletteSources.h"

namespace velmora {
namespace {

const cRefNames g_default;
const cRefNames* g_installed = nullptr;

template <class tEntry>
std::string NameIn(const std::vector<tEntry>* list, int number) {
  if (!list || number < 0 || static_cast<size_t>(number) >= list->size()) return {};
  return (*list)[static_cast<size_t>(number)].m_strName;
}

}  // namespace

std::string cRefNames::DbRowName(eDbList, int) const { return {}; }
std::vector<int> cRefNames::FrameTimes(eDbList, int) const { return {}; }
int cRefNames::EffectTime(eDbList, int) const { return 0; }

std::string cRefNames::EntryName(ePalette palette, ePaletteList list, int number) const {
  const cPaletteLists& lists = InstalledPaletteLists(palette);
  switch (list) {
    case ePaletteList::Block: return NameIn(lists.blocks, number);
    case ePaletteList::Chara: return NameIn(lists.charas, number);
    case ePaletteList::Item: return NameIn(lists.items, number);
  }
  return {};
}

const cRefNames& RefNames() { return g_installed ? *g_installed : g_default; }
void InstallRefNames(const cRefNames* names) { g_installed = names; }

}  // namespace velmora
