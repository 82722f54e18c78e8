#pragma once
#include <string>
#include <vector>

#include "project/bitmap/BitmapConvert.h"
#include "ui/framework/Dialog.h"

namespace velmora {

class cStageWindow;

// Dialog 188, "ビットマップ変換ツール": a list of bitmaps, gathered by the
// file prompt or dropped from the desktop, converted to the project's
// colours with the options that the editor settings keep. OK keeps the
// options; a run keeps those it ran with.
class cBitmapToolDialog : public cDialog {
 public:
  cBitmapToolDialog(cDialogManager& manager, QWidget* parent);
  const std::vector<std::string>& Files() const { return m_files; }
  // What a drop of these host paths adds, as if dropped on the window.
  void TakeDropped(const QStringList& hostPaths);

 protected:
  void OnInitDialog() override;
  bool OnDialogMessage(QEvent& event) override;
  void OnDialogCommand(int id, int notice) override;
  void UpdateEnables() override;
  void BindOwnControls() override;
  bool OnApply() override;

 private:
  void AddChosenFiles();
  void BrowseOutputFolder();
  void Convert();
  void ShowFiles();

  cConvertOptions m_options;
  std::vector<std::string> m_files;
};

// The menu entry "ビットマップ変換ツール(&B)" of the stage window opens it.
void InstallBitmapTool(cStageWindow& stage);

}  // namespace velmora
