#include "project/SystemLabels.h"
#include "ui/system/SystemPage.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {
namespace {

constexpr int kPlayModes = 3;  // story, challenge, free; the test play has no lives of its own here
constexpr int kColumns = cEdSysRanking::kColumnCount;
constexpr int kMaxLives = 99;
constexpr int kMaxWorlds = 99;

int RankingColumnId(int mode, int column) { return kIdRankingColumn + mode * kColumns + column; }

// Page 2 (277): the rules of the story, challenge and free modes and of a
// single stage's test play.
class cModesPage : public cSystemPage {
 public:
  cModesPage(cDialogManager& manager, cEdSystem& work) : cSystemPage(manager, work, "system 2") {
    cEdSystem& s = Work();
    const char* restoreOnDeath = "死亡したらコモン変数をステージ開始前の状態に戻す";
    const char* retry = "一度クリアしたワールドではポーズメニューからリトライできる";
    SetRows({
        FormColumns({
            {FormGroup("ストーリーモード",
                       {
                           FormRows(LivesAndRanking(0)),
                           CheckRow(kIdStoryHighScore, &s.m_bStoryHighScore, "ハイスコアを表示"),
                           CheckRow(kIdStoryTotalScore, &s.m_bStoryTotalScore, "トータルスコアを表示"),
                           CheckRow(kIdStoryRestore, &s.m_bStoryRestore,
                                    "死亡またはステージクリアせずにワールドマップへ戻った際、コモン変数をステージ開始前の状態に戻す"),
                           CheckRow(kIdStoryRetry, &s.m_bStoryRetry, retry),
                           CheckRow(kIdStoryToMap, &s.m_bStoryToMap,
                                    "一度クリアしたワールドではポーズメニューからマップへ戻れる"),
                           CheckRow(kIdShareLives, &s.m_bShareLives, "ストーリーモード全体で人数を共有"),
                           CheckRow(kIdMapOnDeath, &s.m_bMapOnDeath, "死亡する度にワールドマップへ戻れる"),
                           CheckRow(kIdMapShowLives, &s.m_bMapShowLives, "ワールドマップで残り人数を表示"),
                           CheckRow(kIdAutoSaveEachStage, &s.m_bAutoSaveEachStage,
                                    "複数のステージで構成されたワールドで、ステージクリアの度にオートセーブ（オートセーブON時のみ）"),
                       })},
            {FormGroup("チャレンジモード",
                       {
                           FormRows(LivesAndRanking(1)),
                           {"ワールド数", SpinEdit(kIdChallengeWorlds, &s.m_iChallengeWorlds, 1, kMaxWorlds)},
                           CheckRow(kIdChallengeAllWorlds, &s.m_bChallengeAllWorlds, "最初から全ワールドを選択できる"),
                           CheckRow(kIdChallHighScore, &s.m_bChallHighScore, "ハイスコアを表示"),
                           CheckRow(kIdChallTotalScore, &s.m_bChallTotalScore, "トータルスコアを表示"),
                           CheckRow(kIdChallRestore, &s.m_bChallRestore, restoreOnDeath),
                           CheckRow(kIdChallRetry, &s.m_bChallRetry, retry),
                       })},
            {FormGroup("フリーモード",
                       {
                           FormRows(LivesAndRanking(2)),
                           CheckRow(kIdFreeRestore, &s.m_bFreeRestore, restoreOnDeath),
                       }),
             FormGroup("ステージ単体のテストプレイ", {CheckRow(kIdTestRestore, &s.m_bTestRestore, restoreOnDeath)})},
        }),
    });
  }

 protected:
  // "∞" leaves no count to set, a ranking that is off no columns, and
  // without shared lives the world map has none to return with or show.
  void UpdateEnables() override {
    for (int mode = 0; mode < kPlayModes; ++mode) {
      EnableControl(kIdLives + mode, !IsChecked(kIdInfinite + mode));
      const bool ranking = IsChecked(kIdRankingOn + mode);
      for (int column = 0; column < kColumns; ++column) EnableControl(RankingColumnId(mode, column), ranking);
    }
    const bool shared = IsChecked(kIdShareLives);
    for (int id : {kIdMapOnDeath, kIdMapShowLives}) {
      if (!shared) ClearCheck(id);
      EnableControl(id, shared);
    }
  }

 private:
  std::vector<cFormRow> LivesAndRanking(int mode) {
    cEdSystem& s = Work();
    const auto m = static_cast<size_t>(mode);
    cEdSysRanking& ranking = s.m_vecRanking[m];
    std::vector<cFormRow> rows = {
        {"初期人数", SpinEdit(kIdLives + mode, &s.m_aiLives[m], 1, kMaxLives)},
        {nullptr, cCheckDesc{kIdInfinite + mode, &s.m_abInfinite[m], "∞"}, nullptr, nullptr, true},
    };
    std::vector<cFormRow> columns = RepeatRows(kColumns + 1, [&](int row) {
      // The switch of the ranking, then its columns.
      const int column = row - 1;
      const cCheckDesc check = row == 0 ? cCheckDesc{kIdRankingOn + mode, &ranking.m_bEnabled, "ランキングON"}
                                        : cCheckDesc{RankingColumnId(mode, column),
                                                     &ranking.m_abColumns[static_cast<size_t>(column)],
                                                     RankColumnTable.Utf8(column)};
      return std::vector<cFormRow>{{nullptr, check}};
    });
    rows.push_back(FormGroup("ランキング", std::move(columns)));
    return rows;
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeModesPage(cDialogManager& manager, cEdSystem& work) {
  return std::make_unique<cModesPage>(manager, work);
}

}  // namespace velmora
