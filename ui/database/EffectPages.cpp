#include "ui/database/EffectPages.h"

#include "ui/database/DbListPage.h"
#include "ui/database/EffectKindBinder.h"

namespace velmora {
namespace {

template <class Effect>
class cKindEffectPage : public cDbListPage<Effect> {
 public:
  cKindEffectPage(cDialogManager& manager, cDbList<Effect>& list, eDbList which, bool colourKinds)
      : cDbListPage<Effect>(manager, list.m_vecEntries, DbListInfo(which).rule),
        m_binder(this->Work().Catalog(), colourKinds, kIdEffectKind) {
    std::vector<cFormRow> rows = this->NameRows();
    for (cFormRow& row : m_binder.Rows(&this->Work().m_iKind, this->Work().m_aiParam)) rows.push_back(std::move(row));
    this->SetFieldRows(std::move(rows));
  }

 protected:
  void BindOwnControls() override {
    cDbListPage<Effect>::BindOwnControls();
    m_binder.FitTexts(*this);
  }
  void BeforeRecordShown() override { m_binder.WidenLimits(*this); }
  void AfterRecordShown() override {
    m_binder.RecordShown(*this, this->Work().m_iKind, this->Work().m_aiParam);
    cDbListPage<Effect>::AfterRecordShown();
  }
  void OnFieldChanged(int id) override {
    Effect& work = this->Work();
    if (id == m_binder.KindId()) m_binder.KindChosen(*this, work.m_iKind, work.m_aiParam);
    else if (m_binder.IsParamId(id)) m_binder.ShowSwatch(*this, work.m_iKind, work.m_aiParam);
  }

 private:
  cEffectKindBinder m_binder;
};

}  // namespace

class cCharaEffectPage : public cKindEffectPage<cEdCharaEffect> {
 public:
  cCharaEffectPage(cDialogManager& manager, cDatabaseWork& work)
      : cKindEffectPage(manager, work.db.m_CharaEffect, eDbList::CharaEffect, true) {}
};

class cScrEffectPage : public cKindEffectPage<cEdScrEffect> {
 public:
  cScrEffectPage(cDialogManager& manager, cDatabaseWork& work)
      : cKindEffectPage(manager, work.db.m_ScrEffect, eDbList::ScrEffect, false) {}
};

template std::unique_ptr<cDialog> MakePage<cCharaEffectPage>(cDialogManager&, cDatabaseWork&);
template std::unique_ptr<cDialog> MakePage<cScrEffectPage>(cDialogManager&, cDatabaseWork&);

}  // namespace velmora
