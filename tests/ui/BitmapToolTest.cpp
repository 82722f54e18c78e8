#include <QAbstractButton>
#include <QDir>
#include <QListWidget>
#include <QMimeData>
#include <QUrl>

#include "CondDialogDriver.h"
#include "EditorOnSample.h"
#include "core/EditConfig.h"
#include "graphics/ProjectPalette.h"
#include "platform/FileSystem.h"
#include "project/bitmap/BitmapConvert.h"
#include "ui/bitmaptool/BitmapToolDialog.h"

namespace velmora::testing {
namespace {

constexpr int kBitmapToolCommand = 40061;

// Drops host paths on a window as the desktop does.
void Drop(QWidget* window, const QStringList& hostPaths) {
  QMimeData data;
  QList<QUrl> urls;
  for (const QString& path : hostPaths) urls << QUrl::fromLocalFile(path);
  data.setUrls(urls);
  const QPointF at(10, 10);
  QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window, &enter);
  ASSERT_TRUE(enter.isAccepted());
  QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window, &drop);
}

QAbstractButton* ButtonNamed(cDialog& dialog, const char* text) {
  for (QAbstractButton* button : dialog.Window()->findChildren<QAbstractButton*>()) {
    if (button->text() == QString::fromUtf8(text)) return button;
  }
  ADD_FAILURE() << "no button " << text;
  return nullptr;
}

QStringList ListRows(cDialog& dialog) {
  QStringList rows;
  QListWidget* list = dialog.Window()->findChild<QListWidget*>();
  for (int row = 0; list && row < list->count(); ++row) rows << list->item(row)->text();
  return rows;
}

// A prompt that presses 変換！！ again whenever a run shows a box.
class cPressingPrompt : public cScriptedPrompt {
 public:
  QAbstractButton* convert = nullptr;
  eAnswer Ask(OwnerWindow owner, const std::string& caption, const std::string& text, eButtons buttons,
              eIcon icon) override {
    if (convert) convert->click();
    return cScriptedPrompt::Ask(owner, caption, text, buttons, icon);
  }
};

// The tool on the running editor, over a folder of bitmaps beside the
// project's own: two good pictures, one cut short and one of 24 bits.
class BitmapToolTest : public cEditorOnSample {
 protected:
  void SetUp() override {
    cEditorOnSample::SetUp();
    MakeDirs("drop");
    WriteBytes("drop/a.bmp", ReadBytes("bmp/Mark.bmp"));
    WriteBytes("drop/b.BMP", ReadBytes("bmp/Shot.bmp"));
    std::vector<uint8_t> cut = ReadBytes("bmp/Shot.bmp");
    cut.resize(cut.size() / 2);
    WriteBytes("drop/cut.bmp", cut);
    std::vector<uint8_t> trueColour = ReadBytes("bmp/Mark.bmp");
    trueColour[28] = 24;
    WriteBytes("drop/deep.bmp", trueColour);
    WriteBytes("drop/notes.txt", {1, 2, 3});
    MakeDirs("out");
    EditorConfig().m_strBmpFolder = "out";
    dialog = std::make_unique<cBitmapToolDialog>(Stage().Manager(), nullptr);
    dialog->Create(0, true);
  }
  void TearDown() override {
    dialog.reset();
    EditorConfig() = EditConfig();
    cEditorOnSample::TearDown();
  }
  static std::vector<std::vector<uint8_t>> DropFolder() {
    std::vector<std::vector<uint8_t>> files;
    for (const cDirEntry& entry : ListDirectory("drop")) files.push_back(ReadBytes("drop/" + entry.name));
    return files;
  }

  std::unique_ptr<cBitmapToolDialog> dialog;
};

