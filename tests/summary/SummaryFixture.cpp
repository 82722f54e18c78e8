#include "summary/SummaryFixture.h"

namespace velmora::testing {

std::string cFakeRefNames::DbRowName(eDbList list, int row) const {
  static const char* const kTags[] = {"セット", "アニメ", "専用", "剣", "炎", "光", "揺れ", "絵", "音", "曲"};
  return ToCp932(std::string(kTags[static_cast<int>(list)]) + std::to_string(row));
}

std::vector<int> cFakeRefNames::FrameTimes(eDbList list, int row) const {
  if (list == eDbList::Anime && row == 3) return {3, 4};
  if (row == 9) return {5000, 5000, 5000};
  return {};
}

std::string cFakeRefNames::EntryName(ePalette palette, ePaletteList list, int number) const {
  if (palette == ePalette::Common && list == ePaletteList::Block && number == 3) return ToCp932("岩");
  if (palette == ePalette::Stage && list == ePaletteList::Item && number == 2) return ToCp932("鍵");
  return {};
}

void SummaryTest::SetUp() {
  InstallRefNames(&m_names);
  SetObjectContext(eObjectContext::CharaEditor);
  g_vecCommonVar.assign(kCommonVarCount, cStageVar());
  m_stageVars.resize(20);
  SetStageVarList(&m_stageVars);
  struct cNamed {
    std::vector<cStageVar>& list;
    int number;
    const char* name;
  };
  for (const cNamed& var : {cNamed{g_vecCommonVar, 7, "体力"}, cNamed{m_stageVars, 4, "残機"}, cNamed{m_stageVars, 12, "鍵"}}) {
    var.list[static_cast<size_t>(var.number)].m_strName = ToCp932(var.name);
  }
}

void SummaryTest::TearDown() {
  InstallRefNames(nullptr);
  SetStageVarList(nullptr);
  g_vecCommonVar.clear();
}

}  // namespace velmora::testing
