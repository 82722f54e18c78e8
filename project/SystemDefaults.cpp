#include <iterator>

#include "core/SystemText.h"
#include "project/SystemRecord.h"

namespace velmora {
namespace {

const char* const kTerms[cEdSystem::kTermCount] = {
    "ワールド", "ステージ", "スコア", "ハイスコア", "トータルスコア", "スコア", "残り時間", "クリア時間", "残りHP",
    "残りSP", "ステージに挑む", "やっぱりやめる", "セーブする", "やっぱりやめる", "オートセーブＯＮ",
    "オートセーブＯＦＦ", "保存先が不明です！一度は「セーブ」して下さい！", "タイトルへ戻る", "やっぱりやめる",
    "しゅうりょう", "つづける", "リトライ", "マップへ戻る", "次のリプレイへ", "前のリプレイへ", "リプレイの選択へ",
    "リトライ", "マップへ戻る", "Vキーでジャンルの切り替え", "スペースキーでタイトルへ戻る", "スペースキーで終了",
    "F3キーでランキングへ登録", "Cキー：ソートの切り替え", "Vキー：エクスプローラーで開く",
    "Aキー：ファイル情報の更新", "更新日時順↓（推奨）", "更新日時順↑", "ファイル名順↓", "ファイル名順↑",
};

const char* const kTitleMenu[] = {"はじめから", "つづきから", "チャレンジ", "フリー", "リプレイ", "オプション", "しゅうりょう"};
const char* const kMapMenu[] = {"セーブ", "オートセーブ", "もどる", "タイトルへ"};
const char* const kOptionMenu[] = {"カラー",           "BGM",           "SE",
                                   "ランキング登録",   "ランキング登録名", "リプレイ自動保存",
                                   "リプレイ再生順",   "リプレイのメッセージ自動進行秒数", "もどる"};
const char* const kRankKinds[] = {"手動登録（登録名入力）", "手動登録（登録名固定）", "自動登録（登録名入力）",
                                  "自動登録（登録名固定）"};
const char* const kReplaySaveKinds[] = {"自動保存しない", "ステージクリア時のみ", "全て保存"};
const char* const kReplayOrderKinds[] = {"ソート順", "ソート順＆ステージクリアのみ", "同じリプレイをリピート"};

const uint8_t kStock[cEdSystem::kStockCount] = {1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                               1, 1, 0, 1, 1, 0, 1, 1, 1, 0, 0, 0};
// Only the remaining HP and SP are reset after a death.
constexpr int kStockResetHp = 11;
constexpr int kStockResetSp = 12;

struct cGaugeDefault {
  const char* text;
  int32_t digits;
  int32_t barThreshold;
  int32_t barPercent;
};
const cGaugeDefault kGauges[cEdSystem::kGaugeCount] = {
    {"スコア", 4, 0, 0}, {"スコア", 3, 0, 0}, {"HP", 0, 33, 1}, {"SP", 0, 33, 1}, {"人", 2, 0, 0}};

const char kHelp[] =
    "「手動登録」によるランキング登録はステージクリア時にF3キーを押しましょう。\r\n\r\n"
    "リプレイは自動保存の設定に関係なくF1・F2キーでも手動保存できます。\r\n"
    "F1キー:現在プレイ中のステージにおける今回のプレイを保存\r\n"
    "F2キー:現在プレイ中のステージにおける1つ前のプレイを保存\r\n\r\n"
    "「リプレイ再生順」の「ソート順＆ステージクリアのみ」では、ファイル名の最後が\r\n"
    "「_CLEAR_」となっているリプレイのみが再生対象となります。";

template <size_t N>
std::vector<std::string> Texts(const char* const (&utf8)[N]) {
  std::vector<std::string> texts;
  for (const char* text : utf8) texts.push_back(SysText(text));
  return texts;
}

template <size_t N>
std::vector<cEdSysMenuItem> Menu(const char* const (&utf8)[N]) {
  std::vector<cEdSysMenuItem> menu;
  for (const char* text : utf8) menu.emplace_back(true, text);
  return menu;
}

std::vector<cEdSysOption> Options() {
  using O = cEdSysOption;
  return {
      O(O::TypeNumber, "Direct3D", 2),      O(O::TypeNumber, "WindowMode", 0),    O(O::TypeNumber, "Bpp", 0),
      O(O::TypeNumber, "VSync", 2),         O(O::TypeNumber, "D3D_FontCache", 0), O(O::TypeNumber, "DD_FontCache", 1),
      O(O::TypeNumber, "DD_VideoStretch", 0), O(O::TypeNumber, "ShowFps", 1),     O(O::TypeString, "FreeStage", 0),
      O(O::TypeNumber, "English", 0),       O(O::TypeNumber, "Midi_DirectMusic", 1),
  };
}

}  // namespace

const std::string& DefaultSystemHelp() {
  static const std::string help = SysText(kHelp);
  return help;
}

void cEdSystem::SetUp() {
  Reset();
  m_i1UpScore = 100;
  m_bPauseHideObjects = 1;
  m_iFont = 60;
  m_bReplaySave = 1;
  m_bTitleImage = 1;
  m_bAutoSaveStart = 1;
  m_bShowHelp = 1;
  m_strHelp = DefaultSystemHelp();
  m_bShareLives = 1;
  m_bMapOnDeath = 1;
  m_bMapShowLives = 1;
  m_iChallengeWorlds = 40;
  m_bChallengeAllWorlds = 1;
  m_bStoryHighScore = m_bStoryTotalScore = m_bStoryRestore = m_bStoryRetry = 1;
  m_bChallHighScore = m_bChallTotalScore = m_bChallRestore = m_bChallRetry = 1;
  m_bFreeRestore = 1;
  m_iEffectSpeed = 16;
  m_bStoryToMap = 1;
  m_iBppDD = 2;

  m_abStock.assign(std::begin(kStock), std::end(kStock));
  m_abStockReset.assign(kStockCount, 0);
  m_abStockReset[kStockResetHp] = m_abStockReset[kStockResetSp] = 1;
  m_vecGauges.assign(kGaugeCount, cEdSysGauge());
  for (int i = 0; i < kGaugeCount; ++i) {
    cEdSysGauge& gauge = m_vecGauges[static_cast<size_t>(i)];
    gauge.m_strText = SysText(kGauges[i].text);
    gauge.m_iDigits = kGauges[i].digits;
    gauge.m_iBarThreshold = kGauges[i].barThreshold;
    gauge.m_bBarPercent = kGauges[i].barPercent;
  }
  m_aiLives = {5, 5, 5, 99};
  m_abInfinite = {1, 1, 1, 1};
  m_vecRanking.assign(kModeCount, cEdSysRanking());
  for (int mode = 0; mode < kModeCount - 1; ++mode) m_vecRanking[static_cast<size_t>(mode)].SetAll(true);
  m_vecTerms = Texts(kTerms);
  m_vecSounds.assign(kSoundCount, std::string());
  m_aiBgm.assign(kBgmCount, 0);
  m_abBgmLoop.assign(kBgmCount, 1);
  m_vecTitleMenu = Menu(kTitleMenu);
  m_vecMapMenu = Menu(kMapMenu);
  m_vecOptionMenu = Menu(kOptionMenu);
  m_vecRankKinds = Texts(kRankKinds);
  m_vecOptions = Options();
  m_vecReplaySaveKinds = Texts(kReplaySaveKinds);
  m_vecReplayOrderKinds = Texts(kReplayOrderKinds);
}

}  // namespace velmora
