#pragma once
#include "objects/Cond.h"
#include "objects/KeyCond.h"

class QWidget;

namespace velmora {

class cDialogManager;

// Whether the list a condition belongs to takes 距離条件: the conditions of
// flows and of フローの操作 always do; those of a palette entry or a world
// map event only while the palette kind in use is characters.
enum class eDistanceCond { Allowed, Refused };

// Edits one condition: a new one (all zero) through the kind selector 170
// "条件", an existing one in its kind's dialog at once. True on OK, with
// the record changed; false on Cancel, with the record as it was (the
// caller removes a new row again). A kind without a dialog, as a damaged
// file may hold, opens nothing and is told in the report log.
bool EditCondition(cEdCond& record, bool isNew, cDialogManager& manager, QWidget* parent,
                   eDistanceCond distance = eDistanceCond::Allowed);

// Edits one key condition in dialog 204 "キー条件"; true on OK.
bool EditKeyCondition(cEdKeyCond& record, cDialogManager& manager, QWidget* parent);

}  // namespace velmora
