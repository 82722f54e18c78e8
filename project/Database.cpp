#include "project/Database.h"

#include <cstdio>

#include "core/SystemText.h"

namespace velmora {
namespace {

constexpr cListRule kRealZero999 = {false, 1, 999};
constexpr cListRule kReserved999 = {true, 2, 999};
constexpr cListRule kReserved9999 = {true, 2, 9999};

const cDbListInfo kLists[kDbListCount] = {
    {ePath::AnimeSet, ePath::DefaultAnimeSet, kRealZero999},
    {ePath::Anime, ePath::DefaultAnime, kReserved999},
    {ePath::BmpCharaExc, ePath::DefaultBmpCharaExc, kReserved999},
    {ePath::SwordType, ePath::DefaultSwordType, {false, 1, 128}},
    {ePath::Effect, ePath::DefaultEffect, kReserved999},
    {ePath::CharaEffect, ePath::DefaultCharaEffect, kReserved999},
    {ePath::ScrEffect, ePath::DefaultScrEffect, kReserved999},
    {ePath::Picture, ePath::DefaultPicture, kReserved9999},
    {ePath::Sound, ePath::DefaultSound, kReserved9999},
    {ePath::Bgm, ePath::DefaultBgm, kReserved999},
};

constexpr int kOldSwordLimit = 128;

template <class T>
void ClearReservedKind(std::vector<T>& list) {
  if (!list.empty()) list[0].m_iKind = 0;
}

}  // namespace

const cDbListInfo& DbListInfo(eDbList list) { return kLists[static_cast<int>(list)]; }

void FixListAfterLoad(std::vector<cEdSwordType>& list) {
  if (g_nFileVersion < 828 && list.size() > kOldSwordLimit) list.resize(kOldSwordLimit);
}
void FixListAfterLoad(std::vector<cEdCharaEffect>& list) { ClearReservedKind(list); }
void FixListAfterLoad(std::vector<cEdScrEffect>& list) { ClearReservedKind(list); }
void FixListBeforeSave(std::vector<cEdCharaEffect>& list) { ClearReservedKind(list); }
void FixListBeforeSave(std::vector<cEdScrEffect>& list) { ClearReservedKind(list); }

cDbListBase& cEdDatabase::List(eDbList list) {
  cDbListBase* const lists[kDbListCount] = {&m_AnimeSet, &m_Anime,       &m_CharaBmp, &m_SwordType, &m_Effect,
                                            &m_CharaEffect, &m_ScrEffect, &m_Picture,  &m_Sound,     &m_Bgm};
  const int index = static_cast<int>(list);
  return *lists[index >= 0 && index < kDbListCount ? index : 0];
}

const cDbListBase& cEdDatabase::List(eDbList list) const { return const_cast<cEdDatabase*>(this)->List(list); }

bool cEdDatabase::LoadList(eDbList list, const std::string& name) { return List(list).LoadFile(name) != 0; }

bool cEdDatabase::Load(std::string& failedFile) {
  for (int i = 0; i < kDbListCount; ++i) {
    const eDbList list = static_cast<eDbList>(i);
    const std::string& name = PathOf(DbListInfo(list).file);
    if (!LoadList(list, name)) {
      failedFile = name;
      return false;
    }
  }
  return true;
}

bool cEdDatabase::Save(bool upgradeOnly) {
  bool all = true;
  for (int i = 0; i < kDbListCount; ++i) {
    const eDbList list = static_cast<eDbList>(i);
    const std::string& name = PathOf(DbListInfo(list).file);
    if (upgradeOnly && !IsOlderFile(name, kCurrentVersion)) continue;
    if (!List(list).SaveFile(name)) all = false;
  }
  return all;
}

std::string cEdDatabase::ReferenceLabel(eDbList list, int index) const {
  const cDbListBase& entries = List(list);
  const bool none = index < 0 || index >= entries.Count() || (DbListInfo(list).rule.reservedZero && index == 0);
  return none ? SysText("なし") : entries.NameAt(index);
}

std::vector<std::string> cEdDatabase::ChoiceLabels(eDbList list) const {
  std::vector<std::string> labels;
  for (int index = 0; index < Count(list); ++index) labels.push_back(ReferenceLabel(list, index));
  return labels;
}

cEdDatabase& Database() {
  static cEdDatabase database;
  return database;
}

std::string LoadFailureText(const std::string& path) {
  const char* format = g_bFileTooNew
                           ? SysText("%s の読み込みに失敗しました！\n実行ファイル(.exe)より上位のバージョンのファイルは使用できません。")
                           : SysText("%s の読み込みに失敗しました！\nこのファイルが存在しない場合は「default」フォルダから「data」フォルダへ同名のファイルをコピーして下さい。");
  char text[1024];
  std::snprintf(text, sizeof text, format, path.c_str());
  return text;
}

}  // namespace velmora
