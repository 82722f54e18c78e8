#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTabWidget>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "core/AppControl.h"
#include "core/SaveData.h"
#include "ui/controls/ScrollBar.h"
#include "ui/framework/Sheet.h"

namespace velmora::testing {
namespace {

class DialogFramework : public ::testing::Test {
 protected:
  void TearDown() override { g_bNoSave = 0; }
  cDialogManager manager;
  cSampleRecord record;
};

TEST_F(DialogFramework, CommandSentFromItsOwnHandlerIsDropped) {
  cSampleDialog dialog(manager, record);
  dialog.Create(0, true);
  dialog.onCommand = [&](int id, int) {
    if (id == kIdRun) dialog.SendCommand(MakeCommand(kIdRun, kNoticeClicked), 0);
  };
  QTest::mouseClick(dialog.Item(kIdRun), Qt::LeftButton);
  EXPECT_EQ(dialog.commands, 1);
  QTest::mouseClick(dialog.Item(kIdRun), Qt::LeftButton);
  EXPECT_EQ(dialog.commands, 2);  // the guard is cleared after each command
}

TEST_F(DialogFramework, RefusedApplyKeepsTheDialogOpen) {
  cSampleDialog dialog(manager, record);
  dialog.Create(0, true);
  dialog.refuseApply = true;
  dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  EXPECT_TRUE(dialog.IsOpen());
  dialog.refuseApply = false;
  dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.Result(), 1);
}

TEST_F(DialogFramework, FindChangedByKindAndEnablesFollowChanges) {
  cSampleDialog dialog(manager, record);
  dialog.Create(0, true);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(kIdLife, kNoticeEditUpdate)), kIdLife);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(kIdLife, kNoticeKillFocus)), 0);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(kIdFlag, kNoticeKillFocus)), kIdFlag);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(kIdKind, kNoticeSelChange)), kIdKind);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(kIdKind, kNoticeClicked)), 0);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(kIdRun, kNoticeClicked)), kIdRun);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(kIdVolume, 7)), kIdVolume);
  EXPECT_EQ(dialog.FindChanged(MakeCommand(4242, kNoticeClicked)), 0);
  const int before = dialog.enableUpdates;
  QTest::mouseClick(dialog.Item(kIdFlag), Qt::LeftButton);
  EXPECT_EQ(dialog.enableUpdates, before + 1);
}

TEST_F(DialogFramework, ControlsBindInKindOrder) {
  cSampleDialog dialog(manager, record);
  dialog.Create(0, true);
  std::vector<eControlKind> kinds;
  for (const auto& control : dialog.Controls()) kinds.push_back(control->Kind());
  const std::vector<eControlKind> expected = {
      eControlKind::EditVal, eControlKind::Spin,  eControlKind::EditVal, eControlKind::EditVal,
      eControlKind::EditVal, eControlKind::EditStr, eControlKind::EditStr, eControlKind::Check,
      eControlKind::Combo,   eControlKind::Button, eControlKind::Button,  eControlKind::Button,
      eControlKind::Slider,  eControlKind::Button,  // the test's own control comes last
  };
  EXPECT_EQ(kinds, expected);
}

TEST_F(DialogFramework, MissingControlIdStopsSaving) {
  cSampleDialog dialog(manager, record);
  dialog.Create(0, true);
  const int destroys = DestroyRequestCount();
  EXPECT_EQ(dialog.Control(4242), nullptr);
  EXPECT_EQ(g_bNoSave, 1);
  EXPECT_EQ(DestroyRequestCount(), destroys + 1);
}

TEST_F(DialogFramework, ModelessWindowsEnterAndLeaveTheManager) {
  cSampleDialog dialog(manager, record);
  dialog.Create(0, true);
  EXPECT_TRUE(manager.Contains(&dialog));
  dialog.Close(0);
  EXPECT_FALSE(manager.Contains(&dialog));
  dialog.Create(0, true);
  EXPECT_TRUE(manager.Contains(&dialog));
}

