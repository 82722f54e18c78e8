#include <QLabel>
#include <gtest/gtest.h>

#include "MoveAnswer.h"
#include "ui/list/MoveDialog.h"

namespace velmora::testing {
namespace {

class MoveDialog : public ::testing::Test {
 protected:
  int Run(int count) {
    cMoveDialog dialog(manager, nullptr, request, count, QPoint(40, 30));
    return dialog.DoModal(0);
  }

  cDialogManager manager;
  cMoveRequest request;
};

TEST_F(MoveDialog, ShowsItsTextsAtThePlaceGivenAndCancelLeavesTheRequest) {
  QStringList texts;
  QPoint position;
  WhenModal([&](QWidget* modal) {
    for (const QLabel* label : modal->findChildren<QLabel*>()) texts << label->text();
    position = modal->pos();
    QTest::keyClick(modal, Qt::Key_Escape);
  });
  EXPECT_NE(1, Run(6));
  for (const char* text : {"～", "番を", "番へ"}) EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text;
  EXPECT_EQ(QPoint(40, 30), position);
  EXPECT_EQ(1, request.nFirst);
  EXPECT_EQ(static_cast<int32_t>(eMoveOp::Move), request.nOp);
}

TEST_F(MoveDialog, OkGivesTheAnswerWithinTheListsLimits) {
  AnswerMove(2, 4, 99, 1);
  ASSERT_EQ(1, Run(6));
  EXPECT_EQ(2, request.nFirst);
  EXPECT_EQ(4, request.nLast);
  EXPECT_EQ(6, request.nTarget) << "the target is held to the count";
  EXPECT_EQ(static_cast<int32_t>(eMoveOp::CopyInsert), request.nOp);

  bool targetEnabled = true;
  AnswerMove(3, 9, 1, 2, &targetEnabled);
  ASSERT_EQ(1, Run(6));
  EXPECT_FALSE(targetEnabled) << "erasing has no target";
  EXPECT_EQ(5, request.nLast) << "the last entry is held to the list";
  EXPECT_EQ(static_cast<int32_t>(eMoveOp::Erase), request.nOp);
}

}  // namespace
}  // namespace velmora::testing
