#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "platform/TextCodec.h"
#include "ui/framework/FilePrompts.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/StockDialogs.h"

namespace velmora::testing {
namespace {

QLineEdit* InputEdit(QWidget* modal) { return modal ? modal->findChild<QLineEdit*>() : nullptr; }

TEST(StockDialogs, InputValueStoresOnOkOnlyAndClamps) {
  cDialogManager manager;
  int32_t value = 7;
  QString titleShown;
  WhenModal([&](QWidget* modal) {
    titleShown = modal->windowTitle();
    QLineEdit* edit = InputEdit(modal);
    EXPECT_EQ(edit->selectedText(), QStringLiteral("7"));  // selected on opening
    TypeText(edit, QStringLiteral("250"));
    QTest::keyClick(edit, Qt::Key_Return);  // Enter is OK
  });
  EXPECT_EQ(InputValue(nullptr, manager, value, 0, 99, SysText("回数")), 1);
  EXPECT_EQ(value, 99);
  EXPECT_EQ(titleShown, QString::fromUtf8("回数"));
  WhenModal([](QWidget* modal) {
    TypeText(InputEdit(modal), QStringLiteral("5"));
    QTest::keyClick(InputEdit(modal), Qt::Key_Escape);
  });
  EXPECT_EQ(InputValue(nullptr, manager, value, 0, 99, ""), 0);
  EXPECT_EQ(value, 99);
}

TEST(StockDialogs, InputStringKeepsCp932AndItsLimit) {
  cDialogManager manager;
  std::string text = SysText("勇者");
  QString titleShown;
  WhenModal([&](QWidget* modal) {
    titleShown = modal->windowTitle();
    QLineEdit* edit = InputEdit(modal);
    EXPECT_EQ(edit->text(), QString::fromUtf8("勇者"));
    edit->end(false);
    TypeText(edit, QString::fromUtf8("の剣と盾"));
    QTest::keyClick(edit, Qt::Key_Return);
  });
  EXPECT_EQ(InputString(nullptr, manager, text, 10, false, ""), 1);
  EXPECT_EQ(titleShown, QString::fromUtf8("文字列の入力"));
  EXPECT_EQ(ToUtf8(text), "勇者の剣と");  // ten bytes
}

TEST(StockDialogs, MessageWindowShowsItsTextUntilClosed) {
  cDialogManager manager;
  ShowMessageWindow(nullptr, manager, SysText("変換中..."), SysText("お待ちください"), true);
  QWidget* window = QApplication::activeWindow() ? QApplication::activeWindow() : manager.Windows().front()->Window();
  ASSERT_EQ(manager.Windows().size(), 1u);
  EXPECT_EQ(window->windowTitle(), QString::fromUtf8("お待ちください"));
  EXPECT_EQ(window->findChild<QLabel*>()->text(), QString::fromUtf8("変換中..."));
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  const QPointer<QWidget> shown = window;
  CloseMessageWindow();
  EXPECT_TRUE(manager.Windows().empty());
  EXPECT_TRUE(shown.isNull());  // the window itself is gone, not only forgotten
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(StockDialogs, PromptAnswersWithTheSafeButtonOnEscape) {
  cDialogManager manager;
  cQtPrompt prompt(manager);
  QString textShown;
  WhenModal([&](QWidget* modal) {
    textShown = modal->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->text();
    QTest::keyClick(modal, Qt::Key_Escape);
  });
  EXPECT_EQ(prompt.Ask(nullptr, SysText("確認"), SysText("保存しますか？"), eButtons::YesNo, eIcon::Question),
            eAnswer::No);
  EXPECT_EQ(textShown, QString::fromUtf8("保存しますか？"));
}

TEST(FilePrompts, FilterPairsBecomeQtFilters) {
  const std::string filter("ExeFile ( *.exe )\0*.exe\0Pictures\0*.bmp;*.png\0", 44);
  EXPECT_EQ(QtFilterOf(filter), "ExeFile ( *.exe ) (*.exe);;Pictures (*.bmp *.png)");
  EXPECT_EQ(QtFilterOf(std::string()), "");
}

}  // namespace
}  // namespace velmora::testing
