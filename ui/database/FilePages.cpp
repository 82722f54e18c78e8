#include "ui/database/FilePages.h"

#include <QLineEdit>

#include "core/SystemText.h"
#include "ui/database/DbFilePage.h"

namespace velmora {
namespace {

const cListRule& RuleOf(eDbList list) { return DbListInfo(list).rule; }

}  // namespace

class cCharaBmpPage : public cDbFilePage<cEdCharaBmp> {
 public:
  cCharaBmpPage(cDialogManager& manager, cDatabaseWork& work)
      : cDbFilePage(manager, work.db.m_CharaBmp.m_vecEntries, RuleOf(eDbList::BmpCharaExc),
                    {{&cEdCharaBmp::m_strPath, eFileField::CharaBmp, "パス"}}) {
    std::vector<cFormRow> rows = FileRows();
    rows.push_back({nullptr, cCheckDesc{kIdCharaHuge, &Work().m_bHuge, "巨大キャラ"}});
    // The side of a giant in chara cells, 2 to 10, shown as its square.
    rows.push_back({nullptr,
                    cComboDesc{kIdCharaHugeSize, &Work().m_iHugeSize,
                               SysTexts({"×4", "×9", "×16", "×25", "×36", "×49", "×64", "×81", "×100"}), 2, nullptr,
                               true},
                    nullptr, nullptr, true});
    SetFieldRows(std::move(rows));
  }

 protected:
  void UpdateEnables() override {
    cDbFilePage::UpdateEnables();
    EnableControl(kIdCharaHugeSize, Work().m_bHuge != 0);
  }
};

class cPicturePage : public cDbFilePage<cEdPicture> {
 public:
  cPicturePage(cDialogManager& manager, cDatabaseWork& work)
      : cDbFilePage(manager, work.db.m_Picture.m_vecEntries, RuleOf(eDbList::Picture),
                    {{&cEdPicture::m_strPath, eFileField::Picture, "パス"}}) {
    SetFieldRows(FileRows());
  }
};

class cSoundPage : public cDbFilePage<cEdSound> {
 public:
  cSoundPage(cDialogManager& manager, cDatabaseWork& work)
      : cDbFilePage(manager, work.db.m_Sound.m_vecEntries, RuleOf(eDbList::Sound),
                    {{&cEdSound::m_strPath, eFileField::Sound, "パス"}}) {
    std::vector<cFormRow> rows = FileRows();
    rows.push_back({nullptr, cSoundPreviewDesc{kIdSoundPlay, eDbList::Sound, 0, kIdDbPath}});
    // A label too long for the label column wraps across the page.
    rows.push_back({"※Wave拡張フォーマットが無効かつ非圧縮のPCM形式のみ対応（もしゲーム側で再生されない場合は形式変換が必要）",
                    cStaticDesc{kIdSoundNote, ""}});
    SetFieldRows(std::move(rows));
  }
};

class cBgmPage : public cDbFilePage<cEdBgm> {
 public:
  cBgmPage(cDialogManager& manager, cDatabaseWork& work)
      : cDbFilePage(manager, work.db.m_Bgm.m_vecEntries, RuleOf(eDbList::Bgm),
                    {{&cEdBgm::m_strPath, eFileField::Bgm, "パス"}}) {
    constexpr int kVolumePage = 10;
    std::vector<cFormRow> rows = FileRows();
    rows.push_back({"ボリューム(%)", cSliderDesc{kIdBgmVolume, &Work().m_iVolume, 0, 100, kIdBgmVolumeShown, kVolumePage}});
    rows.push_back({nullptr, cEditValDesc{kIdBgmVolumeShown, &Work().m_iVolume, 0, 100}, nullptr, nullptr, true});
    rows.push_back({nullptr, cSoundPreviewDesc{kIdSoundPlay, eDbList::Bgm, 0, kIdDbPath, kIdBgmVolumeShown}});
    SetFieldRows(std::move(rows));
  }

 protected:
  void BindOwnControls() override {
    cDbFilePage::BindOwnControls();
    if (auto* shown = qobject_cast<QLineEdit*>(Item(kIdBgmVolumeShown))) shown->setReadOnly(true);
  }
};

template std::unique_ptr<cDialog> MakePage<cCharaBmpPage>(cDialogManager&, cDatabaseWork&);
template std::unique_ptr<cDialog> MakePage<cPicturePage>(cDialogManager&, cDatabaseWork&);
template std::unique_ptr<cDialog> MakePage<cSoundPage>(cDialogManager&, cDatabaseWork&);
template std::unique_ptr<cDialog> MakePage<cBgmPage>(cDialogManager&, cDatabaseWork&);

}  // namespace velmora
