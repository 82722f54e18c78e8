#include <QLabel>

#include "CmdDialogDriver.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/StatusTables.h"
#include "ui/conditions/CondIds.h"

namespace velmora::testing {
namespace {

// What sets the members of the family apart: the values their opening
// sets, the fields that follow other fields, their lists and their checks.
class CmdRules : public cCmdDialogFixture {
 protected:
  static cEdCmd New(int kind) {
    cEdCmd cmd;
    cmd.SetUpNew(kind, false);
    return cmd;
  }
  static QString Label(cDialog& d, int id) { return qobject_cast<QLabel*>(d.Item(id))->text(); }
  static bool Visible(cDialog& d, int id) { return d.Item(id)->isVisible(); }
  static bool Checked(cDialog& d, int id) { return qobject_cast<QAbstractButton*>(d.Item(id))->isChecked(); }
  static QStringList Utf8List(std::initializer_list<const char*> texts) {
    QStringList list;
    for (const char* text : texts) list << QString::fromUtf8(text);
    return list;
  }
};

TEST_F(CmdRules, FiveKindsRunInParallelWhenTheyOpenAndTheScreenEffectTakesNoTime) {
  for (int kind : {kCmdFlowOp, kCmdGetItem, kCmdAnimeSet, kCmdScrEffect, kCmdScreenColor}) {
    SCOPED_TRACE(CmdTable[static_cast<size_t>(kind)].label);
    cEdCmd cmd = New(kind);
    cmd.m_bParallel = 0;
    cmd.m_nTime = 5;
    ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) { Click(d, kIdOk); }));
    EXPECT_EQ(cmd.m_bParallel, 1);
    EXPECT_EQ(cmd.m_nTime, kind == kCmdScrEffect ? 0 : 5);
  }
}

TEST_F(CmdRules, TheShotsOwnFieldsTakeTheLabelsLimitsAndDefaultsOfItsFormationAndMoveType) {
  cEdCmd cmd = New(kCmdShot);
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    Choose(d, kIdShotFormation, 3);
    EXPECT_EQ(Label(d, kIdShotFormLabel).toStdString(), "間隔(hbl)");
    EXPECT_EQ(Label(d, kIdShotFormLabel + 1).toStdString(), "列の数");
    EXPECT_EQ(Label(d, kIdShotFormLabel + 2).toStdString(), "列の間隔(hbl)");
    EXPECT_EQ(Shown(d, kIdShotFormParam + 2), "1") << "列の数 starts from its default";
    Choose(d, kIdShotFormation, 4);
    for (int i = 0; i < 3; ++i) {
      EXPECT_FALSE(Visible(d, kIdShotFormLabel + i)) << i;
      EXPECT_FALSE(Visible(d, kIdShotFormParam + 2 * i)) << i;
    }
    Choose(d, kIdShotFormation, 5);
    EXPECT_EQ(Label(d, kIdShotFormLabel).toStdString(), "距離(hbl)");
    EXPECT_EQ(Shown(d, kIdShotFormParam), "6");
    EXPECT_TRUE(Visible(d, kIdShotFormParam));
    EXPECT_FALSE(Visible(d, kIdShotFormParam + 2));
    Type(d, kIdShotFormParam, "99");

    Choose(d, kIdShotMoveType, 8);
    EXPECT_EQ(Label(d, kIdShotMoveLabel + 2).toStdString(), "開始角度");
    EXPECT_FALSE(Enabled(d, kIdShotMoveTarget));
    Choose(d, kIdShotMoveType, 6);
    EXPECT_EQ(Label(d, kIdShotMoveLabel + 1).toStdString(), "誘導終了(hbl)");
    EXPECT_TRUE(Enabled(d, kIdShotMoveTarget)) << "ターゲットへ誘導 names its target";
    Click(d, kIdOk);
  }));
  const cEdShot& shot = *cmd.m_pShot;
  EXPECT_EQ(shot.m_nFormation, 5);
  EXPECT_EQ(shot.m_anFormParam[0], 40) << "within 包囲's 0 to 40";
  EXPECT_EQ(shot.m_nMoveType, 6);
  EXPECT_EQ((std::vector<int>{shot.m_anMoveParam[0], shot.m_anMoveParam[1], shot.m_anMoveParam[2]}),
            (std::vector<int>{0, 999, 0}));
}

