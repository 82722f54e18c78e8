#include "ui/database/AnimePages.h"

#include <QListWidget>

#include "project/DatabaseRowText.h"
#include "ui/controls/RowList.h"
#include "ui/database/AnimePreviewPlayer.h"
#include "ui/database/DbListPage.h"
#include "ui/database/FrameDialogs.h"
#include "ui/database/SampleFields.h"
#include "ui/framework/IdleWake.h"

namespace velmora {
namespace {

constexpr int kShiftMax = 999;
// The slots "飛行" and "飛行移動" show the flying shift.
constexpr int kFirstFlyingSlot = 2;
constexpr int kShownSteps = 6;

// What the two pages share: the sample fields, the preview and the list of
// steps under it, on a list page of `Element`.
template <class Element>
class cAnimatedPage : public cDbListPage<Element> {
 public:
  cAnimatedPage(cDialogManager& manager, std::vector<Element>& list, const cListRule& rule, cDatabaseWork& work)
      : cDbListPage<Element>(manager, list, rule), m_work(work) {}

  bool WantsIdle() const override { return cAnimePreviewPlayer::IsOnShow(*this); }
  void Idle() override { m_preview.Tick(*this); }
  void OnSetActive() override {
    AfterRecordShown();
    WakeIdle();
  }

 protected:
  // The animation whose steps the preview plays and the list shows, the
  // record that holds the sample, and the preview's shift.
  virtual const cEdAnime& Shown() = 0;
  virtual cEdAnime& Sample() = 0;
  virtual int Shift() { return 0; }
  // The rows of the step list.
  virtual std::vector<std::string> StepRows() = 0;

  std::vector<cFormRow> PreviewRows(const char* editText) {
    return {m_preview.Row(),
            RowListRow(kIdAnimeFrames, kShownSteps),
            {nullptr, cButtonDesc{kIdAnimePattern, editText}}};
  }

  void BindOwnControls() override {
    cDbListPage<Element>::BindOwnControls();
    auto* steps = qobject_cast<QListWidget*>(this->Item(kIdAnimeFrames));
    if (steps) this->AddControl(std::make_unique<cRowList>(*this, steps, kIdAnimeFrames, [this] { return StepRows(); },
                                                           kIdAnimePattern));
  }

  void AfterRecordShown() override {
    m_sampleFields.ShowLimits(*this, Sample().m_cSampleKind, m_work.db.Count(eDbList::BmpCharaExc));
    if (cControl* steps = this->FindControl(kIdAnimeFrames)) steps->Refresh();
    m_preview.Play(*this, Sample(), Shown().m_vecFrames, Shift());
    cDbListPage<Element>::AfterRecordShown();
  }

  void OnFieldChanged(int id) override {
    if (id == m_sampleFields.KindId()) {
      m_sampleFields.ApplyLimits(*this, Sample().m_cSampleKind, m_work.db.Count(eDbList::BmpCharaExc));
    }
    m_preview.Show(*this, Sample(), Shift());
  }

  bool OnPageCommand(int id) override {
    if (id == m_sampleFields.ListId()) {
      if (m_sampleFields.Pick(*this, Sample())) AfterSampleChanged();
      return true;
    }
    if (id == kIdAnimePattern) {
      if (EditSteps()) this->StoreAndShow();
      AfterRecordShown();
      return true;
    }
    return false;
  }

  // "パターンの編集": true when the steps changed.
  virtual bool EditSteps() = 0;
  // The sample changed outside its fields.
  virtual void AfterSampleChanged() {
    this->StoreAndShow();
    m_preview.Show(*this, Sample(), Shift());
  }

  cDatabaseWork& m_work;
  cSampleFields m_sampleFields{kIdAnimeSample};
  cAnimePreviewPlayer m_preview{kIdAnimePreview};
};

}  // namespace

// Page 2: an animation is its own sample.
class cAnimePage : public cAnimatedPage<cEdAnime> {
 public:
  cAnimePage(cDialogManager& manager, cDatabaseWork& work)
      : cAnimatedPage(manager, work.db.m_Anime.m_vecEntries, DbListInfo(eDbList::Anime).rule, work) {
    std::vector<cFormRow> rows = NameRows();
    for (cFormRow& row : m_sampleFields.Rows(Work())) rows.push_back(std::move(row));
    for (cFormRow& row : PreviewRows("パターンの編集")) rows.push_back(std::move(row));
    SetFieldRows(std::move(rows));
  }

