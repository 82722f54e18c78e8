#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "ui/list/MoveDialog.h"

namespace velmora::testing {
namespace {

// Fills in the dialog's three numbers and its operation, then presses OK.
void AnswerMove(int first, int last, int target, int op, bool* targetEnabled = nullptr) {
  WhenModal([=](QWidget* modal) {
    const QList<QLineEdit*> edits = modal->findChildren<QLineEdit*>();
    ASSERT_GE(edits.size(), 3);
    const int values[3] = {first, last, target};
    for (int i = 0; i < 3; ++i) {
      edits[i]->selectAll();
      TypeText(edits[i], QString::number(values[i]));
    }
    QComboBox* ops = modal->findChild<QComboBox*>();
    ops->setCurrentIndex(op);
    emit ops->activated(op);  // as the author's choice reports it
    if (targetEnabled) *targetEnabled = edits[2]->isEnabled();
    QTest::keyClick(edits[0], Qt::Key_Return);
  });
}

class MoveDialog : public ::testing::Test {
 protected:
  bool Run() {
    return MoveEntriesByDialog<int>(nullptr, manager, entries, selection, [this](const cMoveRequest& r) { moved.push_back(r); });
  }

  cDialogManager manager;
  std::vector<int> entries{0, 10, 20, 30, 40, 50};
  int selection = 5;
  std::vector<cMoveRequest> moved;
};

TEST_F(MoveDialog, ShowsItsTextsAndMovesARangeBehindTheTarget) {
  QStringList texts;
  WhenModal([&](QWidget* modal) {
    for (const QLabel* label : modal->findChildren<QLabel*>()) texts << label->text();
    QTest::keyClick(modal, Qt::Key_Escape);
  });
  EXPECT_FALSE(Run());
  for (const char* text : {"～", "番を", "番へ"}) EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text;

  AnswerMove(1, 2, 5, 0);
  EXPECT_TRUE(Run());
  EXPECT_EQ(entries, (std::vector<int>{0, 30, 40, 10, 20, 50}));
  ASSERT_EQ(moved.size(), 1u);
  EXPECT_EQ(moved[0].nTarget, 5);
}

TEST_F(MoveDialog, EraseDisablesTheTargetAndPullsTheSelectionOntoTheLastEntry) {
  bool targetEnabled = true;
  AnswerMove(3, 5, 1, 2, &targetEnabled);
  EXPECT_TRUE(Run());
  EXPECT_FALSE(targetEnabled);
  EXPECT_EQ(entries, (std::vector<int>{0, 10, 20}));
  EXPECT_EQ(selection, 2);

  AnswerMove(1, 1, 2, 0);  // onto the entry's own next place: nothing to do
  EXPECT_FALSE(Run());
  EXPECT_EQ(moved.size(), 1u);
}

TEST_F(MoveDialog, CopyInsertKeepsTheOriginalsAndLimitsTheNumbers) {
  AnswerMove(1, 2, 99, 1);  // the target is held to the count
  EXPECT_TRUE(Run());
  EXPECT_EQ(entries, (std::vector<int>{0, 10, 20, 30, 40, 50, 10, 20}));
}

}  // namespace
}  // namespace velmora::testing