TEST_F(CmdRules, ACommonPaletteEntrySummonsFromTheCommonPaletteOnly) {
  cEdCmd cmd = New(kCmdSummonChara);
  cmd.m_pShot->m_nSummonSrc = 1;
  cmd.m_pShot->m_nSummonNo = 2;
  const std::vector<uint8_t> before = SavedBytes(cmd);
  EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Rows(d, kIdShotSummonSrc), Utf8List({"コモンパレット"}));
    EXPECT_EQ(Rows(d, kIdShotSummonNo), Utf8List({"001 コキャラ1", "002 コキャラ2", "003 コキャラ3"}));
    EXPECT_EQ(Shown(d, kIdShotSummonNo), "002 コキャラ2");
    Click(d, kIdCancel);
  }, ePalette::Common);
  EXPECT_EQ(SavedBytes(cmd), before);

  EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Rows(d, kIdShotSummonSrc), Utf8List({"コモンパレット", "ステージパレット"}));
    EXPECT_EQ(Shown(d, kIdShotSummonNo), "002 スキャラ2");
    Click(d, kIdCancel);
  });
}

TEST_F(CmdRules, TheConditionsOfAFlowOperationAreEditedInTheirDialogsAndStopAt99) {
  cEdCmd cmd = New(kCmdFlowOp);
  cmd.m_pCondList->m_bEnabled = 1;
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    InModal([](cDialog& selector) {
      InModal([](cDialog& kind) {
        Type(kind, kIdCondValue, "3");
        Click(kind, kIdOk);
      });
      Click(selector, kIdCondKindButton + kCondCommonVar - 1);
    });
    Click(d, kIdCondInsert);
    Click(d, kIdOk);
  }));
  ASSERT_EQ(cmd.m_pCondList->m_vCond.size(), 1u);
  EXPECT_EQ(cmd.m_pCondList->m_vCond[0].m_nValue, 3);
  EXPECT_EQ(Summary(cmd), "P-0 ◆ フローの操作 ◆ 自分 の このフロー を 開始  ★条件あり★");

  cmd.m_pCondList->m_vCond.assign(99, cmd.m_pCondList->m_vCond[0]);
  ASSERT_TRUE(EditExisting(cmd, [this](cDialog& d) {
    const int beeps = beeper.beeps;
    Click(d, kIdCondInsert);
    EXPECT_EQ(beeper.beeps, beeps + 1) << "the 100th is refused without a dialog";
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_pCondList->m_vCond.size(), 99u);

  cmd.m_pCondList->m_bEnabled = 0;
  EditExisting(cmd, [](cDialog& d) {
    EXPECT_FALSE(Enabled(d, kIdCondList));
    EXPECT_FALSE(Enabled(d, kIdCondInsert));
    EXPECT_FALSE(Enabled(d, kIdCondJudge));
    EXPECT_FALSE(Enabled(d, ParamId(2))) << "an ID only for 指定IDのフロー";
    Choose(d, ParamId(1), 2);
    EXPECT_TRUE(Enabled(d, ParamId(2)));
    Click(d, kIdCancel);
  });
}

TEST_F(CmdRules, StageClearChoosesItsPathFromTheStageFolder) {
  cEdCmd cmd = New(kCmdStageClear);
  prompt.QueuePath("data\\stg4\\Stage2.stg4_950");
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    EXPECT_FALSE(Enabled(d, kIdStageBrowse));
    Choose(d, ParamId(0), 2);
    EXPECT_TRUE(Enabled(d, kIdStageBrowse));
    Click(d, kIdStageBrowse);
    EXPECT_EQ(Shown(d, kIdCmdText), "data¥stg4¥Stage2.stg4_950");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_strText, "data\\stg4\\Stage2.stg4_950");
  ASSERT_FALSE(prompt.Shown().empty());
  EXPECT_EQ(prompt.Shown()[0].caption, "ステージファイルの選択");
}

