#include <climits>

#include "CondDialogDriver.h"
#include "objects/CondRules.h"
#include "objects/CondSummary.h"
#include "objects/CondTables.h"
#include "ui/conditions/CondIds.h"
#include "ui/conditions/EditCondition.h"

namespace velmora::testing {
namespace {

class CondDialogs : public cCondDialogFixture {
 protected:
  // Edits a new condition: the kind's button in the selector, then `step`
  // in the kind's dialog.
  bool EditNew(cEdCond& record, int kind, std::function<void(cDialog&)> step,
               eDistanceCond distance = eDistanceCond::Allowed) {
    InModal([kind, step](cDialog& selector) {
      InModal(step);
      Click(selector, kIdCondKindButton + kind - 1);
    });
    return EditCondition(record, true, manager, nullptr, distance);
  }
  bool EditExisting(cEdCond& record, std::function<void(cDialog&)> step) {
    InModal(step);
    return EditCondition(record, false, manager, nullptr);
  }
  static std::string Summary(const cEdCond& cond) { return ToUtf8(CondSummaryText(cond)); }
};

// Each kind: what a new condition holds besides its kind, one field changed
// through its control, that field as the record then holds it, and the
// summary line that follows.
struct cKindCase {
  int kind;
  void (*defaults)(cEdCond&);
  void (*change)(cDialog&);
  void (*changed)(cEdCond&);
  const char* summary;
};

const cKindCase kKindCases[] = {
    {kCondCommonVar, [](cEdCond& c) { c.m_nLeftVar = 1; }, [](cDialog& d) { Type(d, kIdCondValue, "25"); },
     [](cEdCond& c) { c.m_nValue = 25; }, "コモン変数条件 ： 「001 体力」 が 25 である"},
    {kCondStageVar, [](cEdCond& c) { c.m_nLeftVar = 1; }, [](cDialog& d) { Choose(d, kIdCondRelation, 2); },
     [](cEdCond& c) { c.m_nRelation = 2; }, "ステージ変数条件 ： 「001 残機」 が 0 以上"},
    {kCondCharaVar, [](cEdCond& c) { c.m_nLeftVar = 1; }, [](cDialog& d) { Choose(d, kIdCondLeftVar, 2); },
     [](cEdCond& c) { c.m_nLeftVar = 3; }, "キャラ変数条件 ： キャラ変数 「3 キャラ変数-3」が 0 である"},
    {kCondStatus,
     [](cEdCond& c) {
       c.m_nLeftVar = 1;
       c.m_nRightVar = 1;
     },
     [](cDialog& d) { Choose(d, kIdCondLeftStatus, 1); }, [](cEdCond& c) { c.m_nLeftStatus = 1; },
     "ステータス条件 ： 自分 の HP が 0 である"},
    {kCondStatus2, [](cEdCond& c) { c.m_nLeftStatus = 1; }, [](cDialog& d) { Choose(d, kIdCondLeftStatus, 2); },
     [](cEdCond& c) { c.m_nLeftStatus = 3; }, "ステータス条件2 ： 自分 の 飛行 が OFF である"},
    {kCondStatus3, [](cEdCond&) {}, [](cDialog& d) { Choose(d, kIdCondLeftStatus, 3); },
     [](cEdCond& c) { c.m_nLeftStatus = 3; }, "ステータス条件3 ： 自分 が 画面内にいる なら"},
    {kCondDistance,
     [](cEdCond& c) {
       c.m_nValue = 10;
       c.m_nRightType = 1;
       c.m_nRightObject = 1;
     },
     [](cDialog& d) { Type(d, kIdCondValue, "12"); }, [](cEdCond& c) { c.m_nValue = 12; },
     "距離条件 ： 主人公 が 横 12 以内"},
};

TEST_F(CondDialogs, EveryKindStartsFromItsDefaultsTakesAChangeOnOkAndCancelLeavesItAlone) {
  for (const cKindCase& kase : kKindCases) {
    SCOPED_TRACE(CondKindTable.Utf8(kase.kind));
    cEdCond fresh;
    fresh.m_nKind = static_cast<uint8_t>(kase.kind);
    kase.defaults(fresh);

    cEdCond record;
    QString title;
    ASSERT_TRUE(EditNew(record, kase.kind, [&](cDialog& d) {
      title = d.Window()->windowTitle();
      kase.change(d);
      Click(d, kIdOk);
    }));
    EXPECT_EQ(title.toStdString(), CondKindTable.Utf8(kase.kind));
    cEdCond expected = fresh;
    kase.changed(expected);
    EXPECT_EQ(SavedBytes(record), SavedBytes(expected));
    EXPECT_EQ(Summary(record), kase.summary);

    const std::vector<uint8_t> before = SavedBytes(fresh);
    EXPECT_FALSE(EditExisting(fresh, [&](cDialog& d) {
      kase.change(d);
      Click(d, kIdCancel);
    }));
    EXPECT_EQ(SavedBytes(fresh), before);
  }
}

TEST_F(CondDialogs, TheSelectorOffersDistanceOnlyWhereTheListTakesItAndItsCancelAddsNothing) {
  for (eDistanceCond distance : {eDistanceCond::Allowed, eDistanceCond::Refused}) {
    std::vector<bool> enabled;
    InModal([&](cDialog& selector) {
      for (int kind = kCondCommonVar; kind <= kCondDistance; ++kind) {
        enabled.push_back(Enabled(selector, kIdCondKindButton + kind - 1));
      }
      Click(selector, kIdCancel);
    });
    cEdCond record;
    EXPECT_FALSE(EditCondition(record, true, manager, nullptr, distance));
    EXPECT_EQ(record, cEdCond());
    const bool allowed = distance == eDistanceCond::Allowed;
    EXPECT_EQ(enabled, (std::vector<bool>{true, true, true, true, true, true, allowed}));
  }
}

TEST_F(CondDialogs, StatusLimitsFollowTheLeftStatusAndBringValuesIntoThem) {
  cEdCond record;
  record.m_nKind = kCondStatus;
  record.m_nValue = 500;
  record.m_nRandMin = -500;
  record.m_nRandMax = 500;
  record.m_nLeftStatus = 1;  // HP, which takes a percentage
  record.m_bPercent = 1;
  ASSERT_TRUE(EditExisting(record, [](cDialog& d) {
    EXPECT_TRUE(Enabled(d, kIdCondPercent));
    Choose(d, kIdCondLeftStatus, 8);  // Z座標: -8 to 8
    EXPECT_EQ(Shown(d, kIdCondValue), "8");
    EXPECT_EQ(Shown(d, kIdCondRandMin), "-8");
    EXPECT_EQ(Shown(d, kIdCondRandMax), "8");
    EXPECT_FALSE(Enabled(d, kIdCondPercent));
    Choose(d, kIdCondLeftStatus, 1);
    EXPECT_EQ(Shown(d, kIdCondValue), "8") << "a wider range keeps the value";
    EXPECT_TRUE(Enabled(d, kIdCondPercent));
    Click(d, kIdOk);
  }));
  EXPECT_EQ(record.m_nValue, 8);
  EXPECT_EQ(record.m_nRandMin, -8);
  EXPECT_EQ(record.m_nRandMax, 8);
  EXPECT_EQ(record.m_bPercent, 0) << "cleared while Z座標 was chosen";

  // The system's statuses keep the ranges of the character's row of the
  // same number: 時間 is row 0, キャラ変数's ±999999, not its own ±999.
  record.m_nValue = 5000;
  ASSERT_TRUE(EditExisting(record, [](cDialog& d) {
    Choose(d, kIdCondLeftObject, kObjectSystem);
    EXPECT_EQ(Rows(d, kIdCondLeftStatus).size(), 5);
    Choose(d, kIdCondLeftStatus, 0);
    EXPECT_EQ(Shown(d, kIdCondLeftStatus), "時間");
    EXPECT_EQ(Shown(d, kIdCondValue), "5000");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(Summary(record), "ステータス条件 ： 時間 が 5000 である");
}

TEST_F(CondDialogs, StatusSidesEnableWhatTheirTypeNamesAndListItsVariables) {
  cEdCond record;
  ASSERT_TRUE(EditNew(record, kCondStatus, [](cDialog& d) {
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "1 キャラ変数-1");
    EXPECT_FALSE(Enabled(d, kIdCondLeftVarName)) << "character variables have fixed names";
    EXPECT_FALSE(Enabled(d, kIdCondRandMin));
    Choose(d, kIdCondLeftStatus, kStatusY);
    Choose(d, kIdCondLeftCoord, 2);
    EXPECT_FALSE(Enabled(d, kIdCondLeftVar));
    EXPECT_TRUE(Enabled(d, kIdCondLeftGiant));
    Choose(d, kIdCondLeftType, 1);  // 変数
    EXPECT_FALSE(Enabled(d, kIdCondLeftObject));
    EXPECT_TRUE(Enabled(d, kIdCondLeftVarName));
    Choose(d, kIdCondLeftScope, 1);
    EXPECT_EQ(Rows(d, kIdCondLeftVar).size(), kCommonVarCount - 1);
    Choose(d, kIdCondRightType, 1);  // 乱数
    EXPECT_FALSE(Enabled(d, kIdCondValue));
    EXPECT_TRUE(Enabled(d, kIdCondRandMax));
    Choose(d, kIdCondRightType, 3);  // 変数
    Choose(d, kIdCondRightVar, 1);
    Click(d, kIdOk);
  }));
  EXPECT_EQ(Summary(record), "ステータス条件 ： 「001 残機」が 「002 魔力」 である");
}

TEST_F(CondDialogs, FlagListsFollowTheObjectAndTheValueListTheFlag) {
  cEdCond record;
  record.m_nKind = kCondStatus2;
  record.m_nLeftStatus = 5;  // 巨大化, whose values start at 1
  record.m_nLeftVar = 1;
  ASSERT_TRUE(EditExisting(record, [](cDialog& d) {
    EXPECT_EQ(Rows(d, kIdCondLeftStatus).size(), 6) << "消滅 is for commands only";
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "しない");
    Choose(d, kIdCondLeftVar, 2);
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "×9");
    Choose(d, kIdCondLeftStatus, 3);  // 無敵: 0 to 2, which holds the 3 of ×9 no longer
    EXPECT_EQ(Rows(d, kIdCondLeftVar).size(), 3);
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "OFF");
    Choose(d, kIdCondLeftVar, 2);
    Choose(d, kIdCondLeftStatus, 2);  // 飛行: 0 to 3 holds the 2
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "ON (ブロックに当たる)");

    Choose(d, kIdCondLeftObject, kObjectSystem);
    EXPECT_EQ(Rows(d, kIdCondLeftStatus),
              QStringList({QString::fromUtf8("横スクロール"), QString::fromUtf8("縦スクロール")}));
    EXPECT_EQ(Shown(d, kIdCondLeftStatus), "横スクロール");
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "主人公の位置に合わせてスクロール");
    Choose(d, kIdCondLeftStatus, 1);
    Choose(d, kIdCondLeftVar, 1);
    Choose(d, kIdCondLeftObject, 2);  // back to the characters: the list starts over
    EXPECT_EQ(Shown(d, kIdCondLeftStatus), "透明");
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "OFF");
    Click(d, kIdOk);
  }));
  EXPECT_EQ(Summary(record), "ステータス条件2 ： ターゲット2 の 透明 が OFF である");
}

