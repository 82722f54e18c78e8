#include "project/SystemLabels.h"
#include "ui/controls/ComboRows.h"
#include "ui/system/SystemPage.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {
namespace {

constexpr int kKeyBytes = 64;
constexpr int kStringDefaultBytes = 259;
constexpr int kMaxNumberDefault = 99;

// Page 6 (272): the keys under which the game reads "System.ini", with the
// value each takes when the file lacks it, and the screen settings that go
// with them.
class cIniPage : public cSystemPage {
 public:
  cIniPage(cDialogManager& manager, cEdSystem& work) : cSystemPage(manager, work, "system 6") {
    cEdSystem& s = Work();
    // The keys and their defaults stand in two columns under their headings.
    const std::vector<cFormRow> keys = {
        {"", cStaticDesc{0, "識別文字列"}},
        FormRows(RepeatRows(cEdSystem::kOptionCount, [&s](int row) {
          cEdSysOption& option = s.m_vecOptions[static_cast<size_t>(row)];
          return std::vector<cFormRow>{
              {SystemOptionTable.Utf8(row), EditStrLine(kIdOptionKey + row, &option.m_strKey, kKeyBytes)}};
        })),
    };
    const std::vector<cFormRow> defaults = {
        {nullptr, cStaticDesc{0, "デフォルト値"}},
        FormRows(RepeatRows(cEdSystem::kOptionCount, [&s](int row) {
          return std::vector<cFormRow>{{nullptr, DefaultEdit(row, s.m_vecOptions[static_cast<size_t>(row)])}};
        })),
    };
    SetRows({
        FormGroup("System.ini",
                  {
                      FormColumns({keys, defaults}),
                      NoteRow("☆System.iniで識別文字列が見つからなかった場合はデフォルト値になります。"),
                  }),
        FormGroup("フルスクリーンで「Bpp=0」のときの画面の色数",
                  {
                      {"Direct3D", ComboOf(kIdBppD3D, &s.m_iBppD3D, LabelRows(ScreenBppTable))},
                      {"DirectDraw", ComboOf(kIdBppDD, &s.m_iBppDD, LabelRows(ScreenBppTable))},
                      NoteRow("※この設定を変更する場合、System.iniの「Bpp=0」のときの説明も訂正した方が良い"),
                  }),
        CheckRow(kIdEndAfterStage, &s.m_bEndAfterStage,
                 "このステージクリア後にタイトルへ移動\n（オープニング用。テストプレイではスキップされる）"),
    });
  }

 private:
  // A key of the number type takes a number, the one of the string type a
  // text; the type is the record's, so a page never offers the other.
  static cControlDesc DefaultEdit(int row, cEdSysOption& option) {
    if (option.m_iType == cEdSysOption::TypeString) {
      return EditStrLine(kIdOptionDefault + row, &option.m_strDefault, kStringDefaultBytes);
    }
    return SpinEdit(kIdOptionDefault + row, &option.m_iDefault, 0, kMaxNumberDefault);
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeIniPage(cDialogManager& manager, cEdSystem& work) {
  return std::make_unique<cIniPage>(manager, work);
}

}  // namespace velmora
