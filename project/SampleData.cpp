#include "project/SampleData.h"

#include <cstdio>
#include <initializer_list>
#include <utility>

#include "core/ProjectPaths.h"
#include "core/SystemText.h"
#include "platform/FileSystem.h"
#include "project/Database.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"

namespace velmora {
namespace {

using cSteps = std::initializer_list<std::pair<int, int>>;  // (cell, time)

std::string FolderOf(eDataFolder folder) { return PathOf(folder == eDataFolder::Data ? ePath::Data : ePath::Default); }

template <class Frame>
std::vector<Frame> Frames(cSteps steps) {
  std::vector<Frame> frames;
  for (auto [cell, time] : steps) {
    Frame frame;
    frame.m_iCell = cell;
    frame.m_iTime = time;
    frames.push_back(frame);
  }
  return frames;
}

cEdAnime Anime(const char* name, eGraphicKind kind, int16_t number, cSteps steps) {
  cEdAnime anime;
  anime.m_strName = SysText(name);
  anime.m_cSampleKind = static_cast<int8_t>(kind);
  anime.m_iSampleNo = number;
  anime.m_vecFrames = Frames<cEdAnimeFrame>(steps);
  return anime;
}

cEdAnimeSet AnimeSet(const char* name, int16_t chara, int32_t flyShift) {
  cEdAnimeSet set;
  set.m_strName = SysText(name);
  set.m_iFlyShift = flyShift;
  const cSteps slots[cEdAnimeSet::kSlotCount] = {
      {{0, 5}, {1, 5}}, {{2, 2}, {3, 2}, {4, 2}, {3, 2}}, {{0, 4}, {1, 4}}, {{2, 3}, {3, 3}}};
  for (int slot = 0; slot < cEdAnimeSet::kSlotCount; ++slot) {
    cEdAnime& anime = set.m_vecAnime[static_cast<size_t>(slot)];
    anime.m_iSampleNo = chara;
    anime.m_vecFrames = Frames<cEdAnimeFrame>(slots[slot]);
  }
  return set;
}

template <class Entry>
Entry FileEntry(const char* name, const char* path) {
  Entry entry;
  entry.m_strName = SysText(name);
  entry.m_strPath = path;
  return entry;
}

template <class Effect>
Effect KindEffect(const char* name, int kind) {
  Effect effect;
  effect.m_strName = SysText(name);
  effect.m_iKind = kind;
  effect.Catalog().FillDefaults(kind, effect.m_aiParam);
  return effect;
}

cEdSwordType Sword() {
  cEdSwordType sword;
  sword.m_strName = SysText("ソード");
  sword.m_strLeftPath = sword.m_strRightPath = "bmp\\Accessory.bmp";
  sword.m_vecPositions.assign(3, cEdSwordPos());
  for (int i = 0; i < 3; ++i) {
    cEdSwordPos& pos = sword.m_vecPositions[static_cast<size_t>(i)];
    pos.m_iOffsetX = 16 + 8 * i;
    pos.m_iSrcX = 32 * i;
    pos.m_iWidth = pos.m_iHeight = 32;
    pos.m_iTime = 1;
  }
  return sword;
}

cEdEffect Effect(const char* name, const char* path, cSteps steps) {
  cEdEffect effect = FileEntry<cEdEffect>(name, path);
  effect.m_vecFrames = Frames<cEdEffectFrame>(steps);
  return effect;
}

// Each reserved list starts with its default entry 0.
template <class T>
void Fill(cDbList<T>& list, bool reservedZero, std::initializer_list<T> entries) {
  list.m_vecEntries.clear();
  if (reservedZero) list.m_vecEntries.emplace_back();
  list.m_vecEntries.insert(list.m_vecEntries.end(), entries);
}

cEdDatabase SampleDatabase() {
  cEdDatabase db;
  Fill(db.m_AnimeSet, false, {AnimeSet("主人公", 1, 0), AnimeSet("敵", 2, 0), AnimeSet("飛行敵", 3, 4)});
  Fill(db.m_Anime, true,
       {Anime("コイン", kGraphicKindItem, 1, {{0, 1}, {1, 1}, {2, 1}, {3, 1}}),
        Anime("ジャンプ", kGraphicKindChara, 1, {{5, 2}, {6, 4}}),
        Anime("点滅ブロック", kGraphicKindBlock, 2, {{0, 3}, {1, 3}})});
  Fill(db.m_CharaBmp, true, {FileEntry<cEdCharaBmp>("キャラ1", "bmp\\Character1.bmp")});
  Fill(db.m_SwordType, false, {Sword()});
  Fill(db.m_Effect, true,
       {Effect("爆発", "bmp\\Mark.bmp", {{0, 1}, {1, 1}, {2, 1}, {3, 1}}), Effect("煙", "bmp\\Shot.bmp", {{4, 2}, {5, 2}})});
  Fill(db.m_CharaEffect, true,
       {KindEffect<cEdCharaEffect>("破裂", 1), KindEffect<cEdCharaEffect>("点滅", 6),
        KindEffect<cEdCharaEffect>("回転", 7)});
  db.m_CharaEffect.m_vecEntries[0].m_iKind = 0;
  Fill(db.m_ScrEffect, true, {KindEffect<cEdScrEffect>("振動", 2), KindEffect<cEdScrEffect>("モザイク", 13)});
  db.m_ScrEffect.m_vecEntries[0].m_iKind = 0;
  Fill(db.m_Picture, true,
       {FileEntry<cEdPicture>("背景", "bmp\\WorldBack.bmp"), FileEntry<cEdPicture>("ブロック", "bmp\\Block.bmp")});
  cEdSound sound = FileEntry<cEdSound>("free", "wave\\free.wav");
  sound.m_bNameFromFile = 1;
  Fill(db.m_Sound, true, {sound});
  cEdBgm ogg = FileEntry<cEdBgm>("フリーOGG", "bgm\\Free.ogg");
  ogg.m_iVolume = 80;
  Fill(db.m_Bgm, true, {FileEntry<cEdBgm>("フリーMIDI", "bgm\\Free.mid"), ogg});
  return db;
}

struct cChipRow {
  const char* name;
  int32_t graphic;
  int32_t blocked;
};
// Graphics are cells of the sample's chip sheet: grass, road, forest,
// mountain and water.
const cChipRow kChips[] = {{"草原", 0, 0}, {"道", 3, 0}, {"森", 4, 0}, {"山", 5, 1}, {"海", 1, 1}};
enum eSampleChip { ChipGrass, ChipRoad, ChipForest, ChipMountain, ChipSea };

cEdWorldMap SampleWorldMap(const std::vector<std::string>& stages) {
  cEdWorldMap map;
  for (const cChipRow& row : kChips) {
    cEdWorldChip chip;
    chip.m_strName = SysText(row.name);
    chip.m_iGraphic = row.graphic;
    chip.m_bBlocked = row.blocked;
    map.m_vecChips.push_back(chip);
  }
  const int roadY = map.m_iStartY;
  for (int y = 0; y < map.m_nHeight; ++y) {
    for (int x = 0; x < map.m_nWidth; ++x) {
      const bool border = x == 0 || y == 0 || x == map.m_nWidth - 1 || y == map.m_nHeight - 1;
      const int chip = border ? ChipSea : y == roadY && x >= 2 && x < map.m_nWidth - 2 ? ChipRoad
                                        : (x + y) % 7 == 0                             ? ChipForest
                                        : y == 1 || y == map.m_nHeight - 2             ? ChipMountain
                                                                                       : ChipGrass;
      map.SetCell(x, y, chip);
    }
  }
  for (size_t i = 0; i < stages.size(); ++i) {
    cEdWorldEvent event;
    cEdWorldPage& page = event.m_vecPages[0];
    page.m_iType = cEdWorldPage::TypeWorld;
    page.m_strStartStage = stages[i];
    map.AssignWorldNos(event, nullptr);
    char name[32];
    std::snprintf(name, sizeof name, "%s%d", SysText("ワールド"), page.m_iWorldNo);
    event.m_strName = page.m_strWorldName = name;
    page.m_iCondWorld = page.m_iWorldNo - 1;
    map.PlaceEvent(event, 3 + 4 * static_cast<int>(i), roadY);
  }
  if (!map.m_vecEvents.empty()) map.m_iStartX = map.m_vecEvents[0].m_iX;
  cEdWorldEvent road;
  road.m_strName = SysText("道");
  road.m_vecPages[0].m_iType = cEdWorldPage::TypeRoad;
  map.m_vecTemplates.push_back(road);
  return map;
}

cEdSystem SampleSystem() {
  cEdSystem system;
  system.m_strGameTitle = SysText("Velmora サンプル");
  for (int sound : {0, 1, 2, 14}) system.m_vecSounds[static_cast<size_t>(sound)] = "wave\\free.wav";
  system.m_aiBgm[0] = 1;  // title: the MIDI song
  system.m_aiBgm[1] = 2;  // story: the ogg song
  return system;
}

}  // namespace

bool WriteSampleDatabase(eDataFolder folder) {
  MakeDirectory(FolderOf(folder));
  MakeDirectory(FolderOf(folder) + "database");
  cEdDatabase db = SampleDatabase();
  bool all = true;
  for (int i = 0; i < kDbListCount; ++i) {
    const cDbListInfo& info = DbListInfo(static_cast<eDbList>(i));
    const std::string& name = PathOf(folder == eDataFolder::Data ? info.file : info.defaultFile);
    if (!db.List(static_cast<eDbList>(i)).SaveFile(name)) all = false;
  }
  return all;
}

bool WriteSampleWorldMap(eDataFolder folder, const std::vector<std::string>& stages) {
  MakeDirectory(FolderOf(folder));
  cEdWorldMap map = SampleWorldMap(stages);
  return map.SaveFile(PathOf(folder == eDataFolder::Data ? ePath::WorldMap : ePath::DefaultWorldMap)) != 0;
}

bool WriteSampleSystem(eDataFolder folder) {
  MakeDirectory(FolderOf(folder));
  cEdSystem system = SampleSystem();
  return system.SaveFile(PathOf(folder == eDataFolder::Data ? ePath::System : ePath::DefaultSystem)) != 0;
}

}  // namespace velmora
