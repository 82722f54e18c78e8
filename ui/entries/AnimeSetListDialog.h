#pragma once
#include <cstdint>

#include "ui/framework/RecordDialog.h"

namespace velmora {

// "一覧" beside アニメセット: every animation set of the database as the
// picture its standing slot shows, eight to a row. A click picks a set and
// names it below the grid, a double click picks it and closes as OK does;
// OK hands its row to the field, Cancel leaves the field alone.
class cAnimeSetListDialog : public cRecordDialog<int16_t> {
 public:
  cAnimeSetListDialog(cDialogManager& manager, QWidget* parent, int16_t& set);

  // Picks as a click on the set's picture would.
  void Pick(int set);

 protected:
  void UpdateEnables() override;
};

}  // namespace velmora
