#include <QFont>
#include <QLabel>
#include <QStringList>

#include "objects/CmdTable.h"
#include "objects/code/CodeEval.h"
#include "ui/commands/CmdForm.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/CmdRows.h"
#include "ui/framework/QtText.h"

// コードの実行 (252): one line of code, checked by the evaluator on OK.
namespace velmora {
namespace {

constexpr int kCodeChars = 100;
constexpr int kCodeBytes = 2 * kCodeChars;  // every character may take two

// The help lines; runs of blanks align their columns in a font of fixed
// pitch, as the help was written for one. The character statuses run
// past the width of the help, and their long run of blanks is where they
// went on below the first: the second half stands under the first here.
const char* const kHelp =
    "オブジェクト：             my tg1～4 tg pl sys    ※myは省略可、tgはtg1と同じ\n"
    "ステータス(キャラ)：     v1～8 hp sp mhp msp cid x_rel x_abs x_scr y_rel y_abs y_scr z\n"
    "                         mark sight power imp def impd stop getsc\n"
    "ステータス(システム)：  time scrlx scrly score life\n"
    "変数：       C1～999 S1～999 v1～8\n"
    "演算子：     = + - * / %\n"
    "関数：       rand(最小値,最大値)\n"
    "その他：    ()\n"
    "※計算過程で値が-2147483648～2147483647の範囲を超えると正常な結果が得られません！\n"
    "(例1) hp = hp + 10      …　自分のHPを10回復\n"
    "(例2) sys.time = tg1.v3 …　制限時間にターゲット1のキャラ変数3番を代入\n"
    "(例3) C5 = rand(0,5)    …　コモン変数5番に0～5の乱数を代入";

QWidget* MakeHelp(QWidget* parent) {
  auto* help = new QLabel(Ui(kHelp), parent);
  QFont font = help->font();
  font.setFamilies({QStringLiteral("IPAGothic"), QStringLiteral("MS Gothic"), QStringLiteral("Noto Sans Mono CJK JP"),
                    QStringLiteral("monospace")});
  font.setStyleHint(QFont::TypeWriter);
  help->setFont(font);
  help->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return help;
}

std::vector<cFormRow> CodeRows(cCmdWork& w) {
  return {
      {nullptr, cCustomDesc{kIdCmdNote, MakeHelp}},
      {"コード", cEditStrDesc{kIdCmdText, &w.cmd.m_strText, kCodeBytes, kCodeChars, 1, true}},
      VarReferenceRows(w),
  };
}

bool AcceptCode(const cCmdWork& w, OwnerWindow) { return ValidateCode(w.cmd.m_strText); }

const cCmdKindForm kCodeForm{
    .kind = kCmdCode,
    .rules = {.rows = CodeRows, .lists = VarReferenceLists(), .renames = VarReferenceRenames()},
    .accept = AcceptCode,
};

}  // namespace

const cCmdKindForm& CodeForm() { return kCodeForm; }

}  // namespace velmora