// Types a new name into the name dialog that the next "_" opens.
void AnswerName(const char* name) {
  InModal([name](cDialog& input) {
    EXPECT_EQ(input.Window()->windowTitle(), QString::fromUtf8("変数名の入力"));
    TypeText(EditAt(input, 1003), QString::fromUtf8(name));
    Click(input, kIdOk);
  });
}

TEST_F(CondDialogs, RenameWritesTheNamesWhereTheyLiveAndOnlyBeepsWithNoVariable) {
  cEdCond record = NewCondition(kCondCommonVar);
  record.m_nLeftVar = 2;
  ASSERT_TRUE(EditExisting(record, [](cDialog& d) {
    AnswerName("最大魔力値");
    Click(d, kIdCondLeftVarName);
    EXPECT_EQ(Shown(d, kIdCondLeftVar), "002 最大魔力値") << "the same row, named anew";
    Click(d, kIdOk);
  }));
  EXPECT_EQ(record.m_nLeftVar, 2);
  g_vecCommonVar.clear();
  ASSERT_TRUE(LoadCommonVars());
  EXPECT_EQ(ToUtf8(g_vecCommonVar[2].m_strName), "最大魔力値");
  EXPECT_EQ(StageEdit().m_bStageChanged, 0);

  // A stage's names stay with the stage, which now has changes to save.
  ASSERT_TRUE(RemoveFile(PathOf(ePath::GValInfo)));
  record = NewCondition(kCondStatus);
  record.m_nLeftType = record.m_nLeftScope = 1;
  EXPECT_FALSE(EditExisting(record, [](cDialog& d) {
    AnswerName("残機予備");
    Click(d, kIdCondLeftVarName);
    Click(d, kIdCancel);
  }));
  EXPECT_EQ(ToUtf8(EditStage().m_vecStageVar[1].m_strName), "残機予備") << "a name is no part of the condition";
  EXPECT_EQ(StageEdit().m_bStageChanged, 1);
  EXPECT_FALSE(FileExists(PathOf(ePath::GValInfo)));

  g_vecCommonVar.clear();
  record = NewCondition(kCondCommonVar);
  EXPECT_FALSE(EditExisting(record, [](cDialog& d) {
    EXPECT_EQ(ComboAt(d, kIdCondLeftVar)->currentIndex(), -1) << "no variable to choose";
    Click(d, kIdCondLeftVarName);
    EXPECT_EQ(ModalDialog(), &d) << "no name was asked for";
    Click(d, kIdCancel);
  }));
  EXPECT_EQ(beeper.beeps, 1);
  EXPECT_FALSE(FileExists(PathOf(ePath::GValInfo)));
}

