#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "ui/framework/FilePrompts.h"
#include "ui/framework/QtCatalogue.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/QtText.h"

namespace velmora::testing {
namespace {

// Button texts without their mnemonics: "はい(&Y)" reads "はい".
QStringList ButtonTexts(QWidget* window) {
  static const QRegularExpression mnemonic(QStringLiteral("\\(&.\\)$|&"));
  QStringList texts;
  for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
    if (button->isVisible() && !button->text().isEmpty()) texts << button->text().remove(mnemonic);
  }
  return texts;
}

class JapaneseWindows : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(InstallJapaneseCatalogue()) << "Debian's qt6-translations-l10n is missing"; }
};

TEST_F(JapaneseWindows, QuestionBoxButtonsAreJapanese) {
  cDialogManager manager;
  cQtPrompt prompt(manager);
  QStringList shown;
  WhenModal([&](QWidget* modal) {
    shown = ButtonTexts(modal);
    QTest::keyClick(modal, Qt::Key_Escape);
  });
  EXPECT_EQ(prompt.Ask(nullptr, SysText("保存確認"), SysText("保存しますか？"), eButtons::YesNoCancel, eIcon::Question),
            eAnswer::Cancel);
  EXPECT_TRUE(shown.contains(QString::fromUtf8("はい"))) << shown.join(QLatin1Char(',')).toStdString();
  EXPECT_TRUE(shown.contains(QString::fromUtf8("いいえ")));
  EXPECT_TRUE(shown.contains(QString::fromUtf8("キャンセル")));
}

// The filter's label already names its pattern; Qt must not add it again.
TEST_F(JapaneseWindows, FileDialogIsJapaneseAndShowsEachFilterOnce) {
  QStringList filters;
  QStringList buttons;
  WhenModal([&](QWidget* modal) {
    auto* dialog = qobject_cast<QFileDialog*>(modal);
    ASSERT_NE(dialog, nullptr);
    const auto* types = dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    for (int i = 0; types && i < types->count(); ++i) filters << types->itemText(i).trimmed();
    buttons = ButtonTexts(dialog->findChild<QDialogButtonBox*>());
    dialog->reject();
  });
  std::string chosen;
  const std::string filter = std::string("StageFile ( *.stg4_* )") + '\0' + "*.stg4_*" + '\0';
  EXPECT_EQ(OpenFileDialog(nullptr, chosen, "data\\stg4\\", SysText("ステージの選択"), filter, "", false, nullptr), 0);
  EXPECT_EQ(filters, QStringList{QStringLiteral("StageFile ( *.stg4_* )")});
  EXPECT_TRUE(buttons.contains(QString::fromUtf8("開く"))) << buttons.join(QLatin1Char(',')).toStdString();
  EXPECT_TRUE(buttons.contains(QString::fromUtf8("キャンセル")));
}

TEST(StoredPathText, EveryFolderMarkShowsTheSameGlyphAndTypesBack) {
  const std::string stored = SysText("ステージファイル .\\data\\stg4\\面1.stg4_950");
  const QString shown = FromCp932(stored);
  EXPECT_FALSE(shown.contains(QLatin1Char('\\')));
  EXPECT_EQ(shown.count(QChar(0x00A5)), 3);
  EXPECT_EQ(ToCp932(shown), stored);
  // An author typing a backslash means the same byte.
  EXPECT_EQ(ToCp932(QStringLiteral("data\\plt4")), ToCp932(FromCp932("data\\plt4")));
}

}  // namespace
}  // namespace velmora::testing
