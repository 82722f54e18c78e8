#pragma once
#include <string>
#include <vector>

#include "CondDialogDriver.h"
#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/CmdSummary.h"
#include "objects/Item.h"
#include "objects/PaletteSources.h"
#include "objects/RefNames.h"
#include "project/Database.h"
#include "project/ProjectRefSizes.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/EditCommand.h"

namespace velmora::testing {

// The project the command dialogs look into: every database list and both
// palettes hold four named rows ("<tag><row>"), the first sword type runs
// 7 tenths, and the variables of the condition tests have their names.
class cCmdDialogFixture : public cCondDialogFixture {
 protected:
  void SetUp() override {
    cCondDialogFixture::SetUp();
    cEdDatabase& db = Database();
    Name(db.m_AnimeSet, "セット");
    Name(db.m_Anime, "アニメ");
    Name(db.m_CharaBmp, "専用");
    Name(db.m_SwordType, "剣");
    Name(db.m_Effect, "炎");
    Name(db.m_CharaEffect, "光");
    Name(db.m_ScrEffect, "揺れ");
    Name(db.m_Picture, "絵");
    Name(db.m_Sound, "音");
    Name(db.m_Bgm, "曲");
    db.m_SwordType.m_vecEntries[0].m_vecPositions.resize(2);
    db.m_SwordType.m_vecEntries[0].m_vecPositions[0].m_iTime = 3;
    db.m_SwordType.m_vecEntries[0].m_vecPositions[1].m_iTime = 4;
    InstallDatabaseRefs();
    NamePalette(m_common, "コ");
    NamePalette(m_stage, "ス");
    InstallPaletteLists(ePalette::Common, {&m_common.blocks, &m_common.charas, &m_common.items});
    InstallPaletteLists(ePalette::Stage, {&m_stage.blocks, &m_stage.charas, &m_stage.items});
  }
  void TearDown() override {
    InstallPaletteLists(ePalette::Common, {});
    // The edit stage's palette stands installed for the life of the
    // process; later tests inherit from it.
    InstallPaletteLists(ePalette::Stage, EditStage().Palette());
    InstallRefSizes(nullptr);
    InstallRefNames(nullptr);
    for (int list = 0; list < kDbListCount; ++list) Database().List(static_cast<eDbList>(list)).Resize(0);
    cCondDialogFixture::TearDown();
  }

  // Edits a new command of `kind`: its button in the selector, then `step`
  // in the kind's dialog.
  bool EditNew(cEdCmd& cmd, int kind, std::function<void(cDialog&)> step) {
    InModal([kind, step](cDialog& selector) {
      InModal(step);
      Click(selector, KindButtonId(kind));
    });
    return EditFlowCommand(cmd, true, manager, nullptr);
  }
  bool EditExisting(cEdCmd& cmd, std::function<void(cDialog&)> step, ePalette palette = ePalette::Stage) {
    InModal(step);
    return EditFlowCommand(cmd, false, manager, nullptr, palette);
  }
  static std::string Summary(const cEdCmd& cmd) { return ToUtf8(CmdSummaryText(cmd)); }
  // Opens the command, does `step` and cancels: true when the dialog gave
  // no OK and the command is byte for byte as it was.
  bool CancelLeavesAlone(cEdCmd& cmd, std::function<void(cDialog&)> step) {
    const std::vector<uint8_t> before = SavedBytes(cmd);
    const bool stored = EditExisting(cmd, [step](cDialog& d) {
      step(d);
      Click(d, kIdCancel);
    });
    return !stored && SavedBytes(cmd) == before;
  }
  // Whether each control of `ids` takes part, as one list to compare.
  static std::vector<bool> EnabledOf(cDialog& d, std::initializer_list<int> ids) {
    std::vector<bool> enabled;
    for (int id : ids) enabled.push_back(Enabled(d, id));
    return enabled;
  }

 private:
  struct cPaletteRows {
    std::vector<cEdBlock> blocks;
    std::vector<cEdChara> charas;
    std::vector<cEdItem> items;
  };
  static constexpr int kRows = 4;

  template <class List>
  static void Name(List& list, const char* tag) {
    list.Resize(kRows);
    for (int row = 0; row < kRows; ++row) list.m_vecEntries[static_cast<size_t>(row)].m_strName = ToCp932(tag + std::to_string(row));
  }
  template <class Entry>
  static void NameEntries(std::vector<Entry>& entries, const std::string& tag) {
    entries.resize(kRows);
    for (int row = 0; row < kRows; ++row) entries[static_cast<size_t>(row)].m_strName = ToCp932(tag + std::to_string(row));
  }
  static void NamePalette(cPaletteRows& palette, const std::string& tag) {
    NameEntries(palette.blocks, tag + "ブロック");
    NameEntries(palette.charas, tag + "キャラ");
    NameEntries(palette.items, tag + "アイテム");
  }

  cPaletteRows m_common;
  cPaletteRows m_stage;
};

}  // namespace velmora::testing
