#pragma once
#include "project/WorldMapRecords.h"
#include "ui/framework/RecordDialog.h"
#include "ui/list/RecordListControl.h"

namespace velmora {

// Dialog 161 "イベント": the name and pages of a world map event or
// template. The page chosen in the list shows beside it, and each change
// reaches that page at once. OK gives the record the edited copy.
class cWorldEventDialog : public cRecordDialog<cEdWorldEvent> {
 public:
  // The controls of the event dialog.
  enum eEventIds {
    kIdName = 1201, kIdPageList, kIdPageInsert, kIdPageDelete, kIdCondWorld, kIdCondVar, kIdCondVarName, kIdCondValue,
    kIdCondOp, kIdCondScore, kIdGraphic, kIdPreview, kIdType, kIdWorldName, kIdStartStage, kIdStageBrowse,
    kIdVariation, kIdVarVar, kIdVarVarName, kIdVarValue, kIdVariationNote, kIdWorldNo, kIdPassable, kIdReplayable,
    kIdGameClear,
  };

  cWorldEventDialog(cDialogManager& manager, QWidget* parent, cEdWorldEvent& event);

  void OnCommand(uint32_t wParam, intptr_t lParam) override;
  cRecordListControl<cEdWorldPage>* Pages() const { return m_pPageList; }

 protected:
  void PrepareWork(cEdWorldEvent& work) override;
  void BindOwnControls() override;
  void UpdateEnables() override;
  void OnDialogCommand(int id, int notice) override;

 private:
  void FollowPageType();
  void RenameVariable(int comboId);
  void FillVariableCombos();
  void BrowseStage();
  void ShowPreview();

  cRecordListEdit<cEdWorldPage> m_pages;
  cEdWorldPage m_page;  // the page chosen in the list, which the controls edit
  cRecordListControl<cEdWorldPage>* m_pPageList = nullptr;
};

}  // namespace velmora