// Each modal flag leaves the other windows changed while the dialog runs,
// and restores them whichever way it closes.
TEST_F(DialogFramework, ModalFlagsHideOrDisableOthersUntilTheDialogReturns) {
  cSampleDialog other(manager, record);
  other.Create(0, true);
  struct cCase {
    int flags;
    int closeId;
  };
  for (const cCase& c : {cCase{cDialog::kDisableOthers, kIdCancel}, cCase{cDialog::kHideOthers, kIdOk}}) {
    cSampleRecord second;
    cSampleDialog modal(manager, second);
    bool changedInside = false;
    WhenModal([&](QWidget*) {
      changedInside = c.flags == cDialog::kDisableOthers ? !other.Window()->isEnabled() : other.Window()->isHidden();
      modal.SendCommand(MakeCommand(c.closeId, kNoticeClicked), 0);
    });
    EXPECT_EQ(modal.DoModal(c.flags), c.closeId == kIdOk ? 1 : 0);
    EXPECT_TRUE(changedInside) << c.flags;
    EXPECT_TRUE(other.Window()->isEnabled());
    EXPECT_TRUE(other.Window()->isVisible());
    EXPECT_FALSE(manager.Contains(&modal));  // modal dialogs aren't entered
  }
}

class cPageDialog : public cSampleDialog {
 public:
  using cSampleDialog::cSampleDialog;
  bool applied = false;

 protected:
  bool OnApply() override { return applied = true; }
};

class cTwoPageSheet : public cSheet {
 public:
  cTwoPageSheet(cDialogManager& manager, cSampleRecord& a, cSampleRecord& b)
      : cSheet(manager, nullptr, QString::fromUtf8("オプション"), true) {
    AddPage(std::make_unique<cPageDialog>(manager, a), QString::fromUtf8("全般"));
    AddPage(std::make_unique<cPageDialog>(manager, b), QString::fromUtf8("詳細"));
  }
  int sheetApplies = 0;

 protected:
  bool OnApply() override {
    ++sheetApplies;
    return true;
  }
};

// A page much smaller than the sample's.
class cNotePage : public cDialog {
 public:
  explicit cNotePage(cDialogManager& manager) : cDialog(manager, nullptr) {
    m_form.rows = {{nullptr, cStaticDesc{0, "メモ"}}};
    m_form.okCancel = false;
  }
};

TEST_F(DialogFramework, SheetScalesItsPagesByTheRateWithoutCuttingControls) {
  // Each side truncates, the way a float becomes an integer.
  EXPECT_EQ(cSheet::ScaledTemplate(QSize(100, 100), {0.999, 1.006}), QSize(99, 100));
  EXPECT_EQ(cSheet::ScaledTemplate(QSize(393, 235), {1.25, 0.8}), QSize(491, 188));

  cSampleRecord second;
  for (const cSheetRate rate : {cSheetRate{1.5, 0.5}, cSheetRate{1.0, 1.0}}) {
    manager.SetSheetRate(rate);
    cTwoPageSheet sheet(manager, record, second);
    sheet.AddPage(std::make_unique<cNotePage>(manager), QString::fromUtf8("メモ"));
    WhenModal([&](QWidget*) {
      QWidget* sample = sheet.Page(0)->Window();
      const QSize natural = sample->sizeHint();
      for (int i = 0; i < sheet.PageCount(); ++i) {
        QWidget* page = sheet.Page(i)->Window();
        if (rate.x == 1.0) {
          EXPECT_EQ(page->minimumSize(), QSize(0, 0));  // no rate, no fixed size
          continue;
        }
        // Every page takes the size of the largest, as a property sheet's do.
        EXPECT_EQ(page->size().width(), static_cast<int>(natural.width() * 1.5)) << i;
        EXPECT_EQ(page->size().height(), std::max(natural.height() / 2, sample->minimumSizeHint().height())) << i;
        EXPECT_GE(page->size().height(), page->minimumSizeHint().height());
      }
      sheet.Close(0);
    });
    EXPECT_EQ(sheet.Start(), 0);
  }
}

