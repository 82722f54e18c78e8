#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "EditorOnSample.h"
#include "WhenEditorOpens.h"
#include "graphics/stageview/StageView.h"
#include "stage/Stage.h"
#include "stage/StageDiff.h"
#include "stage/StageEdit.h"
#include "ui/database/DatabaseSheet.h"
#include "ui/database/DbListPage.h"
#include "ui/entries/EntryIds.h"
#include "ui/list/ListControl.h"
#include "ui/whereused/WhereUsedSearch.h"

namespace velmora::testing {
namespace {

constexpr int kWhereUsedMenu = 40901;
constexpr int kCompareMenu = 40902;
constexpr int kCompareClearMenu = 40903;
constexpr int kDatabaseMenu = 40063;

using cCells = std::set<std::pair<int, int>>;

cCells MarkedCells(const std::vector<cCellFrame>& marks) {
  cCells cells;
  for (const cCellFrame& mark : marks) cells.insert({mark.x, mark.y});
  return cells;
}

QWidget* TopLevelTitled(const char* utf8) { return ShownWindow(utf8); }

QPushButton* ButtonOf(QWidget* window, const char* utf8) {
  for (QPushButton* button : window->findChildren<QPushButton*>()) {
    if (button->text() == QString::fromUtf8(utf8)) return button;
  }
  return nullptr;
}

class ReviewToolsInTheEditor : public cEditorOnSample {
 protected:
  void TearDown() override {
    WhereUsedSearch() = cWhereUsedSearch();
    cEditorOnSample::TearDown();
  }
  // A slow build loads the stage for longer than any fixed wait.
  void LetARebuildHappen(const bool& done) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 10000)) << "the stage opened";
  }
};

TEST_F(ReviewToolsInTheEditor, CompareFramesTheCellsThatDifferUntilCleared) {
  cStage other;
  ASSERT_TRUE(other.LoadWholeFile("data\\stg4\\Stage2.stg4_950"));
  const std::vector<cCellPos> differing = ChangedPositions(DiffStageCells(other, EditStage()));
  ASSERT_FALSE(differing.empty());
  cCells expected;
  for (const cCellPos& at : differing) expected.insert({at.x, at.y});

  prompt.QueuePath("data\\stg4\\Stage2.stg4_950");
  Command(Stage(), kCompareMenu);
  EXPECT_EQ(expected, MarkedCells(Stage().Marks()));
  // The sample's first stage lacks the second's slime at (8, 12).
  EXPECT_TRUE(expected.count({8, 12}));
  Stage().ScrollTo(0, 0);
  Stage().RenderView();
  const cPixelImage& view = Stage().View().Image();
  EXPECT_EQ(kChangeMarkColour, view.ColourAt(8 * 32 + 1, 12 * 32 + 16));

  // A file that can't be read whole is told and the marks stay.
  std::vector<uint8_t> bytes = ReadBytes("data/stg4/Stage2.stg4_950");
  bytes.resize(bytes.size() / 3);
  WriteBytes("data/stg4/Cut.stg4_950", bytes);
  prompt.QueuePath("data\\stg4\\Cut.stg4_950");
  Command(Stage(), kCompareMenu);
  EXPECT_NE(std::string::npos, prompt.LastText().find("Cut.stg4_950"));
  EXPECT_EQ(expected, MarkedCells(Stage().Marks()));

  Command(Stage(), kCompareClearMenu);
  EXPECT_TRUE(Stage().Marks().empty());
}

