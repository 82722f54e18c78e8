#include "core/DoubleStart.h"

#include "core/Prompt.h"
#include "core/SystemText.h"

namespace velmora {

bool ConfirmDoubleStart(cInstanceLock& lock) {
  if (!lock.HeldElsewhere()) return true;
  const eAnswer answer =
      Prompt().Ask(nullptr, SysText("二重起動"),
                   SysText("既に起動しています。\n二重起動しますか？  ※非推奨。データの上書き保存に注意！\n"),
                   eButtons::YesNo, eIcon::Question);
  if (answer == eAnswer::Yes) return true;
  lock.Release();
  return false;
}

}  // namespace velmora
