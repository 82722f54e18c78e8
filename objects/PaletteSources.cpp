#include "objects/PaletteSources.h"

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/PaletteTables.h"

namespace velmora {
namespace {

cPaletteLists g_palettes[2];

const cPaletteLists* ListsOf(int source) {
  if (source == kInheritCommon) return &g_palettes[static_cast<int>(ePalette::Common)];
  if (source == kInheritStage) return &g_palettes[static_cast<int>(ePalette::Stage)];
  return nullptr;
}

}  // namespace

void InstallPaletteLists(ePalette which, const cPaletteLists& lists) { g_palettes[static_cast<int>(which)] = lists; }

const cPaletteLists& InstalledPaletteLists(ePalette which) { return g_palettes[static_cast<int>(which)]; }

const std::vector<cEdBlock>* SourceList(const cEdBlock&, int source) {
  const cPaletteLists* lists = ListsOf(source);
  return lists ? lists->blocks : nullptr;
}

const std::vector<cEdChara>* SourceList(const cEdChara&, int source) {
  const cPaletteLists* lists = ListsOf(source);
  return lists ? lists->charas : nullptr;
}

const std::vector<cEdItem>* SourceList(const cEdItem&, int source) {
  const cPaletteLists* lists = ListsOf(source);
  return lists ? lists->items : nullptr;
}

int PaletteSize(int source, ePaletteList list) {
  return RefSizes().PaletteListSize(source == kInheritCommon ? ePalette::Common : ePalette::Stage, list);
}

int cPaletteRefSizes::PaletteListSize(ePalette palette, ePaletteList list) const {
  const cPaletteLists& lists = g_palettes[static_cast<int>(palette)];
  switch (list) {
    case ePaletteList::Block: return lists.blocks ? static_cast<int>(lists.blocks->size()) : cRefSizes::PaletteListSize(palette, list);
    case ePaletteList::Chara: return lists.charas ? static_cast<int>(lists.charas->size()) : cRefSizes::PaletteListSize(palette, list);
    case ePaletteList::Item: return lists.items ? static_cast<int>(lists.items->size()) : cRefSizes::PaletteListSize(palette, list);
  }
  return cRefSizes::PaletteListSize(palette, list);
}

}  // namespace velmora
