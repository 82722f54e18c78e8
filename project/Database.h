#pragma once
#include <string>
#include <vector>

#include "core/ProjectPaths.h"
#include "project/AnimeRecords.h"
#include "project/DatabaseList.h"
#include "project/EffectRecords.h"
#include "project/FileEntryRecords.h"
#include "project/SwordRecords.h"

namespace velmora {

// The ten lists, in load and save order.
enum class eDbList { AnimeSet, Anime, CharaBmp, SwordType, Effect, CharaEffect, ScrEffect, Picture, Sound, Bgm, Count };
inline constexpr int kDbListCount = static_cast<int>(eDbList::Count);

struct cDbListInfo {
  ePath file;         // under data\database\ .
  ePath defaultFile;  // the copy under default\database\ .
  cListRule rule;
};

const cDbListInfo& DbListInfo(eDbList list);

// Sword types were not limited before 828.
void FixListAfterLoad(std::vector<cEdSwordType>& list);
// Index 0 of the effect lists is the kind without name or parameters.
void FixListAfterLoad(std::vector<cEdCharaEffect>& list);
void FixListAfterLoad(std::vector<cEdScrEffect>& list);
void FixListBeforeSave(std::vector<cEdCharaEffect>& list);
void FixListBeforeSave(std::vector<cEdScrEffect>& list);

// The project's shared catalogue of animations, bitmaps, swords, effects,
// pictures, sounds and music. Everything else refers to its entries by row.
class cEdDatabase {
 public:
  cDbList<cEdAnimeSet> m_AnimeSet;
  cDbList<cEdAnime> m_Anime;
  cDbList<cEdCharaBmp> m_CharaBmp;
  cDbList<cEdSwordType> m_SwordType;
  cDbList<cEdEffect> m_Effect;
  cDbList<cEdCharaEffect> m_CharaEffect;
  cDbList<cEdScrEffect> m_ScrEffect;
  cDbList<cEdPicture> m_Picture;
  cDbList<cEdSound> m_Sound;
  cDbList<cEdBgm> m_Bgm;

  cDbListBase& List(eDbList list);
  const cDbListBase& List(eDbList list) const;
  int Count(eDbList list) const { return List(list).Count(); }

  // Reads one list from `name`; false when the file is missing or too new
  // (g_bFileTooNew tells which).
  bool LoadList(eDbList list, const std::string& name);
  // Reads the ten files of data\database\ in order and stops at the first
  // that fails, naming it in `failedFile`.
  bool Load(std::string& failedFile);
  // Writes the ten files; with `upgradeOnly` only those older than this
  // build. A file that can't be written is skipped; false if any was.
  bool Save(bool upgradeOnly);

  // What a choice box shows for a stored reference: "なし" for a reserved
  // index 0 and for a row the list does not have, else the entry's name.
  std::string ReferenceLabel(eDbList list, int index) const;
  // The lines of a choice box over the whole list, one per row.
  std::vector<std::string> ChoiceLabels(eDbList list) const;
};

cEdDatabase& Database();

// The message that ends a project load when `path` could not be read:
// either too new for this build, or missing.
std::string LoadFailureText(const std::string& path);

}  // namespace velmora
