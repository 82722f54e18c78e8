#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <functional>

#include "EditorOnSample.h"
#include "SampleDialog.h"
#include "core/SystemText.h"
#include "stage/HistoryMemory.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"
#include "support/BeepCounter.h"
#include "ui/framework/QtText.h"
#include "ui/stagesettings/StageSettingsIds.h"

namespace velmora::testing {
namespace {

constexpr int kCmdStageSettings = 40013;
constexpr int kCmdStageOptions = 40085;
constexpr int kCmdEditOptions = 40086;

cDialog* DialogOf(QWidget* window) {
  return reinterpret_cast<cDialog*>(window->property("DLG_CLASS").value<quintptr>());
}

// The settings sheet and the option dialogs opened from the stage window's
// menu on the sample's first stage, and worked through their controls.
class StageSettings : public cEditorOnSample {
 protected:
  void TearDown() override {
    StageHooks().freeMemory = nullptr;
    cEditorOnSample::TearDown();
  }

  // Opens the sheet, lets `edit` work on it and leaves it by OK or Cancel.
  void RunSheet(const std::function<void()>& edit, bool ok) {
    WhenModal([&](QWidget* modal) {
      m_sheet = modal;
      edit();
      for (QAbstractButton* each : modal->findChild<QDialogButtonBox*>()->buttons()) {
        if (each->text() == Ui(ok ? "OK" : "キャンセル")) QTest::mouseClick(each, Qt::LeftButton);
      }
    });
    Command(Stage(), kCmdStageSettings);
  }
  // A control's widget on its page, brought to the front.
  template <class Widget = QWidget>
  Widget* Show(int page, int id) {
    auto* tabs = m_sheet->findChild<QTabWidget*>();
    tabs->setCurrentIndex(page);
    return qobject_cast<Widget*>(DialogOf(tabs->widget(page))->Item(id));
  }
  void Click(int page, int id) { QTest::mouseClick(Show(page, id), Qt::LeftButton, {}, QPoint(6, 6)); }
  void Type(int page, int id, const char* text) {
    auto* edit = Show<QLineEdit>(page, id);
    edit->setFocus();
    edit->selectAll();
    TypeText(edit, Ui(text));
  }
  // A number put in whole, as a paste does: typed digit by digit, a field
  // with a lower limit repairs the first digit at once.
  void Paste(int page, int id, const char* text) {
    auto* edit = Show<QLineEdit>(page, id);
    edit->setText(Ui(text));
    emit edit->textEdited(edit->text());
  }
  std::string Label(int page, int id) { return Show<QLabel>(page, id)->text().toStdString(); }
  bool Enabled(int page, int id) { return Show(page, id)->isEnabled(); }
  bool Checked(int page, int id) { return Show<QAbstractButton>(page, id)->isChecked(); }
  int HorzBarMaximum() {
    for (auto* bar : Stage().Window()->findChildren<QScrollBar*>()) {
      if (bar->orientation() == Qt::Horizontal) return bar->maximum();
    }
    return -1;
  }
  QListWidget* Backgrounds() { return Show<QListWidget>(0, kIdBackList); }
  // Presses a button of page 1 that opens dialog 136, and leaves that by
  // OK or Cancel.
  void ThroughBackDialog(int button, bool ok) {
    WhenModal([ok](QWidget* modal) { Command(*DialogOf(modal), ok ? kIdOk : kIdCancel); });
    Click(0, button);
  }

