#pragma once
#include <span>
#include <string>
#include <vector>

#include "objects/Cond.h"
#include "objects/KeyCond.h"
#include "objects/StatusTables.h"

namespace velmora {

// The rules that tie the fields of a condition together while the author
// edits it. The dialogs only show what these decide, so every rule can be
// tried without a window.

// Any value a variable holds, and any constant compared with one.
inline constexpr int kVarValueLimit = 999999;

struct cValueRange {
  int min = 0;
  int max = 0;
  bool operator==(const cValueRange&) const = default;
};

// A new condition of `kind`: all zero but the kind and the values its
// dialog starts with.
cEdCond NewCondition(int kind);

// ---- ステータス条件: a left side, a right side and a relation ----

enum class eCondSide { Left, Right };

// What one side is made of, read from the side's own fields.
struct cCondSideView {
  bool namesStatus = false;  // left type ステータス, right type ステータス
  bool namesVar = false;     // left type 変数, right type 変数
  int object = 0;
  int status = 0;
  int coord = 0;
  int scope = 0;
};
cCondSideView CondSide(const cEdCond& cond, eCondSide side);

// The controls of a side that take part in what the side names.
struct cSideEnables {
  bool object = false;  // the object and status lists
  bool coord = false;   // 座標タイプ
  bool giant = false;   // 巨大化キャラの座標位置
  bool scope = false;   // the variable scope
  bool var = false;     // the variable list
  bool rename = false;  // its "_"
};
cSideEnables SideEnables(const cEdCond& cond, eCondSide side);

// A side names a status of a character whose number is a character
// variable: its variable list shows CharaVarTable.
bool SideNamesCharaVar(const cEdCond& cond, eCondSide side);
// The scope whose names the side's variable list shows; -1 while it shows
// the character variables instead.
int SideVarScope(const cEdCond& cond, eCondSide side);

// The status table that an object's status list shows.
std::span<const cStatusInfo> StatusListOf(int object);

// The limits of the constant and of the two random values. A status on the
// left gives the operand range of its row of CharaStatusTable, for the
// system's statuses too; a variable on the left may be compared with any
// value a variable holds.
cValueRange OperandRange(const cEdCond& cond);
// 「％で指定」 is open to a character status that allows it in conditions.
bool PercentAllowed(const cEdCond& cond);

// ---- ステータス条件2: a flag of a character or of the system ----

// The flags the list shows for an object, and the table row of its first
// entry: 消滅 is for the command ステータスの操作2 only, so a character's
// list starts at row 1.
std::span<const cFlagInfo> FlagListOf(int object);
int FirstFlagRow(int object);
// The flag that the condition names; null for a row outside its table.
const cFlagInfo* ChosenFlag(const cEdCond& cond);
// After the author changed the object or the flag (`before` is the
// condition as it was): passing to or from the system starts the flag list
// over at its first entry with that flag's default value, and a value that
// the new flag doesn't have becomes the flag's default.
void FollowFlagChoice(cEdCond& cond, const cEdCond& before);

// ---- lists of conditions ----

// Why the conditions of a block or an item can't take `clipboard`, in
// CP932: a 距離条件 has no place there. "" lets it in.
std::string DistancePasteRefusal(const std::vector<cEdCond>& clipboard);

// ---- キー条件 ----

inline constexpr int kPressTimeMin = 1;
inline constexpr int kPressTimeMax = 999;
// The upper end of the input time never lies below the lower end.
cValueRange PressMaxRange(const cEdKeyCond& key);

}  // namespace velmora
