#include "ui/system/HelpDialog.h"

#include <QFontMetrics>
#include <QWidget>
#include <algorithm>

#include "project/SystemRecord.h"
#include "ui/controls/EditStr.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"
#include "ui/system/SystemPageIds.h"

namespace velmora {
namespace {

// Lines the edit shows beyond those of the default text, and the room its
// frame and scroll bar take beside the longest line.
constexpr int kSpareLines = 4;
constexpr int kFrameRoom = 40;

}  // namespace

cHelpDialog::cHelpDialog(cDialogManager& manager, QWidget* parent, std::string& help)
    : cRecordDialog(manager, parent, help) {
  SetTitle(QString::fromUtf8("オプションの説明"));
  SetLogName("option help");
  m_form.rows = {
      {nullptr, cEditStrDesc{kIdHelpText, &Work()}},
      {nullptr, cButtonDesc{kIdHelpDefault, "デフォルトに戻す"}},
  };
}

// The edit shows the default text whole, so the author sees the lines as
// the game breaks them.
void cHelpDialog::OnInitDialog() {
  cRecordDialog::OnInitDialog();
  QWidget* edit = Item(kIdHelpText);
  if (!edit) return;
  const QFontMetrics metrics(edit->font());
  const QStringList lines = FromCp932(DefaultSystemHelp()).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
  int width = 0;
  for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
  edit->setMinimumSize(width + kFrameRoom, metrics.lineSpacing() * (static_cast<int>(lines.size()) + kSpareLines));
}

void cHelpDialog::OnDialogCommand(int id, int notice) {
  if (id != kIdHelpDefault || notice != kNoticeClicked) return;
  if (cEditStr* edit = FindControlOf<cEditStr>(kIdHelpText)) edit->SetText(DefaultSystemHelp());
}

}  // namespace velmora