TEST_F(CmdRules, StatusLimitsFollowTheChosenStatusAndPercentOnlyWhereItIsAllowed) {
  cEdCmd cmd = New(kCmdStatusOp);
  cmd.m_vParam[7] = 500;
  cmd.m_vParam[4] = 1;  // HP
  cmd.m_vParam[14] = 1;
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Shown(d, ParamId(7)), "500");
    EXPECT_TRUE(Enabled(d, ParamId(14)));
    EXPECT_TRUE(Enabled(d, ParamId(15)));
    Choose(d, ParamId(4), 5);  // キャラID
    EXPECT_EQ(Shown(d, ParamId(7)), "99") << "brought into -99 to 99";
    EXPECT_FALSE(Enabled(d, ParamId(14)));
    EXPECT_FALSE(Checked(d, ParamId(14)));
    Choose(d, ParamId(3), kObjectSystem);
    EXPECT_EQ(Rows(d, ParamId(4)).size(), SystemStatusTable.size());
    EXPECT_FALSE(Enabled(d, ParamId(18))) << "the system has no coordinates";
    Choose(d, ParamId(0), 1);
    EXPECT_FALSE(Enabled(d, ParamId(3)));
    EXPECT_TRUE(Enabled(d, kIdLeftVarName));
    EXPECT_EQ(Shown(d, ParamId(2)), "001 体力");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_vParam[7], 99);
  EXPECT_EQ(cmd.m_vParam[14], 0);
  EXPECT_EQ(cmd.m_vParam[0], 1);
}

TEST_F(CmdRules, TheValueListOfAFlagFollowsTheFlagAndTheObject) {
  cEdCmd cmd = New(kCmdStatusOp2);
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Rows(d, ParamId(1)).size(), CharaFlagTable.size()) << "消滅 is the command's own";
    Choose(d, ParamId(0), kObjectSystem);
    EXPECT_EQ(Rows(d, ParamId(1)), Utf8List({"横スクロール", "縦スクロール"}));
    EXPECT_EQ(Rows(d, ParamId(2)), Utf8List({"主人公の位置に合わせてスクロール", "オートスクロール"}));
    Choose(d, ParamId(0), 0);
    Choose(d, ParamId(1), kFlagGiant);
    EXPECT_EQ(Rows(d, ParamId(2)).size(), 10);
    EXPECT_EQ(Shown(d, ParamId(2)), "しない");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_vParam[1], kFlagGiant);
  EXPECT_EQ(cmd.m_vParam[2], 1) << "巨大化 counts from 1";
  EXPECT_EQ(Summary(cmd), "P-0 ◆ ステータスの操作2 ◆ 自分 の 巨大化 を しない にする");
}

TEST_F(CmdRules, AnArrangeListsTheParametersOfTheKindItNamesOrNone) {
  cEdCmd cmd = New(kCmdArrange);
  cmd.m_vParam[0] = kCmdWait;
  ASSERT_TRUE(EditExisting(cmd, [this](cDialog& d) {
    EXPECT_EQ(Rows(d, ParamId(1)), Utf8List({"×　非対応"}));
    Choose(d, ParamId(0), kCmdShot - 1);
    EXPECT_EQ(Rows(d, ParamId(1)).size(), static_cast<qsizetype>(ArrangeTable(kCmdShot).size()));
    Choose(d, ParamId(1), 5);
    Choose(d, ParamId(3), 2);
    EXPECT_EQ(Rows(d, ParamId(4)).size(), CharaVarTable.Size());
    const int beeps = beeper.beeps;
    Click(d, kIdLeftVarName);
    EXPECT_EQ(beeper.beeps, beeps + 1) << "a character variable has no name to change";
    Click(d, kIdOk);
  }));
  EXPECT_EQ(Summary(cmd), "P-0 ◆ アレンジ ◆ 次の 「ショット」 の 発射数 ＝ 「001 1 キャラ変数-1」");
}

