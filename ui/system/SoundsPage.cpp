#include "project/Database.h"
#include "project/SystemLabels.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/PathBrowse.h"
#include "ui/framework/Commands.h"
#include "ui/system/SystemPage.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {
namespace {

constexpr int kPathLimit = 259;
constexpr int kColourMax = 255;

// Page 3 (249): what a character keeps from stage to stage, the sounds and
// music of the game's frame, and the project's bitmap format.
class cSoundsPage : public cSystemPage {
 public:
  cSoundsPage(cDialogManager& manager, cEdSystem& work) : cSystemPage(manager, work, "system 3") {
    SetRows({FormColumns({
        {FormGroup("ストックの対象", {FormColumns({StockRows(), ResetRows()})}), BitmapGroup()},
        {FormGroup("効果音", SoundRows()), FormGroup("BGM", BgmRows())},
    })});
  }

 protected:
  // A stat that isn't kept has nothing to reset after a death.
  void UpdateEnables() override {
    for (int row = 0; row < cEdSystem::kStockCount; ++row) {
      EnableControl(kIdStockReset + row, IsChecked(kIdStock + row));
    }
  }

  void OnDialogCommand(int id, int notice) override {
    const int row = id - kIdSoundBrowse;
    if (notice != kNoticeClicked || row < 0 || row >= cEdSystem::kSoundCount) return;
    BrowseIntoEdit(*this, kIdSoundPath + row, FilePromptOf("効果音の選択", "wave\\", "WaveFile ( *.wav )", "*.wav", "wav"));
  }

 private:
  std::vector<cFormRow> StockRows() {
    return RepeatRows(cEdSystem::kStockCount, [this](int row) {
      return std::vector<cFormRow>{
          {nullptr, cCheckDesc{kIdStock + row, &Work().m_abStock[static_cast<size_t>(row)], StockTable.Utf8(row)}}};
    });
  }
  std::vector<cFormRow> ResetRows() {
    return RepeatRows(cEdSystem::kStockCount, [this](int row) {
      return std::vector<cFormRow>{
          {nullptr, cCheckDesc{kIdStockReset + row, &Work().m_abStockReset[static_cast<size_t>(row)], "死亡後にリセット"}}};
    });
  }
  std::vector<cFormRow> SoundRows() {
    return RepeatRows(cEdSystem::kSoundCount, [this](int row) {
      const int path = kIdSoundPath + row;
      return std::vector<cFormRow>{
          {SystemSoundTable.Utf8(row), EditStrLine(path, &Work().m_vecSounds[static_cast<size_t>(row)], kPathLimit)},
          {nullptr, cButtonDesc{kIdSoundBrowse + row, "参照"}, nullptr, nullptr, true},
          {nullptr, cSoundPreviewDesc{kIdSoundPlay + row, eDbList::Sound, 0, path}, nullptr, nullptr, true},
      };
    });
  }
  std::vector<cFormRow> BgmRows() {
    const cComboRows music = TextRows(Database().ChoiceLabels(eDbList::Bgm));
    return RepeatRows(cEdSystem::kBgmCount, [this, &music](int row) {
      const auto r = static_cast<size_t>(row);
      return std::vector<cFormRow>{
          {SystemBgmTable.Utf8(row), ComboOf(kIdBgm + row, &Work().m_aiBgm[r], music)},
          {nullptr, cSoundPreviewDesc{kIdBgmPlay + row, eDbList::Bgm, kIdBgm + row}, nullptr, nullptr, true},
          {nullptr, cCheckDesc{kIdBgmLoop + row, &Work().m_abBgmLoop[r], "ループ再生"}, nullptr, nullptr, true},
      };
    });
  }
  cFormRow BitmapGroup() {
    cEdSystem& s = Work();
    return FormGroup("ビットマップの形式 （設定反映にはエディターの再起動が必要）",
                     {
                         {"ビットマップの色数", ComboOf(kIdBmpDepth, &s.m_iBmpDepth, LabelRows(BmpDepthTable))},
                         {"1677万色(24bit)時の透過色(R,G,B)", SpinEdit(kIdKeyR, &s.m_cKeyR, 0, kColourMax)},
                         {nullptr, SpinEdit(kIdKeyG, &s.m_cKeyG, 0, kColourMax), nullptr, nullptr, true},
                         {nullptr, SpinEdit(kIdKeyB, &s.m_cKeyB, 0, kColourMax), nullptr, nullptr, true},
                         NoteRow("※「palette.bmp」と「palette2.bmp」は24bitの設定でも256色(8bit)のままにしてください"),
                     });
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeSoundsPage(cDialogManager& manager, cEdSystem& work) {
  return std::make_unique<cSoundsPage>(manager, work);
}

}  // namespace velmora
