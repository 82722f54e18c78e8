#pragma once
#include <optional>
#include <vector>

#include "project/Database.h"
#include "project/DatabaseListEdit.h"
#include "ui/database/DatabaseSheet.h"
#include "ui/database/PageMaker.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/list/FieldList.h"
#include "ui/whereused/WhereUsedEntry.h"

namespace velmora {

// Ids every page of the database window has; a page's own ids start at
// kIdDbPageOwn.
enum eDbPageIds {
  kIdDbList = 1100,
  kIdDbNew,    // "新規"
  kIdDbClear,  // "クリア"
  kIdDbCount,  // "データ数"
  kIdDbName,   // "名称"
  kIdDbFindUses,  // "使用箇所の検索" of the list's pop-up menu
  kIdDbPageOwn = 1120,
};

// The list and the main list's menu and keys: list number 1 of family 0.
inline constexpr int kDbListNumber = 1;
inline constexpr int kDbListFamily = 0;
// Names are at most 12 bytes.
inline constexpr int kDbNameLimit = 12;

// The database list whose rows the records of a page's kind are, for the
// search of their uses; none for a list that nothing searched points into.
template <class Element>
inline constexpr std::optional<eDbList> kSearchedList = std::nullopt;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdAnimeSet> = eDbList::AnimeSet;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdAnime> = eDbList::Anime;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdCharaBmp> = eDbList::BmpCharaExc;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdSwordType> = eDbList::SwordType;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdEffect> = eDbList::Effect;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdCharaEffect> = eDbList::CharaEffect;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdScrEffect> = eDbList::ScrEffect;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdPicture> = eDbList::Picture;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdSound> = eDbList::Sound;
template <> inline constexpr std::optional<eDbList> kSearchedList<cEdBgm> = eDbList::Bgm;

// One page of the database window: the entries of a list on the left, the
// fields of the selected entry on the right. The page edits the window's
// copy of its list, and every field the author changes reaches the entry
// at once, so that OK has nothing left to store.
template <class Element>
class cDbListPage : public cDialog {
 public:
  cDbListPage(cDialogManager& manager, std::vector<Element>& list, const cListRule& rule)
      : cDialog(manager, nullptr), m_nMost(rule.most) {
    m_fields.edit.SetList(&list, rule);
    m_fields.edit.m_RowText = [](int, const Element& entry) { return entry.m_strName; };
    m_fields.beforeShown = [this] { BeforeRecordShown(); };
    m_fields.afterShown = [this] { AfterRecordShown(); };
    m_fields.onFieldChanged = [this](int id) { OnFieldChanged(id); };
    m_form.okCancel = false;
  }

  // The element that the fields show, for tests and the window's rules.
  Element& Work() { return m_fields.work; }
  cDbListEdit<Element>& Edit() { return m_fields.edit; }

 protected:
  // The table of the page: the list with its buttons, and `fields` right
  // of it.
  void SetFieldRows(std::vector<cFormRow> fields) {
    std::vector<cFormRow> list = {
        FieldListRow(kIdDbList),
        {nullptr, cButtonDesc{kIdDbNew, "新規"}},
        {nullptr, cButtonDesc{kIdDbClear, "クリア"}, nullptr, nullptr, true},
        {nullptr, cButtonDesc{kIdDbCount, "データ数"}, nullptr, nullptr, true},
    };
    m_form.rows = {FormColumns({std::move(list), std::move(fields)})};
  }
  // The rows of "名称", the field every entry has.
  std::vector<cFormRow> NameRows(int limit = kDbNameLimit) {
    return {{"名称", EditStrLine(kIdDbName, &Work().m_strName, limit)}};
  }

  // The page's own rules around the common flow.
  virtual void BeforeRecordShown() {}
  virtual void AfterRecordShown() { UpdateEnables(); }
  virtual void OnFieldChanged(int /*id*/) {}
  // A command of the page's own controls, after the list's have been
  // offered it; true when the page took it.
  virtual bool OnPageCommand(int /*id*/) { return false; }

  // The page itself changed the working record (a sub-dialog's OK, a file
  // chosen): the fields show it and the entry takes it.
  void StoreAndShow() {
    RefreshOthers(kIdDbList);
    m_fields.StoreWork();
    UpdateEnables();
  }

  void BindOwnControls() override {
    m_fields.Bind(*this, kIdDbList, kDbListNumber, kDbListFamily);
    if (kSearchedList<Element> && m_fields.Control()) {
      m_fields.Control()->View().AddMenuItem({kIdDbFindUses, "使用箇所の検索"});
    }
  }
  void OnInitDialog() override {
    cDialog::OnInitDialog();
    AfterRecordShown();
  }

  void OnCommand(uint32_t wParam, intptr_t lParam) override {
    cDialog::OnCommand(wParam, lParam);
    if (IsOpen() && m_fields.StoreIfFieldChanged(wParam)) UpdateEnables();
  }

  // A list command that worked shows the working record anew, with the
  // page's rules around it.
  void OnDialogCommand(int id, int /*notice*/) override {
    if (id == kIdDbNew) m_fields.Run(eListCommand::Append);
    else if (id == kIdDbClear) m_fields.Run(eListCommand::Clear);
    else if (id == kIdDbCount && m_fields.Control()) m_fields.Control()->ChangeCount(m_nMost);
    else if (id == kIdDbFindUses) FindUses();
    else if (!OnPageCommand(id)) m_fields.RunListCommand(id);
  }

  cFieldList<Element, cDbListEdit<Element>> m_fields;

 private:
  // The uses as the files have them: the window's unsaved edits of the
  // list don't move what records point at. Opening a use closes the
  // window through its OK, which writes those edits.
  void FindUses() {
    const int row = m_fields.edit.GetSel();
    if (!kSearchedList<Element> || row < 0) return;
    ShowUsesOver(Manager(), Window(), {UseKindOf(*kSearchedList<Element>), row}, FinishDatabaseSheet);
  }

  int m_nMost;
};

template <class Page>
std::unique_ptr<cDialog> MakePage(cDialogManager& manager, cDatabaseWork& work) {
  return std::make_unique<Page>(manager, work);
}

}  // namespace velmora