TEST_F(CmdRules, CodeThatTheEvaluatorRefusesKeepsTheDialogOpenWithItsMessage) {
  cEdCmd cmd = New(kCmdCode);
  ASSERT_TRUE(EditExisting(cmd, [this](cDialog& d) {
    const std::pair<const char*, const char*> refused[] = {
        {"hp=hp+10", "定数 \"hp=hp+10\" が認識できません！"},
        {"rand(1)", "関数 rand の引数が不正です！"},
        {"2 + 3 = C1", "代入先が不正です！"},
        {"1.5", "オブジェクト \"1.\" が認識できません！"},
    };
    for (const auto& [code, message] : refused) {
      Type(d, kIdCmdText, code);
      Click(d, kIdOk);
      EXPECT_NE(d.Result(), 1) << code;
      EXPECT_EQ(prompt.LastText(), message);
    }
    Type(d, kIdCmdText, "C5 = rand(0,5)");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_strText, "C5 = rand(0,5)");
}

TEST_F(CmdRules, ASwordRunsAsLongAsItsType) {
  cEdCmd cmd = New(kCmdSword);
  cmd.m_nTime = 99;
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    EXPECT_EQ(Label(d, kIdCmdNote).toStdString(), "実行時間(1/10s)　7　（ソードタイプに従う）");
    Choose(d, kIdShotMoveType, 1);
    EXPECT_EQ(Label(d, kIdCmdNote).toStdString(), "実行時間(1/10s)　1　（ソードタイプに従う）");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_nTime, 1);
  EXPECT_EQ(Summary(cmd), "1 ◆ ソード ◆ 剣1 威0");
}

TEST_F(CmdRules, TheScreenColourHasSlidersThatTakeWhatIsTyped) {
  cEdCmd cmd = New(kCmdScreenColor);
  ASSERT_TRUE(EditExisting(cmd, [](cDialog& d) {
    for (int i = 0; i < 3; ++i) ASSERT_NE(qobject_cast<QSlider*>(d.Item(ParamId(i))), nullptr) << i;
    Type(d, ParamId(1) + 1, "200");
    EXPECT_EQ(qobject_cast<QSlider*>(d.Item(ParamId(1)))->value(), 200);
    Click(d, ParamId(4));
    EXPECT_FALSE(Enabled(d, ParamId(1)));
    EXPECT_FALSE(Enabled(d, ParamId(1) + 1));
    Click(d, kIdOk);
  }));
  EXPECT_EQ(cmd.m_vParam[1], 200);
  EXPECT_EQ(Summary(cmd), "P-0(0) ◆ 画面の色を変更 ◆ 元に戻す");
}

TEST_F(CmdRules, AnItemsCommandSeesItsObjectsFromTheItemWhileItsDialogIsOpen) {
  SetObjectContext(eObjectContext::ItemEditor);
  cEdCmd cmd;
  cmd.SetUpNew(kCmdStatusOp2 - kItemKindOffset, true);
  std::string first;
  EXPECT_TRUE(CancelLeavesAlone(cmd, [&first](cDialog& d) { first = Rows(d, ParamId(0)).value(0).toStdString(); }));
  EXPECT_EQ(first, "自分");
  EXPECT_EQ(CurrentObjectContext(), eObjectContext::ItemEditor);
}

TEST_F(CmdRules, TheSelectorsOfferAButtonForEachKindInOrder) {
  for (bool itemCmd : {false, true}) {
    const std::span<const cCmdInfo> table = itemCmd ? ItemCmdTable : CmdTable;
    cEdCmd cmd;
    cmd.m_bItemCmd = itemCmd ? 1 : 0;
    const std::vector<uint8_t> before = SavedBytes(cmd);
    QStringList texts;
    InModal([&](cDialog& selector) {
      for (int kind = 1; kind < static_cast<int>(table.size()); ++kind) {
        auto* button = qobject_cast<QAbstractButton*>(selector.Item(KindButtonId(kind)));
        texts << (button ? button->text() : QString());
      }
      EXPECT_EQ(selector.Item(kIdKindButtonGap), nullptr);
      Click(selector, kIdCancel);
    });
    EXPECT_FALSE(EditFlowCommand(cmd, true, manager, nullptr));
    EXPECT_EQ(SavedBytes(cmd), before);
    ASSERT_EQ(texts.size(), static_cast<qsizetype>(table.size() - 1));
    for (int kind = 1; kind < static_cast<int>(table.size()); ++kind) {
      EXPECT_EQ(texts[kind - 1].toStdString(), table[static_cast<size_t>(kind)].label);
    }
  }
  EXPECT_EQ(KindButtonId(1), 1267);
  EXPECT_EQ(KindButtonId(32), 1298);
  EXPECT_EQ(KindButtonId(33), 1300);
}

}  // namespace
}  // namespace velmora::testing
