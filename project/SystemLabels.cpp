#include "project/SystemLabels.h"

#include <iterator>

#include "project/SystemRecord.h"

namespace velmora {
namespace {

const char* const kFonts[] = {
    "System", "Terminal", "FixedSys", "Roman", "Script", "Modern", "Small Fonts", "MS Serif", "WST_Czec",
    "WST_Engl", "WST_Fren", "WST_Germ", "WST_Ital", "WST_Span", "WST_Swed", "Courier", "MS Sans Serif",
    "Marlett", "Arial", "Arial CE", "Arial CYR", "Arial Greek", "Arial TUR", "Arial Baltic", "Courier New",
    "Courier New CE", "Courier New CYR", "Courier New Greek", "Courier New TUR", "Courier New Baltic",
    "Lucida Console", "Lucida Sans Unicode", "Times New Roman", "Times New Roman CE", "Times New Roman CYR",
    "Times New Roman Greek", "Times New Roman TUR", "Times New Roman Baltic", "Wingdings", "Symbol",
    "Verdana", "Arial Black", "Comic Sans MS", "Impact", "Georgia", "Franklin Gothic Medium",
    "Palatino Linotype", "Tahoma", "Trebuchet MS", "Webdings", "Estrangelo Edessa", "Gautami", "Latha",
    "Mangal", "MV Boli", "Raavi", "Shruti", "Tunga", "Sylfaen", "ＭＳ ゴシック", "ＭＳ Ｐゴシック", "MS UI Gothic",
    "ＭＳ 明朝", "ＭＳ Ｐ明朝", "Microsoft Sans Serif", "Gulim", "GulimChe", "Dotum", "DotumChe", "Batang",
    "BatangChe", "Gungsuh", "GungsuhChe", "SimSun", "NSimSun", "SimSun-PUA", "SimHei", "MingLiU", "PMingLiU",
    "Arial Narrow", "Book Antiqua", "Bookman Old Style", "Century", "Century Gothic", "Garamond",
    "MS Outlook", "HGｺﾞｼｯｸE", "HGPｺﾞｼｯｸE", "HGSｺﾞｼｯｸE", "HG丸ｺﾞｼｯｸM-PRO", "HG創英角ｺﾞｼｯｸUB",
    "HGP創英角ｺﾞｼｯｸUB", "HGS創英角ｺﾞｼｯｸUB", "HG創英角ﾎﾟｯﾌﾟ体", "HGP創英角ﾎﾟｯﾌﾟ体", "HGS創英角ﾎﾟｯﾌﾟ体", "HG正楷書体-PRO",
    "InMusicSym", "Kartika", "Vrinda", "メイリオ", "MT Extra", "HGｺﾞｼｯｸM", "HGPｺﾞｼｯｸM", "HGSｺﾞｼｯｸM",
    "HG行書体", "HGP行書体", "HGS行書体", "HG教科書体", "HGP教科書体", "HGS教科書体", "HG明朝B", "HGP明朝B", "HGS明朝B", "HG明朝E",
    "HGP明朝E", "HGS明朝E", "HG創英ﾌﾟﾚｾﾞﾝｽEB", "HGP創英ﾌﾟﾚｾﾞﾝｽEB", "HGS創英ﾌﾟﾚｾﾞﾝｽEB", "OCRB", "Sydnie",
};

const char* const kStock[] = {
    "グラフィック", "基本アニメセット", "Z座標", "透明", "キャラエフェクト", "向き固定", "飛行", "無敵", "巨大化",
    "オートスクロールとシンクロ", "視界", "残りHP", "残りSP", "最大HP", "最大SP", "体当たりの当たり判定範囲",
    "体当たりの威力", "体当たりの衝撃", "防御力", "衝撃耐性", "慣性移動時の止まりやすさ", "行動", "残り時間", "人数",
    "BGM",
};

const char* const kSounds[] = {
    "カーソル移動", "決定", "キャンセル", "エラー", "メニュー呼出し", "セーブ", "ページ切り替え", "ダメージ",
    "主人公死亡", "敵死亡", "ブロックジャンプ", "メッセージ通知", "メッセージ進行", "警告カウント", "ステージクリア",
    "クリア後の1UP", "ランキング登録",
};

const char* const kBgm[] = {"タイトル", "ストーリー", "チャレンジ", "フリー", "リプレイ", "オプション"};
const char* const kGauges[] = {"ワールドスコア", "スコア", "HP", "SP", "残り人数"};
const char* const kRankColumns[] = {"スコア", "残り時間", "クリア時間", "残りHP", "残りSP"};
const char* const kOptions[] = {
    "Direct3Dの使用", "ウインドウモード", "画面の色数", "垂直同期", "D3D_FontCache", "DD_FontCache",
    "DD_VideoStretch", "FPSの表示", "遊ぶステージ", "英語化", "DirectMusic",
};
const char* const kCharaDraw[] = {"速度重視", "互換性重視"};
const char* const kReplayFileName[] = {
    "[年]_[月日]_[時分秒]_[ステージファイル名]_[バリエーションの変数番号]_[バリエーションの値]_[ステージクリアしたか]",
    "[年]_[月日]_[時分秒]_[ステージ名]_[バリエーションの変数番号]_[バリエーションの値]_[ステージクリアしたか]",
};
const char* const kBmpDepth[] = {"256色(8bit) カラーパレットあり", "1677万色(24bit) カラーパレットなし"};
const char* const kScreenBpp[] = {"32bit(1677万色)", "16bit(32768色)", "8bit(256色)"};
const char* const kBarUnit[] = {"  ", "％"};

static_assert(std::size(kFonts) == 122);
static_assert(std::size(kStock) == cEdSystem::kStockCount);
static_assert(std::size(kSounds) == cEdSystem::kSoundCount);
static_assert(std::size(kBgm) == cEdSystem::kBgmCount);
static_assert(std::size(kGauges) == cEdSystem::kGaugeCount);
static_assert(std::size(kRankColumns) == cEdSysRanking::kColumnCount);
static_assert(std::size(kOptions) == cEdSystem::kOptionCount);

// The terms in runs of one limit: the names, the questions and menus of
// the game (with its one long message), the key hints, the sort orders.
struct cTermRun {
  int last;
  int chars;
};
constexpr cTermRun kTermRuns[] = {{9, 8}, {15, 12}, {16, 24}, {27, 12}, {34, 16}, {38, 10}};

}  // namespace

const cLabelTable SystemFontTable{kFonts};
const cLabelTable StockTable{kStock};
const cLabelTable SystemSoundTable{kSounds};
const cLabelTable SystemBgmTable{kBgm};
const cLabelTable GaugeTable{kGauges};
const cLabelTable RankColumnTable{kRankColumns};
const cLabelTable SystemOptionTable{kOptions};
const cLabelTable CharaDrawTable{kCharaDraw};
const cLabelTable ReplayFileNameTable{kReplayFileName};
const cLabelTable BmpDepthTable{kBmpDepth};
const cLabelTable ScreenBppTable{kScreenBpp};
const cLabelTable BarUnitTable{kBarUnit};

int TermCharLimit(int term) {
  for (const cTermRun& run : kTermRuns) {
    if (term <= run.last) return run.chars;
  }
  return 0;
}

}  // namespace velmora
