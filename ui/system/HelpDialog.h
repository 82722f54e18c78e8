#pragma once
#include <string>

#include "ui/framework/RecordDialog.h"

namespace velmora {

// Dialog 287, "オプションの説明": the help text of the game's option menu
// in one multi-line edit. "デフォルトに戻す" puts the default text into the
// edit; only OK gives the text back.
class cHelpDialog : public cRecordDialog<std::string> {
 public:
  cHelpDialog(cDialogManager& manager, QWidget* parent, std::string& help);
  void OnInitDialog() override;

 protected:
  void OnDialogCommand(int id, int notice) override;
};

}  // namespace velmora
