#pragma once
#include <span>
#include <string>
#include <vector>

#include "core/Prompt.h"
#include "objects/CmdWork.h"
#include "ui/conditions/RuleDialog.h"

namespace velmora {

// The rules of the command forms.
using cCmdEnable = cRuleForm<cCmdWork>::cEnable;
using cCmdRange = cRuleForm<cCmdWork>::cRange;

// The dialog of one kind of command, stated as data: the rows and rules of
// its table over the work, and what sets the kind apart from the family.
struct cCmdKindForm {
  // A static whose text follows the work (CP932).
  struct cText {
    int id;
    std::string (*text)(const cCmdWork&);
  };
  // Controls shown only while the test holds, with the labels around them.
  struct cShow {
    std::vector<int> ids;
    bool (*shown)(const cCmdWork&);
  };
  // A button that works on the work, such as a file selection; true when
  // it changed the work, which the controls then show.
  struct cPress {
    int id;
    bool (*press)(cCmdWork&, OwnerWindow);
  };

  int kind = 0;  // in the numbering of CmdTable; an item's own kind has a form of its own
  const char* title = nullptr;  // UTF-8; the kind's label when null
  cRuleForm<cCmdWork> rules;
  // What opening does to the work, each time, besides sizing it.
  void (*open)(cCmdWork&) = nullptr;
  // What a change made by the author resets in other fields, such as the
  // defaults of fields that take a new meaning; true when it changed the
  // work. Unlike the rules' follow, it runs after their limits were
  // applied, and the controls then show the work afresh.
  bool (*reset)(cCmdWork& work, const cCmdWork& before) = nullptr;
  // The check of OK; false keeps the dialog open.
  bool (*accept)(const cCmdWork&, OwnerWindow) = nullptr;
  std::vector<cText> texts = {};
  std::vector<cShow> shows = {};
  std::vector<cPress> presses = {};
  bool condList = false;  // the conditions of フローの操作, on the ids kIdCond...
};

// The forms of the family, each file of forms with its own kinds.
std::span<const cCmdKindForm> MoveForms();    // moves, ウエイト, 移動の無効化, ワープ
std::span<const cCmdKindForm> ShotForms();    // ショット, ソード, the summons
std::span<const cCmdKindForm> FlowForms();    // 向き変更, ジャンプ, the flow, the stage and the targets
std::span<const cCmdKindForm> StatusForms();  // ステータスの操作, ステータスの操作2, アレンジ
std::span<const cCmdKindForm> ShowForms();    // messages, graphics, effects, pictures, colour, sound
const cCmdKindForm& CodeForm();               // コードの実行
const cCmdKindForm& ItemFlowChangeForm();     // フローの変更, the item's own kind 1

// The form of a command's kind; null for a kind without a dialog, as a
// damaged file may hold.
const cCmdKindForm* CmdKindForm(bool itemCmd, int kind);

}  // namespace velmora
