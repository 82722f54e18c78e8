#pragma once
#include <functional>
#include <string>
#include <vector>

#include "ui/framework/Commands.h"
#include "ui/framework/RecordDialog.h"
#include "ui/list/FieldList.h"

namespace velmora {

// The steps of an animation or an effect, edited on a copy: the list of
// frames with "挿入" and "削除", and the selected frame's cell and time
// beside it. An empty list gets one frame as the dialog opens; the list
// holds 1 to 99 frames, and a longer one from a damaged file shows whole
// and only refuses to grow.
template <class Frame>
class cFramesDialog : public cRecordDialog<std::vector<Frame>> {
 public:
  struct cLimits {
    int cellMax;
    int timeMin;
    int timeMax;
  };
  using RowTextFn = std::function<std::string(const Frame&)>;

  // Past the framework's own ids (the placeholder, the scroll bars).
  enum eIds { kIdFrames = 1010, kIdInsert, kIdDelete, kIdCell, kIdCellSpin, kIdTime, kIdTimeSpin, kIdFrameOwn };
  static constexpr int kMaxFrames = 99;

  cFramesDialog(cDialogManager& manager, QWidget* parent, std::vector<Frame>& frames, RowTextFn rowText)
      : cRecordDialog<std::vector<Frame>>(manager, parent, frames) {
    m_list.edit.m_nMin = 1;
    m_list.edit.m_nMax = kMaxFrames;
    m_list.edit.m_RowText = [rowText](int, const Frame& frame) { return rowText(frame); };
    m_list.afterShown = [this] { AfterFrameShown(); };
    m_list.onFieldChanged = [this](int) { AfterFrameShown(); };
  }

  Frame& Current() { return m_list.work; }

 protected:
  // The table: the list with its buttons, and right of it the frame's
  // fields and `more`.
  void SetForm(const cLimits& limits, std::vector<cFormRow> more) {
    Frame& frame = m_list.work;
    std::vector<cFormRow> list = {
        FieldListRow(kIdFrames),
        {nullptr, cButtonDesc{kIdInsert, "挿入"}},
        {nullptr, cButtonDesc{kIdDelete, "削除"}, nullptr, nullptr, true},
    };
    std::vector<cFormRow> fields = {
        {"コマ", cEditValDesc{kIdCell, &frame.m_iCell, 0, static_cast<double>(limits.cellMax), kIdCellSpin, 1}},
        {"表示時間(1/10s)",
         cEditValDesc{kIdTime, &frame.m_iTime, static_cast<double>(limits.timeMin), static_cast<double>(limits.timeMax),
                      kIdTimeSpin, 1}},
    };
    for (cFormRow& row : more) fields.push_back(std::move(row));
    this->m_form.rows = {FormColumns({std::move(list), std::move(fields)})};
  }

  // The selected frame was shown or changed.
  virtual void AfterFrameShown() {}

  void PrepareWork(std::vector<Frame>& work) override {
    if (work.empty()) work.emplace_back();
    m_list.SetData(&work);
  }
  void BindOwnControls() override { m_list.Bind(*this, kIdFrames, 1, 1); }
  void OnInitDialog() override {
    cRecordDialog<std::vector<Frame>>::OnInitDialog();
    AfterFrameShown();
  }
  void OnCommand(uint32_t wParam, intptr_t lParam) override {
    cRecordDialog<std::vector<Frame>>::OnCommand(wParam, lParam);
    if (this->IsOpen()) m_list.StoreIfFieldChanged(wParam);
  }
  void OnDialogCommand(int id, int /*notice*/) override {
    if (id == kIdInsert) m_list.Run(eListCommand::Insert);
    else if (id == kIdDelete) m_list.Run(eListCommand::Delete);
    else m_list.RunListCommand(id);
  }

  cFieldList<Frame> m_list;
};

}  // namespace velmora
