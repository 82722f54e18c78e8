#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "platform/TextCodec.h"
#include "ui/framework/FilePrompts.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/StockDialogs.h"
#include "ui/framework/WindowStyle.h"
#include "ui/list/MoveDialog.h"

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

// A small dialog asks the window manager for a title and a close box only,
// is exactly as large as its content and shows its whole title.
void ExpectSmallDialog(const QWidget* window) {
  ASSERT_NE(window, nullptr);
  const Qt::WindowFlags flags = window->windowFlags();
  EXPECT_TRUE(flags & Qt::CustomizeWindowHint) << "without it the window manager offers every box";
  EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
  EXPECT_FALSE(flags & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
  EXPECT_EQ(window->minimumSize(), window->maximumSize());
  EXPECT_EQ(window->size(), window->minimumSize());
  EXPECT_GE(window->width(), TitleFitWidth(window->windowTitle()));
}

TEST(SmallDialogs, PromptsBoxesAndTheMoveDialogOfferOnlyACloseBoxAndFitTheirContent) {
  cDialogManager manager;
  auto checkAndCancel = [](QWidget* modal) {
    ExpectSmallDialog(modal);
    QTest::keyClick(modal, Qt::Key_Escape);
  };
  int32_t value = 1;
  WhenModal(checkAndCancel);
  InputValue(nullptr, manager, value, 0, 9, SysText("データ数"));
  std::string text;
  WhenModal(checkAndCancel);
  InputString(nullptr, manager, text, 10, false, SysText("ステージパレットファイルの名前"));
  WhenModal(checkAndCancel);
  cMoveRequest request;
  cMoveDialog(manager, nullptr, request, 6, QPoint(40, 30)).DoModal(0);

  cQtPrompt prompt(manager);
  WhenModal([](QWidget* box) {
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(box->windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(box->windowFlags() & Qt::CustomizeWindowHint);
    QTest::keyClick(box, Qt::Key_Escape);
  });
  prompt.Ask(nullptr, SysText("保存確認"), SysText("保存しますか？"), eButtons::YesNoCancel, eIcon::Question);
}

TEST(SmallDialogs, ProgressWindowShowsItsWholeTitleAndAMarginAroundItsText) {
  cDialogManager manager;
  ShowMessageWindow(nullptr, manager, SysText("..."), SysText("ステージの新規作成（テンプレートから）"), false);
  ASSERT_EQ(manager.Windows().size(), 1u);
  QWidget* window = manager.Windows().front()->Window();
  ExpectSmallDialog(window);
  const QLabel* label = window->findChild<QLabel*>();
  const QRect text = QRect(label->mapTo(window, QPoint(0, 0)), label->size());
  EXPECT_GE(text.left(), 8);
  EXPECT_GE(text.top(), 8);
  EXPECT_GE(window->width() - 1 - text.right(), 8);
  EXPECT_GE(window->height() - 1 - text.bottom(), 8);
  CloseMessageWindow();
}

TEST(FilePrompts, FilterPairsBecomeQtFilters) {
  const std::string filter("ExeFile ( *.exe )\0*.exe\0Pictures\0*.bmp;*.png\0", 44);
  EXPECT_EQ(QtFilterOf(filter), "ExeFile ( *.exe ) (*.exe);;Pictures (*.bmp *.png)");
  EXPECT_EQ(QtFilterOf(std::string()), "");
}

}  // namespace
}  // namespace velmora::testing
