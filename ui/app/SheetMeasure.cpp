#include "ui/app/SheetMeasure.h"

#include <QTabWidget>

#include "ui/framework/Dialog.h"
#include "ui/framework/DialogWindow.h"

namespace velmora {
namespace {

// A page of the usual make: labelled numbers and texts in a frame, check
// boxes and a choice. Its size under the running font against the size the
// templates were drawn for gives the rate.
class cMeasurePage : public cDialog {
 public:
  cMeasurePage(cDialogManager& manager, QWidget* parent) : cDialog(manager, parent) {
    m_form.okCancel = false;
    m_form.rows = {
        {"ライフ", cEditValDesc{2001, &m_nValue, 0, 9999, 2002, 1}, "基本設定"},
        {"攻撃力", cEditValDesc{2003, &m_nValue, 0, 9999, 2004, 1}, "基本設定"},
        {"名前", EditStrLine(2005, &m_strText, 32, true), "基本設定"},
        {nullptr, cCheckDesc{2006, &m_nFlag, "画面外でも動作する"}},
        {nullptr, cCheckDesc{2007, &m_nFlag, "ステージ開始時から表示する"}},
        {"種類", cComboDesc{2008, &m_nValue, SysTexts({"プレイヤー", "敵", "その他"})}},
    };
  }

 private:
  int32_t m_nValue = 0;
  int32_t m_nFlag = 0;
  std::string m_strText;
};

}  // namespace

QSize MeasurePageClient(cDialogManager& manager, QWidget* owner) {
  QTabWidget sheet(owner);
  sheet.setAttribute(Qt::WA_DontShowOnScreen);
  cMeasurePage page(manager, &sheet);
  if (!page.CreatePage(&sheet, true)) return {};
  sheet.addTab(page.Window(), QString());
  const QSize size = page.Window()->sizeHint();
  page.Close(0);
  return size;
}

}  // namespace velmora
