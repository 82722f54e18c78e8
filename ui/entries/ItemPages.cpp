#include "objects/CmdSummary.h"
#include "ui/commands/EditCommand.h"
#include "ui/entries/EntryEditor.h"
#include "ui/entries/EntryRows.h"
#include "ui/list/RecordListControl.h"

// "アイテムデータ": the pages 基本 and 効果.
namespace velmora {
namespace {

using cWork = cEntryWork<cEdItem>;

constexpr int kOffsetLimit = 640;
constexpr int kEffectsGroup = 12;
constexpr cRecordListIds kCmdIds{kIdCmdList, kIdCmdInsert, kIdCmdEdit, kIdCmdDelete, 1};

// ---- 基本 (202) ----

std::vector<cFormRow> BasicRows(cWork& w) {
  uint8_t* box = w.inherit.data();
  cEdItem& i = w.entry;
  std::vector<cFormRow> appear = CondRows(w, 1, 1025);
  appear.push_back(Boxed(1026, &box[2], NumberRow("初期位置のズレX(dot)", kIdOffsetX, &i.m_nOffsetX, -kOffsetLimit, kOffsetLimit)));
  appear.push_back(Boxed(1027, &box[3], NumberRow("初期位置のズレY(dot)", kIdOffsetY, &i.m_nOffsetY, -kOffsetLimit, kOffsetLimit)));
  return {FormColumns({
      {
          FormGroup("基本", {Boxed(1024, &box[0], {"アイテム名", CharsLine(kIdEntryName, &i.m_strName, kMaxEntryNameChars)})}),
          InheritChoiceRows(w),
          FormGroup("出現", std::move(appear)),
      },
      {FormGroup("表示", {
          GraphicRows(w, 4, 1028),
          Boxed(1029, &box[5], NumberRow("Z座標", kIdZ, &i.m_nZ, 0, 7)),
          NoteRow(kIdZNote, "※値が大きいほど手前に表示されます"),
          Boxed(1030, &box[6], {"透明", TableCombo(kIdTransparent, &i.m_nTransparent, OnOffTable)}),
          MarkRows(w, 7, 1031),
      })},
  })};
}

bool ShowsMark(const cWork& w) { return w.entry.m_nMarkShow != 0; }

const cEntryPageForm<cEdItem> kBasicPage{
    {
        .rows = BasicRows,
        .lists = InheritChoiceLists<cEdItem>(),
        .ranges = GraphicRanges<cEdItem>(),
        .enables = Joined(GraphicEnables<cEdItem>(), {{kIdMarkNo, ShowsMark}}),
    },
    {
        {0, 1024, {kIdEntryName}},
        {1, 1025, {kIdAppearList, kIdAppearInsert, kIdAppearEdit, kIdAppearDelete, kIdAppearJudge, kIdAppearLatch}},
        {2, 1026, {kIdOffsetX}},
        {3, 1027, {kIdOffsetY}},
        {4, 1028, {kIdGraphicKind, kIdGraphicNo, kIdGraphicFrame, kIdGraphicPick}},
        {5, 1029, {kIdZ}},
        {6, 1030, {kIdTransparent}},
        {7, 1031, {kIdMarkShow, kIdMarkNo, kIdMarkSpin}},
    },
};

// ---- 効果 (203) ----

std::vector<cFormRow> EffectRows(cWork& w) {
  uint8_t* box = w.inherit.data();
  cEdItem& i = w.entry;
  return {
      FormGroup("状態", {Boxed(1024, &box[8], {"巨大化", TableCombo(kIdGiant, &i.m_nGiant, GiantTable)})}),
      FormGroup("取得", {
          Boxed(1025, &box[11], ComboRow("効果音", kIdGetSound, &i.m_nGetSound, DbRows(eDbList::Sound, "なし"))),
          SameLine({nullptr, cSoundPreviewDesc{kIdGetSoundPlay, eDbList::Sound, kIdGetSound}}),
          Boxed(1026, &box[9], {"取得タイプ", TableCombo(kIdGetType, &i.m_nGetType, GetTypeTable)}),
          Boxed(1027, &box[10], CheckRow(kIdGetShow, &i.m_bGetShow, "取得時、キャラの頭上にアイテムを表示")),
      }),
      FormGroup("効果", {BoxedRows(1028, &box[kEffectsGroup], {RecordListRows(kCmdIds)})}),
  };
}

const cEntryPageForm<cEdItem> kEffectPage{
    {.rows = EffectRows},
    {
        {8, 1024, {kIdGiant}},
        {11, 1025, {kIdGetSound, kIdGetSoundPlay}},
        {9, 1026, {kIdGetType}},
        {10, 1027, {kIdGetShow}},
        {kEffectsGroup, 1028, {kIdCmdList, kIdCmdInsert, kIdCmdEdit, kIdCmdDelete}},
    },
};

// The page with the item's commands, numbered by ItemCmdTable and chosen
// in the selector 216.
class cEffectPage : public cEntryPage<cEdItem> {
 public:
  cEffectPage(cDialogManager& manager, cWork& work, const cEntryPageForm<cEdItem>& form, cEntryEditorHost& host)
      : cEntryPage(manager, work, form, host) {
    m_cmds.m_nMax = kMaxItemCmds;
    m_cmds.m_RowText = [](int, const cEdCmd& cmd) { return CmdSummaryText(cmd); };
    m_cmds.m_SetDefaults = [](cEdCmd& cmd) {
      cmd = cEdCmd();
      cmd.m_bItemCmd = 1;
    };
    m_cmds.m_Edit = [this](cEdCmd& cmd, bool isNew) {
      return EditFlowCommand(cmd, isNew, Manager(), Window(), PaletteOfPlace(Work().place));
    };
  }

  void Reload() override {
    m_cmds.SetData(&Work().entry.m_vCmd);
    cEntryPage::Reload();
  }

  // The item's own commands; a condition inside one selects the command.
  bool ShowStart(const cEditorStart& start) override {
    if (start.flow != 0 || start.command == 0) return false;
    return ShowListRow(*this, kIdCmdList, m_cmds, start.command - 1);
  }

 protected:
  void BindOwnControls() override {
    cEntryPage::BindOwnControls();
    m_cmds.SetData(&Work().entry.m_vCmd);
    BindRecordList(*this, kCmdIds, m_cmds);
  }

 private:
  cRecordListEdit<cEdCmd> m_cmds;
};

const cEditorPages<cEdItem> kItemEditor{
    "アイテムデータ",
    {
        {MakeEntryPage<cEntryPage<cEdItem>, cEdItem, kBasicPage>, "基本"},
        {MakeEntryPage<cEffectPage, cEdItem, kEffectPage>, "効果"},
    },
};

}  // namespace

const cEditorPages<cEdItem>& EditorPages(const cEdItem*) { return kItemEditor; }

}  // namespace velmora
