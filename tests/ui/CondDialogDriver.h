#pragma once
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include "SampleDialog.h"
#include "core/AppControl.h"
#include "core/Log.h"
#include "core/ProjectPaths.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "platform/FileSystem.h"
#include "platform/TextCodec.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora::testing {

// The dialog object behind the modal window that is up now; null when none is.
inline cDialog* ModalDialog() {
  QWidget* modal = QApplication::activeModalWidget();
  if (!modal) return nullptr;
  return reinterpret_cast<cDialog*>(modal->property("DLG_CLASS").value<quintptr>());
}

// Runs `step` on the dialog of the next modal window. A window that the
// step leaves open is cancelled after a while, so a failing test ends.
inline void InModal(std::function<void(cDialog& dialog)> step) {
  WhenModal([step](QWidget*) {
    cDialog* dialog = ModalDialog();
    if (!dialog) {
      ADD_FAILURE() << "no dialog opened";
      return;
    }
    QPointer<QWidget> window = dialog->Window();
    step(*dialog);
    QTimer::singleShot(3000, qApp, [window] {
      if (!window || !window->isVisible()) return;
      ADD_FAILURE() << "a dialog stayed open";
      static_cast<QDialog*>(window.data())->reject();
    });
  });
}

inline QComboBox* ComboAt(cDialog& dialog, int id) { return qobject_cast<QComboBox*>(dialog.Item(id)); }
inline QLineEdit* EditAt(cDialog& dialog, int id) { return qobject_cast<QLineEdit*>(dialog.Item(id)); }

// What the author does: choose a row, type a number, press a button.
inline void Choose(cDialog& dialog, int id, int row) {
  QComboBox* combo = ComboAt(dialog, id);
  ASSERT_NE(combo, nullptr) << id;
  combo->setCurrentIndex(row);
  emit combo->activated(row);
}

inline void Type(cDialog& dialog, int id, const char* text) {
  QLineEdit* edit = EditAt(dialog, id);
  ASSERT_NE(edit, nullptr) << id;
  edit->setFocus();
  edit->selectAll();
  TypeText(edit, QString::fromUtf8(text));
}

inline void Click(cDialog& dialog, int id) {
  auto* button = qobject_cast<QAbstractButton*>(dialog.Item(id));
  ASSERT_NE(button, nullptr) << id;
  button->click();
}

inline std::string Shown(cDialog& dialog, int id) {
  if (QComboBox* combo = ComboAt(dialog, id)) return combo->currentText().toStdString();
  if (QLineEdit* edit = EditAt(dialog, id)) return edit->text().toStdString();
  return {};
}

inline QStringList Rows(cDialog& dialog, int id) {
  QStringList rows;
  if (QComboBox* combo = ComboAt(dialog, id)) {
    for (int row = 0; row < combo->count(); ++row) rows << combo->itemText(row);
  }
  return rows;
}

inline bool Enabled(cDialog& dialog, int id) { return dialog.Item(id) && dialog.Item(id)->isEnabled(); }

// Counts the beeps that the application is asked for.
class cBeepCounter : public cAppControl {
 public:
  cBeepCounter() { SetAppControl(this); }
  ~cBeepCounter() override { SetAppControl(nullptr); }
  void PostCloseRequest() override {}
  void DestroyMainWindow() override {}
  void Beep() override { ++beeps; }
  [[noreturn]] void EndProcess(int) override { std::abort(); }
  int beeps = 0;
};

// A project folder with named common and stage variables, the report log
// open and the character editor in use, for the dialogs of conditions.
class cCondDialogFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    MakeDirs("data");
    ASSERT_TRUE(OpenReportLog("Report_Editor.txt"));
    g_vecCommonVar.assign(kCommonVarCount, cStageVar());
    g_vecCommonVar[1].m_strName = ToCp932("体力");
    g_vecCommonVar[2].m_strName = ToCp932("魔力");
    m_savedStageVars.swap(EditStage().m_vecStageVar);
    EditStage().m_vecStageVar.assign(kCommonVarCount, cStageVar());
    EditStage().m_vecStageVar[1].m_strName = ToCp932("残機");
    SetStageVarList(&EditStage().m_vecStageVar);
    m_savedStageChanged = StageEdit().m_bStageChanged;
    StageEdit().m_bStageChanged = 0;
    SetObjectContext(eObjectContext::CharaEditor);
  }
  void TearDown() override {
    SetStageVarList(nullptr);
    EditStage().m_vecStageVar.swap(m_savedStageVars);
    StageEdit().m_bStageChanged = m_savedStageChanged;
    g_vecCommonVar.clear();
  }

  template <class Record>
  static std::vector<uint8_t> SavedBytes(Record& record) {
    EXPECT_EQ(record.SaveFile("record.dat"), 1);
    return ReadBytes("record.dat");
  }

  cTempProject project;
  cScriptedPrompt prompt;
  cBeepCounter beeper;
  cDialogManager manager;

 private:
  std::vector<cStageVar> m_savedStageVars;
  int32_t m_savedStageChanged = 0;
};

}  // namespace velmora::testing
