#pragma once
#include <QRect>

#include "project/WorldTemplates.h"
#include "ui/list/RecordListControl.h"
#include "ui/worldmap/WorldPalette.h"

namespace velmora {

// "イベントパレット": the options of placing events, and the templates
// that the map places, each edited in the event dialog.
class cEventPaletteWindow : public cWorldPalette {
 public:
  // The controls of the event palette.
  enum eEventPaletteIds {
    kIdEditIfPlaced = 1101, kIdEditBeforePlace, kIdAutoNumber, kIdList, kIdInsert, kIdEdit, kIdDelete, kIdCount,
  };

  cEventPaletteWindow(cDialogManager& manager, QWidget* parent, cWindowPlace& place, const cWorldPaletteLinks& links);

  // Shows the window at its kept place, or right of `anchor`, the map
  // window's frame, with the template of event mode chosen.
  bool Open(const QRect& anchor);
  cWorldTemplateList& Templates() { return m_templates; }
  cRecordListControl<cEdWorldEvent>* List() const { return m_pList; }

 protected:
  void BindOwnControls() override;
  void OnDialogCommand(int id, int notice) override;

 private:
  void SelectionChanged();
  void TemplatesChanged();

  cWorldTemplateList m_templates;
  cRecordListControl<cEdWorldEvent>* m_pList = nullptr;
};

}  // namespace velmora
