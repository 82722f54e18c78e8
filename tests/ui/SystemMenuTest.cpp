#include <QDialogButtonBox>
#include <QPushButton>

#include "EditorOnSample.h"
#include "SampleDialog.h"

namespace velmora::testing {
namespace {

using SystemMenu = cEditorOnSample;

TEST_F(SystemMenu, TheProjectMenuOpensTheSystemWindowAndCancelLeavesTheFile) {
  ASSERT_TRUE(Stage().HasHandler(eMenuAction::System));
  const std::vector<uint8_t> before = ReadBytes("data/System.dat");
  QString title;
  WhenModal([&](QWidget* sheet) {
    title = sheet->windowTitle();
    for (QAbstractButton* button : sheet->findChild<QDialogButtonBox*>()->buttons()) {
      if (button->text() == QString::fromUtf8("キャンセル")) button->click();
    }
  });
  Command(Stage(), 40122);
  EXPECT_EQ(title, QString::fromUtf8("システムの設定"));
  EXPECT_EQ(before, ReadBytes("data/System.dat"));
  EXPECT_TRUE(Stage().IsOpen());
}

}  // namespace
}  // namespace velmora::testing
