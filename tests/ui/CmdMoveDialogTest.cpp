#include <QLabel>

#include "CmdDialogDriver.h"
#include "objects/CmdMoveRules.h"
#include "objects/CmdTable.h"

namespace velmora::testing {
namespace {

// 直線移動 (208): its OK rules on the running ratio, its two lines that
// show the ratio, and the enabling stated for it.
class LineMoveDialog : public cCmdDialogFixture {
 protected:
  void SetUp() override {
    cCmdDialogFixture::SetUp();
    cmd.SetUpNew(kCmdLine, false);
  }
  void Set(int setType, int dist, int speed, int time) {
    cmd.m_pMove->m_nSetType = static_cast<uint8_t>(setType);
    cmd.m_pMove->m_nDist = static_cast<int16_t>(dist);
    cmd.m_pMove->m_nSpeed = static_cast<int16_t>(speed);
    cmd.m_nTime = static_cast<int16_t>(time);
  }
  // Presses OK; true when that closed the dialog. A dialog that stays open
  // is cancelled.
  bool PressOk() {
    bool closed = false;
    const bool result = EditExisting(cmd, [&](cDialog& d) {
      Click(d, kIdOk);
      closed = d.Result() == 1;
      if (!closed) Click(d, kIdCancel);
    });
    EXPECT_EQ(result, closed);
    return closed;
  }
  static QString Text(cDialog& d, int id) { return qobject_cast<QLabel*>(d.Item(id))->text(); }
  static bool Visible(cDialog& d, int id) { return d.Item(id)->isVisible(); }

  cEdCmd cmd;
};

TEST_F(LineMoveDialog, SpeedAndDistanceNeedARatioOfATenthAtLeast) {
  Set(kSetSpeedDist, 1, 160, 1);
  EXPECT_TRUE(PressOk()) << "16 dots at 160 is 0.10 exactly";
  EXPECT_TRUE(prompt.Shown().empty());

  Set(kSetSpeedDist, 1, 161, 1);
  const std::vector<uint8_t> before = SavedBytes(cmd);
  EXPECT_FALSE(PressOk());
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.LastText(), "「距離÷速度」を0.10以上、または-0.10以下にして下さい！");
  EXPECT_EQ(SavedBytes(cmd), before);

  Set(kSetSpeedDist, 1, -160, 1);
  EXPECT_TRUE(PressOk()) << "-0.10 passes too";
  Set(kSetSpeedDist, 1, 0, 1);
  EXPECT_FALSE(PressOk()) << "no speed gives the ratio 0.0";
}

TEST_F(LineMoveDialog, TimeAndDistanceAskBeyondSixHundredAndNoStaysOpen) {
  Set(kSetTimeDist, 64, 10, 1);
  EXPECT_FALSE(PressOk());
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].caption, "警告");
  EXPECT_EQ(prompt.Shown()[0].buttons, eButtons::YesNo);
  EXPECT_EQ(prompt.LastText(),
            "なるべく「距離÷時間」を-600～600にして下さい！\nそうしないと速度制限がかかって、移動距離も指定した"
            "「距離」より短くなります。\nそれでもこの設定でよろしいですか？");

  prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_TRUE(PressOk());
  EXPECT_EQ(cmd.m_pMove->m_nDist, 64);

  Set(kSetTimeDist, 600, 10, 1);
  cmd.m_pMove->m_nDistUnit = 1;
  EXPECT_TRUE(PressOk()) << "600 dots in a tenth is the end of the rule";
  Set(kSetTimeDist, -600, 10, 1);
  EXPECT_TRUE(PressOk());
}

TEST_F(LineMoveDialog, TimeAndSpeedRunNeitherRule) {
  Set(kSetTimeSpeed, 64, 0, 1);
  EXPECT_TRUE(PressOk());
  EXPECT_TRUE(prompt.Shown().empty());
}

