#include "objects/Palette.h"

#include "core/PrjOption.h"

namespace velmora {
namespace {

template <class T>
void BlankFirst(std::vector<T>& list) {
  if (!list.empty()) list[0].ResetEntry();
}

template <class T>
void ClearInheritFlags(std::vector<T>& list) {
  for (T& entry : list) std::fill(entry.m_bbInherit.begin(), entry.m_bbInherit.end(), 0);
}

template <class T>
void FillToTwo(std::vector<T>& list, const T& defaultEntry) {
  if (list.size() >= 2) return;
  list.resize(2);
  list[1] = defaultEntry;
}

}  // namespace

void cPalette::Load(cDataFile& file) {
  cSaveData::Load(file);
  ReadPaletteLists(Lists(), file);
  BlankFirstEntries(Lists());
  // The common palette inherits from nothing.
  ClearInheritFlags(m_vecBlockPlt);
  ClearInheritFlags(m_vecCharaPlt);
  ClearInheritFlags(m_vecItemPlt);
  NormalizePalette(Lists());
}

void cPalette::Save(cDataFile& file) {
  NormalizePalette(Lists());
  cSaveData::Save(file);
  WritePaletteLists(Lists(), file);
}

void cPalette::VisitNested(cNestedVisitor& visitor) const {
  VisitVector(visitor, "m_vecBlockPlt", m_vecBlockPlt);
  VisitVector(visitor, "m_vecCharaPlt", m_vecCharaPlt);
  VisitVector(visitor, "m_vecItemPlt", m_vecItemPlt);
}

void BlankFirstEntries(const cPaletteLists& lists) {
  BlankFirst(*lists.blocks);
  BlankFirst(*lists.charas);
  BlankFirst(*lists.items);
}

void NormalizePalette(const cPaletteLists& lists) {
  const PrjOption& option = ProjectOption();
  FillToTwo(*lists.blocks, option.m_DefBlock);
  FillToTwo(*lists.charas, option.m_DefChara);
  FillToTwo(*lists.items, option.m_DefItem);
  for (cEdBlock& block : *lists.blocks) {
    block.CheckRefs();
    block.CheckItemRef();
  }
  for (cEdChara& chara : *lists.charas) {
    chara.CheckRefs();
    chara.CheckCmdRefs();
  }
  for (cEdItem& item : *lists.items) {
    item.CheckRefs();
    item.CheckCmdRefs();
  }
}

void ReadPaletteLists(const cPaletteLists& lists, cDataFile& file) {
  LoadVector(*lists.blocks, file);
  LoadVector(*lists.charas, file);
  LoadVector(*lists.items, file);
}

void WritePaletteLists(const cPaletteLists& lists, cDataFile& file) {
  SaveVector(*lists.blocks, file);
  SaveVector(*lists.charas, file);
  SaveVector(*lists.items, file);
}

cPalette& CommonPalette() {
  static cPalette palette;
  return palette;
}

}  // namespace velmora