 protected:
  const cEdAnime& Shown() override { return Work(); }
  cEdAnime& Sample() override { return Work(); }
  std::vector<std::string> StepRows() override {
    std::vector<std::string> rows;
    for (const cEdAnimeFrame& frame : Work().m_vecFrames) rows.push_back(AnimeFrameRowText(frame));
    return rows;
  }
  bool EditSteps() override {
    if (Edit().GetSel() < 0) return false;
    cAnimePatternDialog dialog(Manager(), Window(), Work(), true, 0);
    return dialog.DoModal(kDisableOthers) == 1;
  }
};

// Page 1: a set of four fixed slots. The set's sample is its first slot's;
// each slot's steps play with it, the flying slots moved by the flying
// shift.
class cAnimeSetPage : public cAnimatedPage<cEdAnimeSet> {
 public:
  cAnimeSetPage(cDialogManager& manager, cDatabaseWork& work)
      : cAnimatedPage(manager, work.db.m_AnimeSet.m_vecEntries, DbListInfo(eDbList::AnimeSet).rule, work) {
    cEdAnimeSet& set = Work();
    std::vector<cFormRow> rows = NameRows();
    rows.push_back({"無敵時のコマのズレ", cEditValDesc{kIdSetInvincible, &set.m_iInvincibleShift, 0, kShiftMax}});
    rows.push_back({"ブロック時のコマのズレ", cEditValDesc{kIdSetBlock, &set.m_iBlockShift, 0, kShiftMax}});
    rows.push_back({"飛行時のコマのズレ", cEditValDesc{kIdSetFly, &set.m_iFlyShift, 0, kShiftMax}});
    for (cFormRow& row : m_sampleFields.Rows(m_sample)) rows.push_back(std::move(row));
    for (cFormRow& row : PreviewRows("編集")) rows.push_back(std::move(row));
    SetFieldRows(std::move(rows));
    TakeSample();
  }

 protected:
  void BeforeRecordShown() override { TakeSample(); }
  void OnFieldChanged(int id) override {
    cAnimatedPage::OnFieldChanged(id);
    if (m_sampleFields.IsSampleId(id)) CopySampleToSlot(0);
    if (id == kIdSetFly) m_preview.Show(*this, Sample(), Shift());
  }
  void AfterSampleChanged() override {
    CopySampleToSlot(0);
    cAnimatedPage::AfterSampleChanged();
  }
  void OnDialogCommand(int id, int notice) override {
    // Another slot chosen: the preview plays its steps.
    if (id == kIdAnimeFrames && notice == kNoticeSelChange) {
      m_preview.Play(*this, Sample(), Shown().m_vecFrames, Shift());
      return;
    }
    cAnimatedPage::OnDialogCommand(id, notice);
  }

  const cEdAnime& Shown() override {
    static const cEdAnime kNoSlot;
    const std::vector<cEdAnime>& setSlots = Work().m_vecAnime;
    const int slot = SelectedSlot();
    return slot < static_cast<int>(setSlots.size()) ? setSlots[static_cast<size_t>(slot)] : kNoSlot;
  }
  cEdAnime& Sample() override { return m_sample; }
  int Shift() override { return SelectedSlot() >= kFirstFlyingSlot ? Work().m_iFlyShift : 0; }
  std::vector<std::string> StepRows() override {
    std::vector<std::string> rows;
    for (const cEdAnime& slot : Work().m_vecAnime) rows.push_back(AnimeSlotRowText(slot));
    return rows;
  }
  // The slot's steps, with the check "コマンドを実行する" closed: a set's
  // steps fire no commands.
  bool EditSteps() override {
    const int slot = SelectedSlot();
    if (Edit().GetSel() < 0 || slot >= static_cast<int>(Work().m_vecAnime.size())) return false;
    // The slot takes the set's sample whatever the dialog's answer.
    CopySampleToSlot(slot);
    cAnimePatternDialog dialog(Manager(), Window(), Work().m_vecAnime[static_cast<size_t>(slot)], false, Shift());
    dialog.DoModal(kDisableOthers);
    return true;
  }

 private:
  // The sample's fields edit a record of their own: an address inside the
  // slots would not survive the working record taking another set. It
  // goes to the first slot as the author changes it.
  void TakeSample() {
    const std::vector<cEdAnime>& setSlots = Work().m_vecAnime;
    m_sample = setSlots.empty() ? cEdAnime() : setSlots.front();
  }
  int SelectedSlot() const {
    const auto* steps = qobject_cast<QListWidget*>(Item(kIdAnimeFrames));
    return steps && steps->currentRow() > 0 ? steps->currentRow() : 0;
  }
  void CopySampleToSlot(int slot) {
    std::vector<cEdAnime>& setSlots = Work().m_vecAnime;
    if (slot >= static_cast<int>(setSlots.size())) return;
    cEdAnime& target = setSlots[static_cast<size_t>(slot)];
    target.m_cSampleKind = m_sample.m_cSampleKind;
    target.m_iSampleNo = m_sample.m_iSampleNo;
    target.m_iSampleCell = m_sample.m_iSampleCell;
  }

  cEdAnime m_sample;
};

template std::unique_ptr<cDialog> MakePage<cAnimeSetPage>(cDialogManager&, cDatabaseWork&);
template std::unique_ptr<cDialog> MakePage<cAnimePage>(cDialogManager&, cDatabaseWork&);

}  // namespace velmora
