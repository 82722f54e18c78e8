#include "stage/EntryEditing.h"
#include "ui/controls/Button.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/PathBrowse.h"
#include "ui/entries/OpenEntryEditor.h"
#include "ui/framework/Commands.h"
#include "ui/options/OptionIds.h"
#include "ui/options/OptionPages.h"

namespace velmora {
namespace {

constexpr int kGamePathLimit = 259;
constexpr int kMostBackupHours = 999;

// The buttons that edit what a new palette entry holds.
struct cDefaultEntryButton {
  int id;
  void (*edit)(cDialog& page, PrjOption& work);
};

// The entry editors write the default entry of the options in force; the
// sheet's copy takes what the editor left there, and the options in force
// keep theirs until the sheet's OK.
template <class Entry, Entry PrjOption::*Member>
void EditDefaultEntry(cDialog& page, PrjOption& work) {
  Entry& inForce = ProjectOption().*Member;
  const Entry kept = inForce;
  inForce = work.*Member;
  EditEntryAt<Entry>(page.Manager(), page.Window(), cEditPlace{kEditDefaultEntry, kEntryKindOf<Entry>, -1}, nullptr,
                     {});
  work.*Member = inForce;
  inForce = kept;
}

constexpr cDefaultEntryButton kDefaultEntryButtons[] = {
    {kIdDefBlock, &EditDefaultEntry<cEdBlock, &PrjOption::m_DefBlock>},
    {kIdDefChara, &EditDefaultEntry<cEdChara, &PrjOption::m_DefChara>},
    {kIdDefItem, &EditDefaultEntry<cEdItem, &PrjOption::m_DefItem>},
};

// Page 193: the default entries, the game program, what happens to stage
// files of an older version, and the backup at start.
class cGeneralOptionPage : public cDialog {
 public:
  cGeneralOptionPage(cDialogManager& manager, PrjOption& work) : cDialog(manager, nullptr), m_work(work) {
    SetLogName("project options 1");
    m_form.okCancel = false;  // the sheet's
    // In a scroll area the groups keep their own height, however tall the
    // sheet's other page makes the sheet.
    m_form.rows = {FormScroll({
        FormGroup("新しいデータの初期値",
                  {
                      {nullptr, cButtonDesc{kIdDefBlock, "ブロック"}},
                      {nullptr, cButtonDesc{kIdDefChara, "キャラ"}, nullptr, nullptr, true},
                      {nullptr, cButtonDesc{kIdDefItem, "アイテム"}, nullptr, nullptr, true},
                  }),
        FormGroup("ゲームプログラム",
                  {
                      {nullptr, cCheckDesc{kIdAutoGame, &work.m_bAutoGame, "自動で取得"}},
                      {nullptr, EditStrLine(kIdGamePath, &work.m_strGamePath, kGamePathLimit)},
                      {nullptr, cButtonDesc{kIdGameBrowse, "参照"}, nullptr, nullptr, true},
                  }),
        FormGroup("ヴェルモラバージョンアップ後の「ステージの上書き保存」",
                  {
                      {nullptr, ComboOf(kIdOldStage, &work.m_nOldStage, OptionRows(eOptionList::OldStageHandling))},
                      {nullptr, cStaticDesc{0, "※「stg4」フォルダにステージを保存していないとこの設定は機能しません。"}},
                  }),
        FormGroup("バックアップ",
                  {
                      {nullptr, cCheckDesc{kIdBackup, &work.m_bBackup,
                                           "エディター起動直後にエディットデータをバックアップ"}},
                      {"前回のバックアップから",
                       cEditValDesc{kIdBackupHours, &work.m_nBackupHours, 0, kMostBackupHours, kIdBackupSpin, 1},
                       nullptr, "時間経過していたら再バックアップ"},
                  }),
    })};
  }

 protected:
  void OnDialogCommand(int id, int notice) override {
    if (notice != kNoticeClicked) return;
    for (const cDefaultEntryButton& button : kDefaultEntryButtons) {
      if (button.id == id) button.edit(*this, m_work);
    }
    // A program outside the project can't be named relative to it, and
    // then the path stays as it was.
    if (id == kIdGameBrowse) {
      BrowseIntoEdit(*this, kIdGamePath,
                     FilePromptOf("ゲームプログラムの選択", ".\\", "ExeFile ( *.exe )", "*.exe", "exe"), ".\\");
    }
  }

  void UpdateEnables() override {
    const bool autoGame = IsChecked(kIdAutoGame);
    EnableControl(kIdGamePath, !autoGame);
    EnableControl(kIdGameBrowse, !autoGame);
    const bool backup = IsChecked(kIdBackup);
    EnableControl(kIdBackupHours, backup);
    EnableControl(kIdBackupSpin, backup);
  }

 private:
  PrjOption& m_work;
};

}  // namespace

std::unique_ptr<cDialog> MakeGeneralOptionPage(cDialogManager& manager, PrjOption& work) {
  return std::make_unique<cGeneralOptionPage>(manager, work);
}

}  // namespace velmora
