#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "project/Database.h"
#include "sound/MusicPlayer.h"
#include "sound/WavePlayer.h"
#include "support/PreviewProject.h"
#include "support/ScriptedPrompt.h"
#include "ui/controls/ComboRows.h"

namespace velmora::testing {
namespace {

enum { kIdBgm = 2501, kIdBgmPlay, kIdSound, kIdSoundPlay, kIdPath, kIdPathPlay };

// The choices of 効果音の再生 and BGMの再生: the Sound list from row 1,
// the Bgm list with its row 0, each with its "再生".
class cChoiceDialog : public cDialog {
 public:
  cChoiceDialog(cDialogManager& manager) : cDialog(manager, nullptr) {
    m_form.rows = {
        {"BGM", ComboOf(kIdBgm, &bgm, TextRows(Database().ChoiceLabels(eDbList::Bgm)))},
        {nullptr, cSoundPreviewDesc{kIdBgmPlay, eDbList::Bgm, kIdBgm}, nullptr, nullptr, true},
        {"効果音", ComboOf(kIdSound, &sound, TextRows(Database().ChoiceLabels(eDbList::Sound), 1))},
        {nullptr, cSoundPreviewDesc{kIdSoundPlay, eDbList::Sound, kIdSound}, nullptr, nullptr, true},
        {"ファイル", EditStrLine(kIdPath, &path, 259)},
        {nullptr, cSoundPreviewDesc{kIdPathPlay, eDbList::Sound, 0, kIdPath}, nullptr, nullptr, true},
    };
  }
  int32_t bgm = 0;
  int32_t sound = 1;
  std::string path;
};

class SoundPreviewButton : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dialog.Create(0, true));
    Activate(dialog.Window());
  }
  void Choose(int id, int row) { qobject_cast<QComboBox*>(dialog.Item(id))->setCurrentIndex(row); }
  void Press(int id) { QTest::mouseClick(dialog.Item(id), Qt::LeftButton); }

  cPreviewProject project;
  cScriptedPrompt prompt;
  cDialogManager manager;
  cChoiceDialog dialog{manager};
};

TEST_F(SoundPreviewButton, PlaysTheRowItsComboShowsAndStopsWhenTheDialogCloses) {
  Press(kIdBgmPlay);
  EXPECT_FALSE(MusicPlayer().IsSounding(0)) << "row 0 is none";
  Choose(kIdBgm, 1);
  Press(kIdBgmPlay);
  EXPECT_TRUE(MusicPlayer().IsSounding(0));
  EXPECT_EQ(dialog.bgm, 0) << "a preview commits nothing";

  Choose(kIdSound, 0);  // row 1 of the list, the list shown from 1
  Press(kIdSoundPlay);
  EXPECT_EQ(WavePlayer().PlayingRow(), 0);
  EXPECT_TRUE(prompt.Shown().empty());

  dialog.SendCommand(MakeCommand(kIdCancel, kNoticeClicked), 0);
  EXPECT_FALSE(MusicPlayer().IsSounding(0));
  EXPECT_EQ(WavePlayer().PlayingRow(), -1);
}

// Beside a path edit the button plays the file the edit shows, typed or not.
TEST_F(SoundPreviewButton, BesideAPathPlaysTheShownFileAndTellsAFileThatWontPlay) {
  auto* edit = qobject_cast<QLineEdit*>(dialog.Item(kIdPath));
  Press(kIdPathPlay);
  EXPECT_EQ(WavePlayer().PlayingRow(), -1) << "an empty path plays nothing";
  EXPECT_TRUE(prompt.Shown().empty());
  edit->setText(QStringLiteral("wave\\gone.wav"));
  Press(kIdPathPlay);
  EXPECT_EQ(prompt.LastText(), "読み込み失敗！");
  edit->setText(QStringLiteral("wave\\free.wav"));
  Press(kIdPathPlay);
  EXPECT_EQ(WavePlayer().PlayingRow(), 0);
  EXPECT_TRUE(dialog.path.empty()) << "a preview commits nothing";
}

}  // namespace
}  // namespace velmora::testing