TEST_F(LineMoveDialog, TheRatioLinesFollowTheSettingsAndLeaveTheClonesOut) {
  Set(kSetSpeedDist, 4, 10, 1);
  cmd.m_pMove->m_nDistClone = 40;
  cmd.m_pMove->m_nSpeedClone = 100;
  EditExisting(cmd, [](cDialog& d) {
    EXPECT_TRUE(Visible(d, kIdMoveRatio));
    EXPECT_EQ(Text(d, kIdMoveRatio).toStdString(), "距離(dot)÷速度　＝　6.40 (※分身は無視)");
    EXPECT_EQ(Text(d, kIdMoveRatioRule).toStdString(), "※距離(dot)÷速度を0.10以上(-0.10以下)にすること");
    Type(d, kIdMoveSpeed, "20");
    EXPECT_EQ(Text(d, kIdMoveRatio).toStdString(), "距離(dot)÷速度　＝　3.20 (※分身は無視)");
    Choose(d, kIdMoveSetType, kSetTimeDist);
    EXPECT_EQ(Text(d, kIdMoveRatio).toStdString(), "距離(dot)÷時間　＝　64.0 (※分身は無視)");
    EXPECT_EQ(Text(d, kIdMoveRatioRule).toStdString(), "※距離(dot)÷時間を-600～600にすること");
    Choose(d, kIdMoveSetType, kSetTimeSpeed);
    EXPECT_FALSE(Visible(d, kIdMoveRatio));
    EXPECT_FALSE(Visible(d, kIdMoveRatioRule));
    Click(d, kIdCancel);
  });
}

TEST_F(LineMoveDialog, TheSetTypeEnablesTheTwoSettingsItNames) {
  EditExisting(cmd, [](cDialog& d) {
    const std::vector<int> time = {kIdCmdTime, kIdCmdTimeClone};
    const std::vector<int> speed = {kIdMoveSpeed, kIdMoveSpeedClone};
    const std::vector<int> dist = {kIdMoveDist, kIdMoveDistClone, kIdMoveDistUnit};
    const auto enabled = [&d](const std::vector<int>& ids) {
      bool all = true, none = true;
      for (int id : ids) (Enabled(d, id) ? none : all) = false;
      return all ? 1 : none ? 0 : -1;
    };
    const int expected[3][3] = {{1, 1, 0}, {1, 0, 1}, {0, 1, 1}};
    for (int type : {kSetTimeSpeed, kSetTimeDist, kSetSpeedDist}) {
      Choose(d, kIdMoveSetType, type);
      EXPECT_EQ(enabled(time), expected[type][0]) << type;
      EXPECT_EQ(enabled(speed), expected[type][1]) << type;
      EXPECT_EQ(enabled(dist), expected[type][2]) << type;
    }
    Click(d, kIdCancel);
  });
}

TEST_F(LineMoveDialog, DirectionAndTargetTakePartByTheAimAndFixedTargetsClearTheirFlips) {
  EditExisting(cmd, [](cDialog& d) {
    // The direction's controls, then the target's.
    const auto parts = [&d] {
      return EnabledOf(d, {kIdMoveDir, kIdMoveFlipOnTurn, kIdMoveAngleMirror, kIdMoveTargetType, kIdMoveTargetX,
                           kIdMoveTargetXDot, kIdMoveTargetYDot, kIdMoveUntilTarget, kIdMoveFlipX, kIdMoveFlipY});
    };
    EXPECT_EQ(parts(), (std::vector<bool>{true, true, true, false, false, false, false, false, false, false}));
    Choose(d, kIdMoveDir, 12);
    EXPECT_FALSE(Enabled(d, kIdMoveAngleMirror)) << "入力方向 has no mirror image";

    Choose(d, kIdMoveAimType, 1);
    EXPECT_EQ(parts(), (std::vector<bool>{false, false, false, true, true, true, true, true, true, true}));
    Click(d, kIdMoveUseTargetX);
    EXPECT_EQ(EnabledOf(d, {kIdMoveTargetX, kIdMoveTargetXDot, kIdMoveTargetY}), (std::vector<bool>{false, false, true}));
    Choose(d, kIdMoveTargetType, 2);
    EXPECT_EQ(EnabledOf(d, {kIdMoveFlipX, kIdMoveFlipY}), (std::vector<bool>{false, false}));
    EXPECT_FALSE(qobject_cast<QAbstractButton*>(d.Item(kIdMoveFlipX))->isChecked());
    Click(d, kIdOk);
  });
  EXPECT_EQ(cmd.m_pMove->m_nAimType, 1);
  EXPECT_EQ(cmd.m_pMove->m_bTargetX, 0);
  EXPECT_EQ(cmd.m_pMove->m_nTargetType, 2);
  EXPECT_EQ(cmd.m_pMove->m_bFlipX, 0) << "a new move flips X; a screen target clears it";
}

}  // namespace
}  // namespace velmora::testing
