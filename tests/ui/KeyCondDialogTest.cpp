#include <QLabel>

#include "CondDialogDriver.h"
#include "objects/CondTables.h"
#include "objects/FlowRows.h"
#include "ui/conditions/CondIds.h"
#include "ui/conditions/EditCondition.h"

namespace velmora::testing {
namespace {

class KeyCondDialog : public cCondDialogFixture {
 protected:
  bool Edit(cEdKeyCond& record, std::function<void(cDialog&)> step) {
    InModal(step);
    return EditKeyCondition(record, manager, nullptr);
  }
};

TEST_F(KeyCondDialog, KeysAndTimeReachTheRecordOnOkTheUpperTimeFollowsTheLowerAndAnyTimeTakesBoth) {
  cEdKeyCond record;
  ASSERT_TRUE(Edit(record, [](cDialog& d) {
    EXPECT_EQ(d.Window()->windowTitle(), QString::fromUtf8("キー条件"));
    EXPECT_EQ(qobject_cast<QLabel*>(d.Item(kIdKeyNote))->text(), QString::fromUtf8("※「離」は「1～∞」で固定される"));
    Choose(d, kIdKeyState + 2, 1);   // → 押
    Choose(d, kIdKeyState + 11, 1);  // Z 押
    Choose(d, kIdKeyState + 12, 2);  // X 離
    Type(d, kIdKeyPressMin, "30");
    EXPECT_EQ(Shown(d, kIdKeyPressMax), "30") << "raised to the lower end";
    Type(d, kIdKeyPressMin, "5");
    EXPECT_EQ(Shown(d, kIdKeyPressMax), "30") << "a higher upper end stays";
    Choose(d, kIdKeyJudge, 1);
    Click(d, kIdOk);
  }));
  EXPECT_EQ(record.m_vKeyState[12], 2);
  EXPECT_EQ(ToUtf8(KeyRowText(record)), "5～30 ： → ･ Z ");

  ASSERT_TRUE(Edit(record, [](cDialog& d) {
    Click(d, kIdKeyPressAny);
    EXPECT_FALSE(Enabled(d, kIdKeyPressMin));
    EXPECT_FALSE(Enabled(d, kIdKeyPressMax));
    Click(d, kIdOk);
  }));
  EXPECT_EQ(ToUtf8(KeyRowText(record)), "1～∞ ： → ･ Z ");
}

TEST_F(KeyCondDialog, ADamagedKeyConditionShowsClampedAndCancelLeavesItByteForByte) {
  cEdKeyCond record;
  record.m_vKeyState = {9, 1, 200};  // fewer keys than there are, states beyond the table
  record.m_nPressMin = -4;
  record.m_nPressMax = 5000;
  record.m_nJudge = 77;
  const std::vector<uint8_t> before = SavedBytes(record);
  EXPECT_FALSE(Edit(record, [](cDialog& d) {
    EXPECT_EQ(Shown(d, kIdKeyState), "離");
    EXPECT_EQ(Shown(d, kIdKeyState + 18), "--");
    EXPECT_EQ(Shown(d, kIdKeyPressMin), "1");
    EXPECT_EQ(Shown(d, kIdKeyPressMax), "999");
    Click(d, kIdCancel);
  }));
  EXPECT_EQ(SavedBytes(record), before);

  ASSERT_TRUE(Edit(record, [](cDialog& d) { Click(d, kIdOk); }));
  EXPECT_EQ(record.m_vKeyState, (std::vector<uint8_t>{2, 1, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(record.m_nPressMin, 1);
  EXPECT_EQ(record.m_nPressMax, 999);
  EXPECT_EQ(record.m_nJudge, 2);
}

}  // namespace
}  // namespace velmora::testing
