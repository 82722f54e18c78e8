#include "ui/system/SystemSheet.h"

#include "project/SystemLabels.h"
#include "project/SystemSave.h"
#include "ui/framework/Dialog.h"
#include "ui/stage/StageWindow.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {

cSystemSheet::cSystemSheet(cDialogManager& manager, QWidget* owner)
    : cSheet(manager, owner, QString::fromUtf8("システムの設定"), true), m_work(SystemRecord()) {
  m_work.FitPartSizes();
  // A music row that the music list lost meanwhile shows as none, as the
  // save will store it.
  m_work.CheckBgmIndices();
  AddPage(MakeGeneralPage(manager, m_work), QStringLiteral("1"));
  AddPage(MakeModesPage(manager, m_work), QStringLiteral("2"));
  AddPage(MakeSoundsPage(manager, m_work), QStringLiteral("3"));
  AddPage(MakeStatusPage(manager, m_work), QStringLiteral("4"));
  AddPage(MakeTermsPage(manager, m_work), QStringLiteral("5"));
  AddPage(MakeIniPage(manager, m_work), QStringLiteral("6"));
  for (int part = 0; part < kCompatPageCount; ++part) {
    AddPage(MakeCompatPage(manager, m_work, part), QString::number(7 + part));
  }
}

// The pages have always been stored twice over before the save, so that a
// page whose own apply reads what a later page stores sees it stored.
bool cSystemSheet::OnApply() { return ApplyEveryPage() && SaveSystemSettings(m_work); }

void OpenSystemWindow(cDialogManager& manager, QWidget* owner, int startControl) {
  auto sheet = std::make_unique<cSystemSheet>(manager, owner);
  sheet->SetStartControl(startControl);
  sheet->Start();
}

int SystemControlOfField(const std::string& label) {
  for (int screen = 0; screen < SystemBgmTable.Size(); ++screen) {
    if (label == std::string("BGM ") + SystemBgmTable.Label(screen)) return kIdBgm + screen;
  }
  return 0;
}

void InstallSystemWindow(cStageWindow& stage) {
  stage.SetHandler(eMenuAction::System, [&stage] { OpenSystemWindow(stage.Manager(), stage.Window()); });
}

}  // namespace velmora
