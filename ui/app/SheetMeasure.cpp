#include "ui/app/SheetMeasure.h"

#include <QTabWidget>

#include "ui/framework/Dialog.h"
#include "ui/framework/DialogWindow.h"

namespace velmora {
namespace {

// A page of the usual make: two frames of labelled numbers, texts, check
// boxes and a choice, two to a line. With the editor's Japanese font it
// lays out near the 393 x 235 that pages are drawn for, so the rate only
// corrects what another font or display makes of it.
class cMeasurePage : public cDialog {
 public:
  cMeasurePage(cDialogManager& manager, QWidget* parent) : cDialog(manager, parent) {
    m_form.okCancel = false;
    m_form.rows = {
        {"ライフ", cEditValDesc{2001, &m_nValue, 0, 9999, 2002, 1}, "基本設定"},
        {"攻撃力", cEditValDesc{2003, &m_nValue, 0, 9999, 2004, 1}, "基本設定", nullptr, true},
        {"名前", EditStrLine(2005, &m_strText, 32, true), "基本設定"},
        {"種類", cComboDesc{2008, &m_nValue, SysTexts({"プレイヤー", "敵", "その他"})}, "基本設定", nullptr, true},
        {nullptr, cCheckDesc{2006, &m_nFlag, "画面外でも動作する"}, "動作"},
        {nullptr, cCheckDesc{2007, &m_nFlag, "ステージ開始時から表示する"}, "動作", nullptr, true},
        {"速度", cEditValDesc{2009, &m_nValue, 0, 200, 2010, 1}, "動作"},
        {"ジャンプ力", cEditValDesc{2011, &m_nValue, 0, 200, 2012, 1}, "動作", nullptr, true},
        {"メモ", EditStrLine(2013, &m_strText, 64, true)},
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