TEST_F(DialogFramework, SheetAppliesEveryPageOnOk) {
  cSampleRecord second;
  cTwoPageSheet sheet(manager, record, second);
  bool changed = false;
  WhenModal([&](QWidget*) {
    cDialog* page = sheet.Page(1);
    EXPECT_EQ(page->WindowKind(), cDialog::kPage);
    qobject_cast<QLineEdit*>(page->Item(kIdLife))->setText(QStringLiteral("64"));
    page->SendCommand(MakeCommand(kIdLife, kNoticeEditUpdate), 0);
    changed = sheet.HasChanges();
    // OK and Cancel belong to the sheet: a page ignores them.
    page->SendCommand(MakeCommand(kIdCancel, kNoticeClicked), 0);
    EXPECT_TRUE(page->IsOpen());
    if (sheet.ApplyPages()) sheet.Close(1);
  });
  EXPECT_EQ(sheet.Start(), 1);
  EXPECT_TRUE(changed);
  EXPECT_EQ(second.nLife, 64);
  EXPECT_EQ(record.nLife, 10);
  EXPECT_TRUE(static_cast<cPageDialog*>(sheet.Page(0))->applied);
  EXPECT_EQ(sheet.sheetApplies, 1);
}

TEST_F(DialogFramework, ClosedModelessSheetIsTornDownByTheManager) {
  cSampleRecord second;
  auto* sheet = new cSheet(manager, nullptr, QStringLiteral("S"), false);
  sheet->AddPage(std::make_unique<cSampleDialog>(manager, record), QStringLiteral("A"));
  sheet->Start();
  EXPECT_EQ(manager.Sheets().size(), 1u);
  sheet->Close(0);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  EXPECT_TRUE(manager.Sheets().empty());
}

class cClickDialog : public cSampleDialog {
 public:
  using cSampleDialog::cSampleDialog;
  int rightClicks = 0;

 protected:
  void OnRButtonUp() override { rightClicks += RightClicked() ? 1 : 0; }
};

TEST_F(DialogFramework, RightClickCountsOncePerFinishedClick) {
  cClickDialog dialog(manager, record);
  dialog.Create(0, true);
  Activate(dialog.Window());
  QWidget* client = dialog.Window()->findChild<QWidget*>();
  auto click = [&] {
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), client->mapToGlobal(QPointF(5, 5)), Qt::RightButton,
                      Qt::RightButton, Qt::NoModifier);
    dialog.HandleClientMouse(press);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), client->mapToGlobal(QPointF(5, 5)),
                        Qt::RightButton, Qt::NoButton, Qt::NoModifier);
    dialog.HandleClientMouse(release);
  };
  click();
  EXPECT_EQ(dialog.rightClicks, 1);
  EXPECT_TRUE(dialog.Mouse().rightReleased);
  click();  // the latch re-arms on the next reading without the button
  click();
  EXPECT_EQ(dialog.rightClicks, 2);
}

class cScrollingDialog : public cSampleDialog {
 public:
  cScrollingDialog(cDialogManager& manager, cSampleRecord& record) : cSampleDialog(manager, record) {
    WantScrollBars();
    m_form.okCancel = false;
  }
};

TEST_F(DialogFramework, WindowScrollBarsFollowKeysFromTheHook) {
  cScrollingDialog dialog(manager, record);
  dialog.Create(0, true);
  Activate(dialog.Window());
  ASSERT_NE(dialog.VertBar(), nullptr);
  dialog.VertBar()->SetRange(0, 100);
  dialog.VertBar()->SetPage(10);
  dialog.HorzBar()->SetRange(0, 100);
  dialog.HorzBar()->SetPage(30);
  QLineEdit* edit = qobject_cast<QLineEdit*>(dialog.Item(kIdName));
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_PageDown);
  QTest::keyClick(edit, Qt::Key_Down);
  QTest::keyClick(edit, Qt::Key_End);
  QApplication::processEvents();
  EXPECT_EQ(dialog.VertBar()->Position(), 11);
  EXPECT_EQ(dialog.HorzBar()->Position(), 30);
  EXPECT_EQ(dialog.Item(kIdVertScroll)->focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace velmora::testing