// The sample's slime, entry 2 of the common palette, stands in both
// stages; a use in the other stage opens it, shows the cell and edits it.
TEST_F(ReviewToolsInTheEditor, SearchListsTheUsesAndOpensOneInItsStage) {
  WhereUsedSearch().kind = static_cast<int>(eUseKind::Chara);
  WhereUsedSearch().number = 2;
  Command(Stage(), kWhereUsedMenu);
  QWidget* window = TopLevelTitled("使用箇所の検索");
  ASSERT_NE(window, nullptr);
  ButtonOf(window, "検索")->click();
  auto* list = window->findChild<QListWidget*>();
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(13, list->count());
  int inStage2 = -1;
  for (int row = 0; row < list->count() && inStage2 < 0; ++row) {
    if (list->item(row)->text().contains(QStringLiteral("Stage2"))) inStage2 = row;
  }
  ASSERT_GE(inStage2, 0);
  const cUse use = WhereUsedSearch().results[static_cast<size_t>(inStage2)].use;

  // The placed character's editor is modal: it is seen and cancelled from
  // the event loop it runs.
  bool edited = false;
  WhenEditorOpens([&](cEntryEditorBase& editor) {
    edited = editor.Place().target == kEditCell;
    editor.Close(0);
  });
  list->setCurrentRow(inStage2);
  ButtonOf(window, "開く")->click();
  LetARebuildHappen(edited);
  EXPECT_EQ(".\\data\\stg4\\Stage2.stg4_950", StageEdit().m_strPath);
  EXPECT_EQ(use.x, Stage().Cursor().x);
  EXPECT_EQ(use.y, Stage().Cursor().y);
  EXPECT_TRUE(edited);
  QWidget* again = TopLevelTitled("使用箇所の検索");
  ASSERT_NE(again, nullptr) << "the window comes back with the stage's window";
  EXPECT_EQ(13, again->findChild<QListWidget*>()->count());
}

// Every character of the sample uses animation set 0; the database
// window's list offers the search and shows the uses over itself. Opening
// one closes the database window as its OK does, then opens the use.
TEST_F(ReviewToolsInTheEditor, TheDatabaseListsPopupMenuFindsTheUsesOfARowAndOpensOne) {
  Command(Stage(), kDatabaseMenu);
  cDatabaseSheet* sheet = OpenDatabaseSheet();
  ASSERT_NE(sheet, nullptr);
  sheet->Window()->findChild<QTabWidget*>()->setCurrentIndex(0);
  cDialog& page = *sheet->Page(0);
  auto* control = page.FindControlOf<cListControl<cEdAnimeSet>>(kIdDbList);
  ASSERT_NE(control, nullptr);
  bool offered = false;
  control->choosePopup = [&](const std::vector<cMenuItem>& menu, const QPoint&) {
    offered = !menu.empty() && std::string(menu.back().text) == "使用箇所の検索";
    return offered ? menu.back().command : 0;
  };
  int listed = -1;
  // The window is modal: it is read and left from the event loop it runs.
  WhenModalShows("使用箇所の検索", [&](QWidget& window) {
    auto* results = window.findChild<QListWidget*>();
    listed = results->count();
    results->setCurrentRow(0);
    ButtonOf(&window, "開く")->click();
  });
  auto* list = qobject_cast<QListWidget*>(page.Item(kIdDbList));
  list->setCurrentRow(0);
  emit list->customContextMenuRequested(list->visualItemRect(list->item(0)).center());
  EXPECT_TRUE(offered);
  EXPECT_EQ(static_cast<int>(eUseKind::AnimeSet), WhereUsedSearch().kind);
  EXPECT_EQ(0, WhereUsedSearch().number);
  EXPECT_EQ(static_cast<int>(WhereUsedSearch().results.size()), listed);
  ASSERT_GT(listed, 0);
  const cUse first = WhereUsedSearch().results[0].use;
  ASSERT_EQ(eUseArea::Palette, first.area) << "the common palette's uses come first";
  QTest::qWait(100);
  EXPECT_EQ(nullptr, OpenDatabaseSheet()) << "the database window closed";
  EXPECT_TRUE(Stage().Window()->isVisible());
  QWidget* results = TopLevelTitled("使用箇所の検索");
  ASSERT_NE(results, nullptr) << "the results stay in reach for the next use";
  EXPECT_EQ(listed, results->findChild<QListWidget*>()->count());
  cEntryEditorBase* editor = OpenEntryEditor();
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(first.entry, editor->Place().index);
  EXPECT_EQ(editor->CurrentPage()->Item(kIdAnimeSet), editor->Window()->focusWidget());
  editor->Close(0);
  QCoreApplication::processEvents();
}

}  // namespace
}  // namespace velmora::testing