// As a damaged file may leave a condition: every field at the end of its type.
cEdCond Damaged(int kind) {
  cEdCond c;
  c.m_nKind = static_cast<uint8_t>(kind);
  c.m_nValue = INT_MAX;
  c.m_nRandMin = INT_MIN;
  c.m_nRandMax = INT_MAX;
  c.m_nLeftVar = c.m_nRightVar = INT16_MAX;
  for (uint8_t* field : {&c.m_nLeftObject, &c.m_nLeftStatus, &c.m_nLeftType, &c.m_nLeftScope, &c.m_nRightType,
                         &c.m_nRightObject, &c.m_nRightStatus, &c.m_nRightScope, &c.m_nRelation, &c.m_bPercent,
                         &c.m_nLeftCoord, &c.m_nRightCoord, &c.m_nLeftGiantPos, &c.m_nRightGiantPos, &c.m_nDistAxis}) {
    *field = 255;
  }
  return c;
}

TEST_F(CondDialogs, ADamagedConditionShowsClampedAndCancelLeavesItByteForByte) {
  for (int kind = kCondCommonVar; kind <= kCondDistance; ++kind) {
    SCOPED_TRACE(kind);
    cEdCond record = Damaged(kind);
    const std::vector<uint8_t> before = SavedBytes(record);
    EXPECT_FALSE(EditExisting(record, [](cDialog& d) {
      EXPECT_EQ(Shown(d, kIdCondRelation),
                ComboAt(d, kIdCondRelation)->itemText(ComboAt(d, kIdCondRelation)->count() - 1).toStdString())
          << "the last relation stands for 255";
      Click(d, kIdCancel);
    }));
    EXPECT_EQ(SavedBytes(record), before);

    ASSERT_TRUE(EditExisting(record, [](cDialog& d) { Click(d, kIdOk); }));
    EXPECT_LT(record.m_nRelation, 8);
    EXPECT_FALSE(Summary(record).empty());
  }
  cEdCond distance = Damaged(kCondDistance);
  ASSERT_TRUE(EditExisting(distance, [](cDialog& d) { Click(d, kIdOk); }));
  EXPECT_EQ(Summary(distance), "距離条件 ： ターゲット4 が 円 40 外");
  EXPECT_EQ(distance.m_nRightVar, 15);
}

TEST_F(CondDialogs, AnUnknownKindOpensNothingAndSaysSoInTheReportLog) {
  for (int kind : {0, 8, 255}) {
    cEdCond record = Damaged(kind);
    const std::vector<uint8_t> before = SavedBytes(record);
    bool opened = false;
    WhenModal([&](QWidget* modal) {
      opened = modal != nullptr;
      if (modal) static_cast<QDialog*>(modal)->reject();
    });
    EXPECT_FALSE(EditCondition(record, false, manager, nullptr));
    QApplication::processEvents();
    EXPECT_FALSE(opened);
    EXPECT_EQ(SavedBytes(record), before);
    EXPECT_NE(ReadText("Report_Editor.txt").find("kind " + std::to_string(kind) + " has no dialog"), std::string::npos);
  }
}

}  // namespace
}  // namespace velmora::testing
