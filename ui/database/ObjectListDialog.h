#pragma once
#include <cstdint>

#include "ui/framework/RecordDialog.h"

namespace velmora {

// "一覧": the pictures of blocks, characters, items or shots on the sheet
// the palettes show them on, fifteen to a column; a click picks one, and
// OK or a double click hands its number to the field.
class cObjectListDialog : public cRecordDialog<int16_t> {
 public:
  static constexpr int kFirstNumber = 1;
  static constexpr int kLastNumber = 119;

  cObjectListDialog(cDialogManager& manager, QWidget* parent, int sampleKind, int16_t& number);

  // The number of the picture at a point of the sheet, or 0 off the pictures.
  static int NumberAt(int x, int y);
  // Picks as a click on the picture would.
  void Pick(int number);
};

}  // namespace velmora
