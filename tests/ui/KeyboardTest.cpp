#include <QDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "ui/framework/Hook.h"

namespace velmora::testing {
namespace {

constexpr int kCmdSave = 40001;
constexpr int kCmdDelete = 40002;

class Keyboard : public ::testing::Test {
 protected:
  void SetUp() override {
    dialog = std::make_unique<cSampleDialog>(manager, record);
    dialog->onCommand = [this](int id, int) { commands.push_back(id); };
    dialog->SetAccel(0, {{Qt::Key_S, Qt::ControlModifier, kCmdSave}});
    dialog->SetAccel(kIdName, {{Qt::Key_Delete, Qt::NoModifier, kCmdDelete}});
    dialog->Create(0, true);
    Activate(dialog->Window());
  }
  QLineEdit* Edit(int id) { return qobject_cast<QLineEdit*>(dialog->Item(id)); }
  bool Saw(int command) const { return std::find(commands.begin(), commands.end(), command) != commands.end(); }

  cDialogManager manager;
  cSampleRecord record;
  std::unique_ptr<cSampleDialog> dialog;
  std::vector<int> commands;
};

TEST_F(Keyboard, WindowAcceleratorWorksWhateverHasTheFocus) {
  Edit(kIdLife)->setFocus();
  QTest::keyClick(Edit(kIdLife), Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Saw(kCmdSave));
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("10"));  // the key was consumed
}

TEST_F(Keyboard, ControlAcceleratorNeedsItsControlFocused) {
  Edit(kIdLife)->setFocus();
  QTest::keyClick(Edit(kIdLife), Qt::Key_Delete);
  EXPECT_FALSE(Saw(kCmdDelete));
  Edit(kIdName)->setFocus();
  QTest::keyClick(Edit(kIdName), Qt::Key_Delete);
  EXPECT_TRUE(Saw(kCmdDelete));
}

TEST_F(Keyboard, AcceleratorsOfAnInactiveWindowAreOutOfReach) {
  cSampleRecord second;
  cSampleDialog front(manager, second);
  front.Create(0, true);
  Activate(front.Window());
  QLineEdit* edit = qobject_cast<QLineEdit*>(front.Item(kIdLife));
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(Saw(kCmdSave));
}

class cKeyDialog : public cSampleDialog {
 public:
  using cSampleDialog::cSampleDialog;
  std::vector<int> windowKeys;

 protected:
  bool OnDialogMessage(QEvent& event) override {
    if (event.type() == cHookKeyEvent::EventType()) {
      const auto& key = static_cast<cHookKeyEvent&>(event);
      if (key.Kind() != cHookKeyEvent::KeyUp) windowKeys.push_back(key.Key());
    }
    return false;
  }
};

// A modeless window that notes every key the hook hands it.
class KeyboardHookWindow : public ::testing::Test {
 protected:
  void SetUp() override {
    dialog.Create(0, true);
    Activate(dialog.Window());
  }
  cDialogManager manager;
  cSampleRecord record;
  cKeyDialog dialog{manager, record};
};

TEST_F(KeyboardHookWindow, WindowSeesKeysWhileAnEditHasTheFocus) {
  QLineEdit* edit = qobject_cast<QLineEdit*>(dialog.Item(kIdName));
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_Left);
  QTest::keyClick(edit, Qt::Key_X);
  QTest::keyClick(edit, Qt::Key_Tab);
  // A modeless window leaves keys with Ctrl to the accelerators.
  QTest::keyPress(edit, Qt::Key_Control);
  QTest::keyClick(edit, Qt::Key_Q, Qt::ControlModifier);
  QTest::keyRelease(edit, Qt::Key_Control);
  EXPECT_FALSE(cHook::CtrlHeld());
  QApplication::processEvents();
  EXPECT_EQ(dialog.windowKeys, (std::vector<int>{Qt::Key_Left, Qt::Key_X}));
  EXPECT_EQ(edit->text(), QStringLiteral("abxc"));  // the keys went on to the edit as well
}

// Keys that edit a composition (Escape cancels it, Enter commits it, the
// arrows move in it) are the input method's; the window hears nothing.
TEST_F(KeyboardHookWindow, KeysOfAnInputMethodCompositionStayWithTheEdit) {
  QLineEdit* name = qobject_cast<QLineEdit*>(dialog.Item(kIdName));
  QLineEdit* life = qobject_cast<QLineEdit*>(dialog.Item(kIdLife));
  const auto compose = [](QWidget* edit, const char* preedit, const char* commit) {
    QInputMethodEvent event(QString::fromUtf8(preedit), {});
    event.setCommitString(QString::fromUtf8(commit));
    QApplication::sendEvent(edit, &event);
  };
  name->setFocus();
  compose(name, "か", "");
  EXPECT_TRUE(cHook::Composing());
  compose(name, "", "蚊");
  QTest::keyClick(name, Qt::Key_Left);
  // A composition left behind by a focus change is over as well.
  compose(name, "か", "");
  life->setFocus();
  EXPECT_FALSE(cHook::Composing());
  QTest::keyClick(life, Qt::Key_Right);
  QApplication::processEvents();
  EXPECT_EQ(dialog.windowKeys, (std::vector<int>{Qt::Key_Left, Qt::Key_Right}));

  dialog.windowKeys.clear();
  name->setFocus();
  compose(name, "か", "");
  for (Qt::Key key : {Qt::Key_Space, Qt::Key_Left, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Escape}) {
    QTest::keyClick(name, key);
  }
  QApplication::processEvents();
  EXPECT_TRUE(dialog.windowKeys.empty());
}

TEST(KeyboardHook, ModalDialogPassesKeysToItsControls) {
  struct cKeyProbe : cControl {
    cKeyProbe(cDialog& parent, std::vector<int>& seen) : cControl(eControlKind::Button, 9100, parent, nullptr), keys(seen) {}
    void OnKey(int key, bool) override { keys.push_back(key); }
    std::vector<int>& keys;
  };
  cDialogManager manager;
  cSampleRecord record;
  cSampleDialog dialog(manager, record);
  std::vector<int> keys;
  WhenModal([&](QWidget* modal) {
    dialog.AddControl(std::make_unique<cKeyProbe>(dialog, keys));
    Activate(modal);
    QLineEdit* edit = qobject_cast<QLineEdit*>(dialog.Item(kIdLife));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_F3);
    QApplication::processEvents();
    dialog.SendCommand(MakeCommand(kIdCancel, kNoticeClicked), 0);
  });
  dialog.DoModal(0);
  EXPECT_EQ(keys, std::vector<int>{Qt::Key_F3});
}

TEST(KeyboardHook, StrayEscapeIsSwallowedButBoxesKeepIt) {
  cDialogManager manager;
  cSampleRecord record;
  cSampleDialog dialog(manager, record);
  dialog.Create(0, true);
  QDialog plain;  // a window without a dialog object: Escape would close it
  Activate(&plain);
  QTest::keyClick(&plain, Qt::Key_Escape);
  EXPECT_TRUE(plain.isVisible());
  QMessageBox box(QMessageBox::Question, QStringLiteral("q"), QStringLiteral("q"), QMessageBox::Yes | QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  WhenModal([](QWidget* modal) { QTest::keyClick(modal, Qt::Key_Escape); });
  EXPECT_EQ(box.exec(), QMessageBox::No);
}

}  // namespace
}  // namespace velmora::testing
