#pragma once
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <string>
#include <vector>

#include "CondDialogDriver.h"
#include "EditorOnSample.h"
#include "objects/Palette.h"
#include "stage/EntryEditing.h"
#include "stage/StageEdit.h"
#include "ui/commands/CmdIds.h"
#include "ui/entries/EntryEditor.h"
#include "ui/entries/EntryIds.h"
#include "ui/entries/OpenEntryEditor.h"
#include "ui/list/RecordListControl.h"
#include "ui/palette/PaletteCommands.h"

namespace velmora::testing {

inline constexpr int kSaveCommand = 40005;
inline constexpr char kCommonPaletteFile[] = "data/CommonPalette.cplt4";
inline constexpr char kStageFile[] = "data/stg4/Stage1.stg4_950";

// The editor on the sample, with the entry editors driven as the author
// drives them: opened from a palette window, their pages shown by tab,
// their buttons clicked and closed with the sheet's OK or Cancel.
class cEntryEditorTest : public cEditorOnSample {
 protected:
  static cEntryEditorBase& Editor() { return *OpenEntryEditor(); }
  static cDialog& Page(int index) { return *Editor().Page(index); }
  static cDialog& Front() { return *Editor().CurrentPage(); }
  static void ShowPage(int index) { Editor().Window()->findChild<QTabWidget*>()->setCurrentIndex(index); }

  // The base's clicks at a point, and the driver's on a control.
  using cEditorOnSample::Click;
  static void Click(cDialog& dialog, int id) { testing::Click(dialog, id); }

  // 編集 from the palette window of `side`, on entry `index`.
  void OpenFromPalette(cPaletteSide side, int index) {
    PickEntry(side, index);
    Command(Palettes().Palette(side), kCmdEdit);
    ASSERT_NE(OpenEntryEditor(), nullptr);
    // The offscreen platform doesn't hand the activation of a window whose
    // owner is disabled on to the application; a desktop does.
    QApplication::setActiveWindow(Editor().Window());
  }
  // The sheet's own buttons.
  static void Close(QDialogButtonBox::ButtonRole role) {
    auto* box = Editor().Window()->findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : box->buttons()) {
      if (box->buttonRole(button) == role) return button->click();
    }
    ADD_FAILURE() << "no such button";
  }
  static void PressOk() { Close(QDialogButtonBox::AcceptRole); }
  static void PressCancel() { Close(QDialogButtonBox::RejectRole); }

  void Save() { Command(Stage(), kSaveCommand); }
  static std::vector<uint8_t> Files() {
    std::vector<uint8_t> bytes = ReadBytes(kCommonPaletteFile);
    const std::vector<uint8_t> stage = ReadBytes(kStageFile);
    bytes.insert(bytes.end(), stage.begin(), stage.end());
    return bytes;
  }

  static QListWidget* ListAt(cDialog& page, int id) { return qobject_cast<QListWidget*>(page.Item(id)); }
  static QStringList ListRows(cDialog& page, int id) {
    QStringList rows;
    QListWidget* list = ListAt(page, id);
    for (int row = 0; list && row < list->count(); ++row) rows << list->item(row)->text();
    return rows;
  }
  // Ctrl and `key` typed into the list, through the keyboard path of the
  // window it stands in.
  static void ListKey(cDialog& page, int id, int row, Qt::Key key) {
    QListWidget* list = ListAt(page, id);
    list->setCurrentRow(row);
    QApplication::setActiveWindow(list->window());
    list->setFocus();
    QTest::keyClick(list, key, Qt::ControlModifier);
    QApplication::processEvents();
  }
  // Inserts a command of `kind` at the selected row of the flow page's
  // list: the selector's button, then `step` in the kind's dialog.
  static void InsertCommand(int kind, std::function<void(cDialog&)> step) {
    InModal([kind, step](cDialog& selector) {
      InModal(step);
      testing::Click(selector, KindButtonId(kind));
    });
    testing::Click(Front(), kIdCmdInsert);
  }
};

}  // namespace velmora::testing
