#pragma once
#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "RecordDump.h"
#include "SampleDialog.h"
#include "core/SaveData.h"
#include "project/Database.h"
#include "project/ProjectLoad.h"
#include "project/SystemRecord.h"
#include "sample/SampleProject.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemSheet.h"

namespace velmora::testing {

// The system window over a fresh copy of the sample project, driven through
// its controls as the author drives it.
class cSystemSheetTest : public ::testing::Test {
 protected:
  static constexpr const char* kSystemFile = "data\\System.dat";

  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject(project.Path(), false, error)) << error;
    ASSERT_TRUE(LoadProject());
  }
  void TearDown() override {
    SystemRecord() = cEdSystem();
    g_bNoSave = 0;
  }

  // Opens the window, lets `edit` work on it once it shows, and leaves it
  // by its OK or its Cancel button. Gives the sheet's result.
  int Run(const std::function<void(cSystemSheet&)>& edit, bool ok) {
    cSystemSheet sheet(manager, nullptr);
    WhenModal([&](QWidget*) {
      running = &sheet;
      edit(sheet);
      Press(ok ? "OK" : "キャンセル");
      running = nullptr;
    });
    return sheet.Start();
  }

  // The widget of a control, on its page brought to the front.
  template <class Widget = QWidget>
  Widget* Show(int page, int id) {
    running->Window()->findChild<QTabWidget*>()->setCurrentIndex(page);
    return qobject_cast<Widget*>(running->Page(page)->Item(id));
  }
  void Click(int page, int id) { QTest::mouseClick(Show(page, id), Qt::LeftButton, {}, QPoint(6, 6)); }
  void Type(int page, int id, const QString& text) {
    auto* edit = Show<QLineEdit>(page, id);
    edit->setFocus();
    edit->selectAll();
    TypeText(edit, text);
  }
  // Moves a combo box by the keys, one row per press; Home and End go to
  // either end.
  void Key(int page, int id, Qt::Key key) { QTest::keyClick(Show<QComboBox>(page, id), key); }
  bool Checked(int page, int id) { return Show<QAbstractButton>(page, id)->isChecked(); }
  bool Enabled(int page, int id) { return Show(page, id)->isEnabled(); }
  QString Text(int page, int id) {
    QWidget* widget = Show(page, id);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) return combo->currentText();
    return qobject_cast<QLineEdit*>(widget)->text();
  }
  void Press(const char* button) {
    for (QAbstractButton* each : running->Window()->findChild<QDialogButtonBox*>()->buttons()) {
      if (each->text() == QString::fromUtf8(button)) QTest::mouseClick(each, Qt::LeftButton);
    }
  }

  // The system file as the inspector shows it, one member a line.
  static std::vector<std::string> Dump() { return DumpRecordFile(kSystemFile); }

  cTempProject project;
  cScriptedPrompt prompt;
  cDialogManager manager;
  cSystemSheet* running = nullptr;
};

}  // namespace velmora::testing
