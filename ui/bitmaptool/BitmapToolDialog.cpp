#include "ui/bitmaptool/BitmapToolDialog.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QProgressBar>
#include <QUrl>

#include "core/EditConfig.h"
#include "core/Log.h"
#include "core/ProjectPaths.h"
#include "core/SafeWrite.h"
#include "core/SystemText.h"
#include "project/bitmap/BitmapList.h"
#include "ui/controls/Button.h"
#include "ui/controls/EditStr.h"
#include "ui/controls/RowList.h"
#include "ui/framework/Commands.h"
#include "ui/framework/FilePrompts.h"
#include "ui/framework/QtPrompt.h"
#include "ui/stage/StageWindow.h"

namespace velmora {
namespace {

enum eBitmapToolIds {
  kIdFiles = 1010, kIdAdd, kIdClear, kIdUseTrans, kIdTransColour, kIdReplaceLine, kIdLineIn, kIdLineOut,
  kIdSameAsInput, kIdOutFolder, kIdOutBrowse, kIdConvert, kIdProgress,
};
// A numeric edit's spin buttons: the edit's id plus this.
constexpr int kSpinOffset = 100;
constexpr int kShownFiles = 8;
constexpr int kFolderLimit = 259;
constexpr int kLastColour = 255;

cEditValDesc ColourEdit(int id, int* field) { return {id, field, 0, kLastColour, id + kSpinOffset, 1}; }

QWidget* MakeProgressBar(QWidget* parent) {
  auto* bar = new QProgressBar(parent);
  bar->setRange(0, 1);
  bar->setValue(0);
  bar->setFormat(QStringLiteral("%v / %m"));
  bar->setTextVisible(false);  // until there is a run to count
  return bar;
}

bool IsFileDrag(const QEvent& event) {
  const auto& drag = static_cast<const QDropEvent&>(event);
  return drag.mimeData() && drag.mimeData()->hasUrls();
}

}  // namespace

cBitmapToolDialog::cBitmapToolDialog(cDialogManager& manager, QWidget* parent)
    : cDialog(manager, parent), m_options(ConvertOptionsOf(EditorConfig())) {
  SetTitle(QString::fromUtf8("ビットマップ変換ツール"));
  SetLogName("bitmap tool");
  cConvertOptions& o = m_options;
  m_form.rows = {
      {nullptr, cStaticDesc{0, "任意のビットマップをヴェルモラで利用可能なビットマップに変換します。\n"
                               "（「bmp\\palette2.bmp」の色番号0と16～207の中の近似色に置き換えます）\n"
                               "対応ファイルは入出力ともに256色(8bit)のビットマップのみです。（256色→256色の変換のみ）"}},
      FormGroup("変換するファイル",
                {
                    RowListRow(kIdFiles, kShownFiles),
                    {nullptr, cButtonDesc{kIdAdd, "リストへ追加"}},
                    {nullptr, cButtonDesc{kIdClear, "リストのクリア"}, nullptr, nullptr, true},
                }),
      FormGroup("透過色",
                {
                    {nullptr, cCheckDesc{kIdUseTrans, &o.useTransparency, "透過色を使用している"}},
                    {"透過色の色番号", ColourEdit(kIdTransColour, &o.transparentColour)},
                }),
      FormGroup("線色",
                {
                    {nullptr, cCheckDesc{kIdReplaceLine, &o.replaceLineColour, "線色を置換する"}},
                    {nullptr, cStaticDesc{0, "線色の色番号"}},
                    {"入力", ColourEdit(kIdLineIn, &o.lineColourIn)},
                    {"出力 (10～15を推奨)", ColourEdit(kIdLineOut, &o.lineColourOut)},
                    {nullptr, cStaticDesc{0, "※色番号10～15がヴェルモラにおける線色です。\n\r"
                                             "線色は、オプションモードでカラーが変更されても変化しません。"}},
                }),
      FormGroup("出力先のパス",
                {
                    {nullptr, cCheckDesc{kIdSameAsInput, &o.sameAsInput, "入力と同じ（※上書きする）"}},
                    {nullptr, EditStrLine(kIdOutFolder, &o.outputFolder, kFolderLimit)},
                    {nullptr, cButtonDesc{kIdOutBrowse, "参照"}, nullptr, nullptr, true},
                }),
      {nullptr, cButtonDesc{kIdConvert, "変換！！"}},
      {nullptr, cCustomDesc{kIdProgress, MakeProgressBar}, nullptr, nullptr, true},
  };
}

void cBitmapToolDialog::BindOwnControls() {
  auto* list = qobject_cast<QListWidget*>(Item(kIdFiles));
  if (!list) return;
  AddControl(std::make_unique<cRowList>(*this, list, kIdFiles, [this] { return m_files; }, kIdFiles));
}

// Files come from the desktop onto any part of the window; the path edit
// would otherwise take a dropped file as text.
void cBitmapToolDialog::OnInitDialog() {
  cDialog::OnInitDialog();
  Window()->setAcceptDrops(true);
  if (QWidget* edit = Item(kIdOutFolder)) edit->setAcceptDrops(false);
}

bool cBitmapToolDialog::OnDialogMessage(QEvent& event) {
  const QEvent::Type type = event.type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
  auto& drop = static_cast<QDropEvent&>(event);
  if (!IsFileDrag(event)) return false;
  drop.acceptProposedAction();
  if (type == QEvent::Drop) {
    QStringList paths;
    for (const QUrl& url : drop.mimeData()->urls()) {
      if (url.isLocalFile()) paths << url.toLocalFile();
    }
    TakeDropped(paths);
  }
  return true;
}

void cBitmapToolDialog::TakeDropped(const QStringList& hostPaths) {
  for (const QString& host : hostPaths) {
    std::string stored;
    if (!StoredPathOfHost(host, stored)) continue;
    for (std::string& bitmap : BitmapsOfDropped(stored)) m_files.push_back(std::move(bitmap));
  }
  ShowFiles();
}

void cBitmapToolDialog::ShowFiles() {
  if (cControl* list = FindControl(kIdFiles)) list->Refresh();
}

void cBitmapToolDialog::OnDialogCommand(int id, int notice) {
  if (notice != kNoticeClicked) return;
  if (id == kIdAdd) AddChosenFiles();
  if (id == kIdClear) {
    m_files.clear();
    ShowFiles();
  }
  if (id == kIdOutBrowse) BrowseOutputFolder();
  if (id == kIdConvert) Convert();
}

void cBitmapToolDialog::AddChosenFiles() {
  cFilePrompt request;
  request.title = SysText("bmpの選択");
  request.filter = std::string("BitmapFile ( *.bmp )") + '\0' + "*.bmp" + '\0';
  request.folder = "bmp\\";
  request.defaultExt = "bmp";
  if (Prompt().OpenFiles(OwnerOf(Window()), request, m_files)) ShowFiles();
}

void cBitmapToolDialog::BrowseOutputFolder() {
  std::string folder = "bmp\\convert\\";
  if (!Prompt().BrowseFolder(OwnerOf(Window()), SysText("出力先のパス指定"), folder)) return;
  if (cEditStr* edit = FindControlOf<cEditStr>(kIdOutFolder)) edit->SetText(folder);
}

// The dialog takes no other command while a run goes on (a second press of
// 変換！！ included), though its window keeps drawing the progress.
void cBitmapToolDialog::Convert() {
  if (m_files.empty()) return;
  ApplyAll();
  StoreConvertOptions(m_options, EditorConfig());
  auto* bar = qobject_cast<QProgressBar*>(Item(kIdProgress));
  const std::vector<std::string> files = m_files;
  if (bar) {
    bar->setRange(0, static_cast<int>(files.size()));
    bar->setValue(0);
    bar->setTextVisible(true);
  }
  QApplication::setOverrideCursor(Qt::WaitCursor);
  RunConversion(files, m_options, [bar](size_t done, size_t total) {
    if (bar) bar->setValue(static_cast<int>(done));
    if (done == total) QApplication::restoreOverrideCursor();
    QCoreApplication::processEvents();
  });
}

void cBitmapToolDialog::UpdateEnables() {
  const bool trans = IsChecked(kIdUseTrans);
  const bool line = IsChecked(kIdReplaceLine);
  const bool sameAsInput = IsChecked(kIdSameAsInput);
  const std::pair<int, bool> states[] = {{kIdTransColour, trans}, {kIdLineIn, line},          {kIdLineOut, line},
                                         {kIdOutFolder, !sameAsInput}, {kIdOutBrowse, !sameAsInput}};
  for (const auto& [id, enabled] : states) EnableControl(id, enabled);
}

bool cBitmapToolDialog::OnApply() {
  StoreConvertOptions(m_options, EditorConfig());
  if (!SaveRecordSafely(EditorConfig(), PathOf(ePath::EditConfig))) {
    ReportLine("%s", SysText("EditConfig.Save 失敗"));
  }
  return true;
}

void InstallBitmapTool(cStageWindow& stage) {
  stage.SetHandler(eMenuAction::BitmapTool, [&stage] {
    cBitmapToolDialog dialog(stage.Manager(), stage.Window());
    dialog.DoModal(cDialog::kDisableOthers);
  });
}

}  // namespace velmora