  QWidget* m_sheet = nullptr;
};

TEST_F(StageSettings, OpeningDropsTheHistoryAndCancelLeavesTheStageAsItWas) {
  cStage& stage = EditStage();
  RecordStep(kLayerBlock);
  ASSERT_TRUE(CanUndo());
  const std::string name = stage.m_strName;
  const int width = stage.m_nWidth;
  RunSheet(
      [&] {
        EXPECT_FALSE(CanUndo());
        Type(0, kIdStageName, "X");
        Type(0, kIdWidth, "100");
        Click(0, kIdShowStageNo);
        Click(1, kIdUseZ);
        Type(2, kIdHitWidth, "2");
      },
      false);
  EXPECT_FALSE(CanUndo()) << "what was undoable before the sheet stays gone";
  EXPECT_EQ(name, stage.m_strName);
  EXPECT_EQ(width, stage.m_nWidth);
  EXPECT_EQ(0, stage.m_bShowStageNo);
  EXPECT_EQ(1, stage.m_bUseZ);
  EXPECT_EQ(16, stage.m_iHitPlWalkBlockW);
  EXPECT_EQ(0, StageEdit().m_bStageChanged);
  RecordStep(kLayerBlock);
  EXPECT_TRUE(CanUndo()) << "the history was made anew for the stage";
}

TEST_F(StageSettings, TheFiguresFollowTheSizeFieldsAndOkAppliesTheSmallestStage) {
  cStage& stage = EditStage();
  ASSERT_GT(stage.m_nWidth, 20);
  const int barBefore = HorzBarMaximum();
  stage.m_iUndoCount = 2;
  // Room for the stage and one step besides it, and no history.
  StageHooks().freeMemory = [&stage] { return EstimateStep(stage.m_nWidth, stage.m_nHeight); };
  RunSheet(
      [&] {
        EXPECT_EQ("※元に戻せる回数 2 → 0", Label(0, kIdUndoDrop));
        // A fixed figure: the machine's free memory moves between the label and the expectation.
        StageHooks().freeMemory = [] { return uint64_t{1} << 34; };
        Type(0, kIdWidth, "10");
        EXPECT_EQ("", Label(0, kIdUndoDrop));
        std::string expected = HistoryMemoryFigures(10, stage.m_nHeight).figures;
        std::erase(expected, '\r');
        EXPECT_EQ(FromCp932(expected).toStdString(), Label(0, kIdMemoryFigures)) << "pitch 16, not the 32 of 20 columns";
        EXPECT_NE(FromCp932(HistoryMemoryFigures(20, stage.m_nHeight).figures).toStdString(), Label(0, kIdMemoryFigures));
        Click(0, kIdScrollOn + 1);
        Type(0, kIdWidth, "40");
        Paste(0, kIdScrollLimit + 1, "30");
        EXPECT_EQ("隠れる幅 9(bl)", Label(0, kIdHiddenWidth + 1));
        Paste(0, kIdScrollLimit + 1, "12");
        EXPECT_EQ("隠れる幅 20(bl)", Label(0, kIdHiddenWidth + 1)) << "the right limit is at least 19";
        Click(0, kIdScrollOn + 0);
        Type(0, kIdWidth, "20");
        Type(0, kIdScrollLimit + 0, "492");
        EXPECT_EQ("隠れる幅 0(bl)", Label(0, kIdHiddenWidth + 0));
        EXPECT_EQ("", Label(0, kIdHiddenWidth + 2)) << "a limit not in force hides nothing";
        Type(0, kIdWidth, "10");
      },
      true);
  EXPECT_EQ(20, stage.m_nWidth);
  EXPECT_EQ(32, stage.m_nPitch);
  EXPECT_EQ(1, stage.m_bScrollMinX);
  EXPECT_EQ(0, stage.m_iScrollMinX);
  EXPECT_EQ(19, stage.m_iScrollMaxX);
  EXPECT_EQ(1, StageEdit().m_bStageChanged);
  EXPECT_LT(HorzBarMaximum(), barBefore) << "the window took the new size";
  RecordStep(kLayerBlock);
  EXPECT_TRUE(CanUndo());
}

TEST_F(StageSettings, EnableRulesFollowTheBoxesAndRankingKeepsItsValuesWhileOff) {
  cStage& stage = EditStage();
  stage.m_vecRankItem = {1, 1, 1, 1, 1};
  stage.m_bSkipClearWait = 0;
  stage.m_bTimeLimit = 0;
  stage.m_iHitLevel = 10;
  RunSheet(
      [&] {
        EXPECT_FALSE(Enabled(0, kIdTimeLimit));
        EXPECT_FALSE(Enabled(0, kIdWarnTime));
        Click(0, kIdTimeLimitOn);
        EXPECT_TRUE(Enabled(0, kIdTimeLimit));
        EXPECT_TRUE(Enabled(0, kIdWarnTime));
        EXPECT_FALSE(Enabled(0, kIdScrollLimit + 3));
        Click(0, kIdScrollOn + 3);
        EXPECT_TRUE(Enabled(0, kIdScrollLimit + 3));
        Click(0, kIdRankItem + 1);
        Click(0, kIdSkipClearWait);
        for (int item = 0; item < kRankItemCount; ++item) EXPECT_FALSE(Enabled(0, kIdRankItem + item)) << item;
        EXPECT_FALSE(Checked(0, kIdRankItem + 1));
        EXPECT_TRUE(Checked(0, kIdRankItem + 2));
        EXPECT_EQ(Ui("レベル10 (速度制限=600)"), Show<QComboBox>(1, kIdHitLevel)->currentText()) << "levels count from 1";
        EXPECT_FALSE(Enabled(1, kIdVanishMargin + 0));
        Click(1, kIdVanishOn + 0);
        EXPECT_TRUE(Enabled(1, kIdVanishMargin + 0));
        EXPECT_FALSE(Enabled(2, kIdHitColour + 0));
        QTest::keyClick(Show<QComboBox>(2, kIdHitShow + 0), Qt::Key_Down);
        EXPECT_TRUE(Enabled(2, kIdHitColour + 0));
      },
      true);
  EXPECT_EQ((std::vector<int32_t>{1, 0, 1, 1, 1}), stage.m_vecRankItem);
  EXPECT_EQ(1, stage.m_bSkipClearWait);
  EXPECT_EQ(1, stage.m_bTimeLimit);
  EXPECT_EQ(1, stage.m_aAutoVanish[0].m_bLeft);
  EXPECT_EQ(1, stage.m_iShowHitBlock);
}

TEST_F(StageSettings, BackgroundListHoldsEightLayersAndMayBeEmptied) {
  cStage& stage = EditStage();
  stage.m_vecBack.resize(1);
  stage.m_vecBack[0].m_bUseColor = 1;
  stage.m_vecBack[0].m_iColor = 16;
  cBeepCounter beeps;
  RunSheet(
      [&] {
        EXPECT_EQ(Ui("○ 色番号16"), Backgrounds()->item(0)->text());
        ThroughBackDialog(kIdBackInsert, false);
        EXPECT_EQ(1, Backgrounds()->count()) << "a cancelled insert takes its layer out again";
        for (int layer = 1; layer < 8; ++layer) ThroughBackDialog(kIdBackInsert, true);
        EXPECT_EQ(8, Backgrounds()->count());
        EXPECT_EQ(Ui("○ "), Backgrounds()->item(0)->text()) << "a new layer is a picture with no path yet";
        Click(0, kIdBackInsert);
        EXPECT_EQ(8, Backgrounds()->count());
        EXPECT_EQ(1, beeps.beeps) << "the ninth layer is refused";
        for (int layer = 0; layer < 8; ++layer) Click(0, kIdBackDelete);
        EXPECT_EQ(0, Backgrounds()->count());
        Click(0, kIdBackDelete);
        EXPECT_EQ(2, beeps.beeps);
      },
      true);
  EXPECT_TRUE(stage.m_vecBack.empty());
  Stage().RenderView();  // a stage without a background draws
}

TEST_F(StageSettings, DamagedSettingsOpenClampedAndLoseNothingOnCancel) {
  cStage& stage = EditStage();
  stage.m_vecRankItem = {1, 0};
  stage.m_bScrollMinY = 1;
  stage.m_iScrollMinY = 9000;
  stage.m_iWarnTime = -5;
  stage.m_vecBack.assign(12, cStageBack());
  stage.m_vecBack[3].m_iColor = 999;
  cBeepCounter beeps;
  RunSheet(
      [&] {
        EXPECT_EQ(Ui("497"), Show<QLineEdit>(0, kIdScrollLimit + 2)->text());
        EXPECT_EQ(Ui("0"), Show<QLineEdit>(0, kIdWarnTime)->text());
        EXPECT_FALSE(Checked(0, kIdRankItem + 2));
        EXPECT_EQ(12, Backgrounds()->count());
        Click(0, kIdBackInsert);
        EXPECT_EQ(1, beeps.beeps);
      },
      false);
  EXPECT_EQ(stage.m_nHeight - kStageViewHeight, stage.m_iScrollMinY) << "closing puts the stage in order";
  EXPECT_EQ(12u, stage.m_vecBack.size());
  EXPECT_EQ(2u, stage.m_vecRankItem.size());
  RunSheet([] {}, true);
  EXPECT_EQ((std::vector<int32_t>{1, 0, 0, 0, 0}), stage.m_vecRankItem);
  EXPECT_EQ(12u, stage.m_vecBack.size()) << "layers beyond eight are kept, only no more are added";
}

TEST_F(StageSettings, BackgroundDialogSwitchesBetweenColourAndPicture) {
  cStage& stage = EditStage();
  stage.m_vecBack.assign(1, cStageBack());
  prompt.QueuePath("bmp\\back\\sky.bmp");
  RunSheet(
      [&] {
        WhenModal([](QWidget* modal) {
          cDialog& dialog = *DialogOf(modal);
          EXPECT_FALSE(dialog.Item(kIdBackColor)->isEnabled());
          EXPECT_TRUE(dialog.Item(kIdBackSpeedX)->isEnabled());
          EXPECT_FALSE(dialog.Item(kIdBackAutoSpeedX)->isEnabled());
          QTest::mouseClick(dialog.Item(kIdBackBrowse), Qt::LeftButton, {}, QPoint(6, 6));
          QTest::mouseClick(dialog.Item(kIdBackAutoX), Qt::LeftButton, {}, QPoint(6, 6));
          EXPECT_TRUE(dialog.Item(kIdBackAutoSpeedX)->isEnabled());
          QTest::mouseClick(dialog.Item(kIdBackUseColor), Qt::LeftButton, {}, QPoint(6, 6));
          EXPECT_TRUE(dialog.Item(kIdBackColor)->isEnabled());
          for (int id : {kIdBackPath, kIdBackBrowse, kIdBackSpeedX, kIdBackSpeedY, kIdBackAutoX, kIdBackAutoSpeedX}) {
            EXPECT_FALSE(dialog.Item(id)->isEnabled()) << id;
          }
          Command(dialog, kIdOk);
        });
        Click(0, kIdBackEdit);
        EXPECT_EQ(Ui("○ 色番号16"), Backgrounds()->item(0)->text());
      },
      true);
  EXPECT_EQ(1, stage.m_vecBack[0].m_bUseColor);
  EXPECT_EQ(1, stage.m_vecBack[0].m_bAutoX);
  EXPECT_EQ("bmp\\back\\sky.bmp", stage.m_vecBack[0].m_strPath) << "a colour layer keeps its picture for later";
  EXPECT_EQ("ビットマップの選択", prompt.Shown().back().caption);
}

class StageOptions : public StageSettings {
 protected:
  // Opens dialog 195, lets `edit` work on it and presses OK.
  void RunOptions(const std::function<void(cDialog&)>& edit) {
    WhenModal([&](QWidget* modal) {
      cDialog& dialog = *DialogOf(modal);
      edit(dialog);
      Command(dialog, kIdOk);
    });
    Command(Stage(), kCmdStageOptions);
  }
  static void TypeInto(cDialog& dialog, int id, const char* text) {
    auto* edit = qobject_cast<QLineEdit*>(dialog.Item(id));
    edit->setFocus();
    edit->selectAll();
    TypeText(edit, Ui(text));
  }
};

TEST_F(StageOptions, ADeeperHistoryThatMemoryRefusesKeepsTheOldDepth) {
  cStage& stage = EditStage();
  stage.m_iUndoCount = 2;
  RebuildHistory();
  StageHooks().freeMemory = [] { return uint64_t{1} << 20; };
  RunOptions([](cDialog& dialog) { TypeInto(dialog, kIdUndoCount, "9"); });
  EXPECT_EQ(2, stage.m_iUndoCount);
  EXPECT_EQ("メモリ不足により、「元に戻せる回数」が変更できませんでした！", prompt.LastText());
  RecordStep(kLayerBlock);
  EXPECT_TRUE(CanUndo()) << "the old history stands";
}

TEST_F(StageOptions, ALowerDepthAndTheWheelDirectionTakeEffectAtOnce) {
  cStage& stage = EditStage();
  stage.m_iUndoCount = 2;
  RebuildHistory();
  StageHooks().freeMemory = [] { return uint64_t{0}; };
  RunOptions([](cDialog& dialog) {
    TypeInto(dialog, kIdUndoCount, "0");
    QTest::keyClick(qobject_cast<QComboBox*>(dialog.Item(kIdWheelDir)), Qt::Key_Down);
  });
  EXPECT_EQ(0, stage.m_iUndoCount);
  EXPECT_EQ(1, stage.m_iWheelDir);
  EXPECT_EQ(1, StageEdit().m_bStageChanged);
  RecordStep(kLayerBlock);
  EXPECT_FALSE(CanUndo());
}

TEST_F(StageOptions, EditOptionsHasOnlyOkAndCancelAndNoMenuEntry) {
  bool shown = false;
  WhenModal([&](QWidget* modal) {
    shown = true;
    EXPECT_EQ(Ui("エディットオプション"), modal->windowTitle());
    Command(*DialogOf(modal), kIdCancel);
  });
  Command(Stage(), kCmdEditOptions);
  EXPECT_TRUE(shown);
  EXPECT_EQ(nullptr, FindStageCommand(kCmdEditOptions)->menuText);
}

}  // namespace
}  // namespace velmora::testing
