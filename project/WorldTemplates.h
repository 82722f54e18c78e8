#pragma once
#include "core/RecordListEdit.h"
#include "project/WorldEditState.h"
#include "project/WorldMap.h"

namespace velmora {

// The event palette's list of templates: at most 99, each edited in the
// event dialog. Its clipboard is the map's: a copy here pastes on the map
// and the other way round.
class cWorldTemplateList : public cRecordListEdit<cEdWorldEvent> {
 public:
  cWorldTemplateList(cEdWorldMap& map, cEdWorldEditState& state);

  bool Copy() override;
  bool Paste() override;
  // Event mode takes the selection: a copy of the template, its index and
  // a brush of one cell, or nothing while no row is chosen.
  void ShareSelection();

 private:
  cEdWorldEditState& m_state;
};

}  // namespace velmora
