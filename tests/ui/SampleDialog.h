#pragma once
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>

#include "core/SystemText.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/DialogManager.h"

namespace velmora::testing {

// A record with one field of each kind that dialogs bind.
struct cSampleRecord {
  int32_t nLife = 10;
  int16_t nShort = 5;
  double dSpeed = 1.5;
  std::string strName = "abc";
  int32_t bFlag = 0;
  uint8_t nKind = 2;
  int32_t nVolume = 50;
  std::string strNote;
};

enum eSampleIds {
  kIdLife = 2001, kIdLifeSpin, kIdShort, kIdSpeed, kIdName, kIdFlag, kIdKind, kIdVolume, kIdVolumeEdit,
  kIdRun, kIdNote,
};

// A dialog made from a table bound to a cSampleRecord, which counts what
// reaches it.
class cSampleDialog : public cDialog {
 public:
  cSampleDialog(cDialogManager& manager, cSampleRecord& record) : cDialog(manager, nullptr) {
    SetTitle(QString::fromUtf8("サンプル"));
    m_form.rows = {
        {"ライフ", cEditValDesc{kIdLife, &record.nLife, 0, 100, kIdLifeSpin, 1}, "基本"},
        {"短い値", cEditValDesc{kIdShort, &record.nShort, -50, 1000, 0, 1}, "基本"},
        {"速さ", cEditValDesc{kIdSpeed, &record.dSpeed, 0, 10, 0, 0.25}, "基本"},
        {"名前", EditStrLine(kIdName, &record.strName, 8, true), "基本"},
        {nullptr, cCheckDesc{kIdFlag, &record.bFlag, "有効"}},
        {"種類", cComboDesc{kIdKind, &record.nKind, SysTexts({"剣", "弓", "槍"}), 1}},
        {"音量", cSliderDesc{kIdVolume, &record.nVolume, 0, 100, kIdVolumeEdit}},
        {nullptr, cEditValDesc{kIdVolumeEdit, &record.nVolume, 0, 100}, nullptr, nullptr, true},
        {"メモ", cEditStrDesc{kIdNote, &record.strNote, 200, 20, 4, false}},
        {nullptr, cButtonDesc{kIdRun, "実行"}},
    };
  }

  using cDialog::SetAccel;
  using cDialog::WantScrollBars;

  std::function<void(int id, int notice)> onCommand;
  std::function<void()> onRefresh;  // runs inside RefreshAll through a control of its own
  bool refuseApply = false;
  int commands = 0;
  int enableUpdates = 0;
  std::vector<int> keys;

 protected:
  bool OnApply() override { return !refuseApply; }
  void OnDialogCommand(int id, int notice) override {
    ++commands;
    if (onCommand) onCommand(id, notice);
  }
  void UpdateEnables() override { ++enableUpdates; }
  void BindOwnControls() override;
};

// Types text the way a keyboard does, one character at a time; Japanese
// text too, which QTest's key tables don't carry.
inline void TypeText(QWidget* widget, const QString& text) {
  for (QChar c : text) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
    QApplication::sendEvent(widget, &release);
  }
}

// Brings a window up and makes it the active one, as a click would.
inline void Activate(QWidget* window) {
  window->show();
  window->activateWindow();
  (void)QTest::qWaitForWindowActive(window);
}

// Runs `step` once the modal loop that the test is about to start is up.
inline void WhenModal(std::function<void(QWidget* modal)> step) {
  QTimer::singleShot(0, qApp, [step] {
    QWidget* modal = QApplication::activeModalWidget();
    step(modal);
  });
}

}  // namespace velmora::testing
