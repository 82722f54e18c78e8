#include "ui/system/HelpDialog.h"

#include "project/SystemRecord.h"
#include "ui/controls/EditStr.h"
#include "ui/framework/Commands.h"
#include "ui/system/SystemPageIds.h"

namespace velmora {
namespace {

// Room for the default text's longest line and all of its lines.
constexpr int kMinWidth = 640;
constexpr int kMinHeight = 320;

}  // namespace

cHelpDialog::cHelpDialog(cDialogManager& manager, QWidget* parent, std::string& help)
    : cRecordDialog(manager, parent, help) {
  SetTitle(QString::fromUtf8("オプションの説明"));
  SetLogName("option help");
  SetMinimumSize(kMinWidth, kMinHeight);
  m_form.rows = {
      {nullptr, cEditStrDesc{kIdHelpText, &Work()}},
      {nullptr, cButtonDesc{kIdHelpDefault, "デフォルトに戻す"}},
  };
}

void cHelpDialog::OnDialogCommand(int id, int notice) {
  if (id != kIdHelpDefault || notice != kNoticeClicked) return;
  if (cEditStr* edit = FindControlOf<cEditStr>(kIdHelpText)) edit->SetText(DefaultSystemHelp());
}

}  // namespace velmora
