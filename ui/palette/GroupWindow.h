#pragma once
#include <QPointer>
#include <QPushButton>
#include <QRect>
#include <array>
#include <bitset>
#include <functional>

#include "stage/StageCommands.h"
#include "ui/framework/Dialog.h"

namespace velmora {

class cWindowPlace;


// "キャラのグループ情報": which group numbers the characters on the stage
// use. A display only: a click on a box changes nothing.
class cGroupWindow : public cDialog {
 public:
  cGroupWindow(cDialogManager& manager, QWidget* parent, cWindowPlace& place, std::function<void()> nextLayer);

  // Made hidden, at its saved place or below `anchor`, the stage window.
  bool Open(const QRect& anchor);
  void StorePlace();
  void ShowGroups(const std::bitset<kGroupCount>& used);
  bool IsDown(int group) const;
  void OnCommand(uint32_t wParam, intptr_t lParam) override;

 protected:
  void BuildClient(QWidget& client) override;
  bool OnDialogMessage(QEvent& event) override;

 private:
  cWindowPlace* m_pRect;
  std::function<void()> m_nextLayer;
  std::array<QPointer<QPushButton>, kGroupCount> m_apBox;
  std::bitset<kGroupCount> m_used;
};

}  // namespace velmora