TEST_F(BitmapToolTest, ADroppedFolderConvertsPastItsBrokenFiles) {
  const std::vector<std::vector<uint8_t>> before = DropFolder();
  Drop(dialog->Window(), {QDir::current().absoluteFilePath(QStringLiteral("drop"))});
  EXPECT_EQ(dialog->Files(), (std::vector<std::string>{"drop\\a.bmp", "drop\\b.BMP", "drop\\cut.bmp", "drop\\deep.bmp"}));
  EXPECT_EQ(ListRows(*dialog).size(), 4);
  const size_t boxes = prompt.Shown().size();
  ButtonNamed(*dialog, "変換！！")->click();

  ASSERT_EQ(prompt.Shown().size(), boxes + 3);
  EXPECT_EQ(prompt.Shown()[boxes].text, "drop\\cut.bmp のロードに失敗！");
  EXPECT_EQ(prompt.Shown()[boxes + 1].text, "drop\\deep.bmp は256色ではありません！");
  EXPECT_EQ(prompt.LastText(), "変換完了！");
  const cConvertOptions options = ConvertOptionsOf(EditorConfig());
  for (const char* name : {"a.bmp", "b.BMP"}) {
    const std::string input = std::string("drop\\") + name;
    ASSERT_EQ(ConvertBitmap(input, "expected.bmp", options, ProjectPalette(), SourcePalette()), eConvertResult::Ok);
    EXPECT_EQ(ReadBytes(std::string("out/") + name), ReadBytes("expected.bmp")) << name;
  }
  EXPECT_FALSE(FileExists("out\\cut.bmp"));
  EXPECT_FALSE(FileExists("out\\deep.bmp"));
  EXPECT_EQ(DropFolder(), before);
}

TEST_F(BitmapToolTest, ASecondPressDuringARunIsIgnored) {
  cPressingPrompt pressing;
  Drop(dialog->Window(), {QDir::current().absoluteFilePath(QStringLiteral("drop/cut.bmp")),
                          QDir::current().absoluteFilePath(QStringLiteral("drop/a.bmp"))});
  pressing.convert = ButtonNamed(*dialog, "変換！！");
  pressing.convert->click();
  ASSERT_EQ(pressing.Shown().size(), 2u);
  EXPECT_EQ(pressing.Shown()[0].text, "drop\\cut.bmp のロードに失敗！");
  EXPECT_EQ(pressing.Shown()[1].text, "変換完了！");
}

TEST_F(BitmapToolTest, TheListAndTheOptionsFollowTheAuthor) {
  const size_t shown = prompt.Shown().size();
  ButtonNamed(*dialog, "変換！！")->click();  // nothing to convert: not even the last box
  EXPECT_EQ(prompt.Shown().size(), shown);

  prompt.QueuePaths({"bmp\\Mark.bmp", "bmp\\Shot.bmp"});
  ButtonNamed(*dialog, "リストへ追加")->click();
  EXPECT_EQ(prompt.Shown().back().caption, "bmpの選択");
  Drop(dialog->Window(), {QDir::current().absoluteFilePath(QStringLiteral("drop/notes.txt")),
                          QDir::current().absoluteFilePath(QStringLiteral("bmp/Mark.bmp"))});
  EXPECT_EQ(dialog->Files(), (std::vector<std::string>{"bmp\\Mark.bmp", "bmp\\Shot.bmp", "bmp\\Mark.bmp"}));
  EXPECT_EQ(ListRows(*dialog).size(), 3);
  ButtonNamed(*dialog, "リストのクリア")->click();
  EXPECT_TRUE(ListRows(*dialog).isEmpty());

  QAbstractButton* sameAsInput = ButtonNamed(*dialog, "入力と同じ（※上書きする）");
  QAbstractButton* browse = ButtonNamed(*dialog, "参照");
  prompt.QueuePath("bmp\\done");
  browse->click();
  EXPECT_EQ(prompt.Shown().back().caption, "出力先のパス指定");
  sameAsInput->click();
  EXPECT_FALSE(browse->isEnabled());
  ButtonNamed(*dialog, "透過色を使用している")->click();
  ButtonNamed(*dialog, "線色を置換する")->click();
  EXPECT_EQ(EditorConfig().m_strBmpFolder, "out");  // not before OK
  dialog->SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  const EditConfig& config = EditorConfig();
  EXPECT_EQ(config.m_strBmpFolder, "bmp\\done");
  EXPECT_EQ(config.m_bBmpSameAsInput, 1);
  EXPECT_EQ(config.m_bBmpUseTrans, 0);
  EXPECT_EQ(config.m_bBmpReplaceLine, 1);
}

TEST_F(BitmapToolTest, TheMenuOpensTheTool) {
  QString title;
  WhenModal([&](QWidget* modal) {
    title = modal->windowTitle();
    static_cast<QDialog*>(modal)->reject();
  });
  Command(Stage(), kBitmapToolCommand);
  EXPECT_EQ(title, QString::fromUtf8("ビットマップ変換ツール"));
}

}  // namespace
}  // namespace velmora::testing
