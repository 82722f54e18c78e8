#include <cstdio>
#include <memory>

#include "core/AppControl.h"
#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/ProjectFolder.h"
#include "core/ProjectPaths.h"
#include "core/Prompt.h"
#include "core/SafeWrite.h"
#include "core/SystemText.h"
#include "objects/Inherit.h"
#include "objects/Palette.h"
#include "platform/FileSystem.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "stage/StageLoader.h"

namespace velmora {
namespace {

enum eOldStageHandling { kMoveOldToFolder = 0, kKeepOld = 1, kDeleteOld = 2 };

// The new file's name in the work folder until it replaces the stage file.
constexpr const char* kFreshSuffix = ".new";

std::string FileNameOf(const std::string& path) {
  const size_t cut = path.find_last_of('\\');
  return cut == std::string::npos ? path : path.substr(cut + 1);
}

std::string ExtensionOf(const std::string& path) {
  const size_t dot = path.find_last_of('.');
  return dot == std::string::npos ? std::string() : path.substr(dot + 1);
}

std::string WithoutExtension(const std::string& path) {
  const size_t dot = path.find_last_of('.');
  return dot == std::string::npos ? path : path.substr(0, dot);
}

// The file prompts give a path inside the project folder relative to it,
// and one outside from the root, as no relative path would stay right.
bool OutsideProject(const std::string& path) {
  const bool fromRoot = !path.empty() && (path[0] == '\\' || path[0] == '/');
  const bool withDrive = path.size() >= 2 && path[1] == ':';
  return fromRoot || withDrive || path.rfind("..", 0) == 0;
}

// The stored form of a chosen stage path: ".\\" and the path inside the
// project folder; a path outside stays as it is, and the author is told
// that the project's files belong together.
std::string StoredStagePath(const std::string& path) {
  if (OutsideProject(path)) {
    ErrorBox("%s", SysText("ヴェルモラ本体が存在するドライブとステージファイルが存在するドライブとが異なります！\nヴェルモラにおける全てのデータファイルは同一ドライブに保存することを推奨します。"));
    return path;
  }
  return path.rfind(".\\", 0) == 0 ? path : ".\\" + path;
}

std::string BackupPathOf(const std::string& path) { return PathOf(ePath::Work) + FileNameOf(path); }

void Warn(const char* utf8) { Prompt().Ask(nullptr, SysText("警告"), SysText(utf8), eButtons::Ok, eIcon::Warning); }

void WarnIfFileMissing() {
  const std::string& path = StageEdit().m_strPath;
  if (path.empty() || FileExists(path)) return;
  Warn("現在編集中のステージのファイル名が変更された可能性があります。\nステージファイルを開き直さないとデータの上書き保存やテストプレイに失敗する可能性があります。");
}

// The label is the system's own text; the pattern is what finds the files.
// Opening names every version ("StageFile ( *.stg4_ )") and must list them
// all, so its pattern runs on behind the label's.
cFilePrompt StageFilePrompt(const char* title, const std::string& extension, const char* patternTail = "") {
  cFilePrompt request;
  request.title = SysText(title);
  request.folder = PathOf(ePath::Stage);
  const std::string label = "StageFile ( *." + extension + " )";
  request.filter = label + std::string(1, '\0') + "*." + extension + patternTail + std::string(1, '\0');
  return request;
}

cFilePrompt PalettePrompt(const char* title) {
  cFilePrompt request;
  request.title = SysText(title);
  request.folder = "data\\plt4\\";
  request.filter = std::string("StagePaletteFile ( *.plt4 )") + '\0' + "*.plt4" + '\0';
  request.defaultExt = ExtOf(eExt::StagePalette);
  return request;
}

// One question before unsaved work is left behind. Yes saves, No goes on
// and Cancel stops; a Yes whose save failed or was cancelled stops too,
// since going on would drop what the author meant to keep.
bool SaveIfAnswered(const char* question, bool (*save)()) {
  const eAnswer answer =
      Prompt().Ask(nullptr, SysText("保存確認"), SysText(question), eButtons::YesNoCancel, eIcon::Question);
  if (answer == eAnswer::Cancel) return false;
  return answer == eAnswer::No || save();
}

bool SaveStageInPlace() { return SaveStage(1) != 0; }

void ShowProgress(const char* caption, const char* text) { Prompt().ShowMessageWindow(nullptr, SysText(caption), SysText(text)); }

void ReportSaveFailure(const std::string& path) { ErrorBox(SysText("ステージファイル %s の保存に失敗しました！"), path.c_str()); }

// A kill at any moment leaves the stage file old or new and whole; the
// backup in the work folder stands while the file is replaced, for a file
// that something else cut short.
int WriteStageSafely(const std::string& path) {
  const std::string backup = BackupPathOf(path);
  if (SaveRecordSafely(EditStage(), path, {backup + kFreshSuffix, backup})) return 1;
  ReportSaveFailure(path);
  return 0;
}

// Files too new or too old to carry the trailer count as whole: the load
// judges them. A file too short for its version word was cut off by a save.
bool StageFileIsWhole(const std::string& path) {
  const long long size = FileSize(path);
  if (size < static_cast<long long>(sizeof(uint32_t))) return false;
  DataFilePtr file = OpenRead(path);
  if (!file) return g_bFileTooNew != 0;
  if (g_nFileVersion < 174) return true;
  int32_t word = 0;
  return size >= 8 && file->Skip(static_cast<size_t>(size - 8)) && file->ReadInt32(word) && word == StageTrailer;
}

void HandleOldVersion(const std::string& oldPath) {
  switch (ProjectOption().m_nOldStage) {
    case kMoveOldToFolder:
      MoveFileReplacing(oldPath, PathOf(ePath::StageOldVersions) + FileNameOf(oldPath));
      break;
    case kDeleteOld:
      RemoveFile(oldPath);
      break;
    default:
      break;
  }
}

int SaveThroughDialog(int overwrite) {
  cStageEdit& edit = StageEdit();
  const std::string oldPath = edit.m_strPath;
  const std::string extension = CurrentStageExtension();
  cFilePrompt request = StageFilePrompt("保存先のファイルの選択", extension);
  request.defaultExt = extension;
  if (!oldPath.empty() && overwrite) request.initialName = WithoutExtension(oldPath) + "." + extension;
  std::string chosen;
  if (!Prompt().SaveFile(nullptr, request, chosen)) {
    WarnIfFileMissing();
    return 0;
  }
  ShowProgress("ステージの保存", "ステージを保存しています...");
  const int saved = WriteStageSafely(chosen);
  Prompt().CloseMessageWindow();
  if (!saved) return 0;
  edit.m_strPath = StoredStagePath(chosen);
  if (!oldPath.empty() && overwrite && WithoutExtension(oldPath) == WithoutExtension(edit.m_strPath) &&
      oldPath != edit.m_strPath) {
    HandleOldVersion(oldPath);
  }
  edit.m_bStageChanged = 0;
  return 1;
}

}  // namespace

cStageEdit& StageEdit() {
  static cStageEdit edit;
  return edit;
}

std::string CurrentStageExtension() {
  char text[32];
  std::snprintf(text, sizeof text, "%s_%u", ExtOf(eExt::Stage).c_str(), static_cast<unsigned>(g_nAppVersion));
  return text;
}

int CheckStageFile(const std::string& path) {
  const bool present = FileExists(path);
  if (present && StageFileIsWhole(path)) return 1;
  const std::string backup = BackupPathOf(path);
  // Without a backup the broken file is all there is: it stays.
  if (!FileExists(backup)) {
    if (present) ReportFormat("broken stage file %s has no backup", path.c_str());
    return 1;
  }
  if (present && !RemoveFile(path)) ErrorBox("%s", SysText("破損ファイルの削除に失敗しました！"));
  MoveFileReplacing(backup, path);
  char text[600];
  std::snprintf(text, sizeof text, SysText("破損ファイル %s を復旧しました！\n※ただし、前回の更新内容が保存されていない可能性があります…"),
                path.c_str());
  Prompt().Ask(nullptr, SysText("ファイルの復旧"), text, eButtons::Ok, eIcon::Information);
  return 1;
}

eStageLoad LoadStage(const std::string& path, cStage& into) {
  CheckStageFile(path);
  const eStageLoad result = StageLoader().Run(path, into);
  if (result == eStageLoad::Failed) ErrorBox(SysText("ステージファイル %s の読み込みに失敗しました！"), path.c_str());
  return result;
}

int SaveStage(int overwrite) {
  cStage& stage = EditStage();
  cStageEdit& edit = StageEdit();
  if (!stage.HasPlayer()) Warn("まだプレイヤーが配置されていないので遊ぶことはできません！");
  stage.RemoveSurplusPlayers();
  if (!(overwrite && !edit.m_strPath.empty() && ExtensionOf(edit.m_strPath) == CurrentStageExtension())) {
    return SaveThroughDialog(overwrite);
  }
  if (!edit.m_bStageChanged) return 1;
  ShowProgress("ステージの保存", "ステージを保存しています...");
  const int saved = WriteStageSafely(edit.m_strPath);
  Prompt().CloseMessageWindow();
  if (saved) edit.m_bStageChanged = 0;
  return saved;
}

namespace {

// Reads a stage beside the edit stage, which a failed read leaves as it was.
int ReadStageFile(std::string path) {
  ShowProgress("ステージの読み込み", "ステージを読み込んでいます...");
  path = StoredStagePath(path);
  ClearHistory();
  auto loaded = std::make_unique<cStage>();
  const eStageLoad result = LoadStage(path, *loaded);
  Prompt().CloseMessageWindow();
  if (result == eStageLoad::Quit) AppControl().DestroyMainWindow();
  if (result != eStageLoad::Loaded) {
    loaded.reset();
    RebuildHistory();
    return 0;
  }
  EditStage().Exchange(*loaded);
  // The stage left behind goes before the new one's history is made.
  loaded.reset();
  cStageEdit& edit = StageEdit();
  edit.m_bHasStage = 1;
  edit.m_strPath = path;
  edit.m_bStageChanged = 0;
  RebuildHistory();
  return 1;
}

}  // namespace

int OpenStage() {
  if (!AskSaveBeforeExit()) return 0;
  std::string path;
  if (!Prompt().OpenFile(nullptr, StageFilePrompt("読み込むファイルの選択", "stg4_", "*"), path)) {
    WarnIfFileMissing();
    return 0;
  }
  return ReadStageFile(path);
}

int OpenStageFile(const std::string& path) {
  if (!AskSaveBeforeExit()) return 0;
  return ReadStageFile(path);
}

void OpenLastStage(const std::string& path) {
  cStageEdit& edit = StageEdit();
  edit.m_bHasStage = 0;
  edit.m_strPath.clear();
  edit.m_bStageChanged = 0;
  if (path.empty()) return;
  CheckStageFile(path);
  if (EditStage().LoadWholeFile(path)) {
    edit.m_bHasStage = 1;
    edit.m_strPath = path;
  } else {
    EditStage().InitDefault();
    EditStage().SetSize(32, 32, 0, 0);
  }
  RebuildHistory();
}

int CloseStage() {
  if (!AskSaveBeforeExit()) return 0;
  cStageEdit& edit = StageEdit();
  edit.m_bHasStage = 0;
  edit.m_strPath.clear();
  EditStage().InitDefault();
  edit.m_bStageChanged = 0;
  RebuildHistory();
  return 1;
}

int FindLatestVersion(std::string& out, const std::string& base, const std::string& extension) {
  return FindVersioned(out, base, extension) ? 1 : 0;
}

int LoadStagePalette() {
  std::string path;
  if (!Prompt().OpenFile(nullptr, PalettePrompt("読み込むファイルの選択"), path)) return 0;
  cStage& stage = EditStage();
  if (!ReadStagePaletteFile(path, stage)) {
    ErrorBox(StagePaletteLoadFailure(), path.c_str());
    return 0;
  }
  RefreshBlockFromStage(stage.m_vecBlockCell);
  RefreshCharaFromStage(stage.m_vecCharaCell);
  RefreshItemFromStage(stage.m_vecItemCell);
  StageEdit().m_bStageChanged = 1;
  RebuildHistory();
  return 1;
}

int SaveStagePalette() {
  std::string path;
  if (!Prompt().SaveFile(nullptr, PalettePrompt("保存先のファイルの選択"), path)) return 0;
  auto write = [](const std::string& to) {
    DataFilePtr file = OpenWrite(to);
    if (!file) return false;
    WritePaletteLists(EditStage().Palette(), *file);
    return CloseData(file);
  };
  return WriteFileSafely(path, write, PlacesBeside(path)) ? 1 : 0;
}

// The three lists are read beside the stage's own and take their place
// only when the whole file was read, so a file that fails leaves the
// palette as it was.
bool ReadStagePaletteFile(const std::string& path, cStage& stage) {
  DataFilePtr file = OpenRead(path);
  if (!file) return false;
  cStage read;
  {
    // Entries inherit from the palette they are read into, as when read in place.
    cStagePaletteScope scope(read);
    ReadPaletteLists(read.Palette(), *file);
  }
  const bool whole = !file->Damaged() && !file->Ended() && !read.m_vecBlockPlt.empty() && !read.m_vecCharaPlt.empty() &&
                     !read.m_vecItemPlt.empty();
  CloseData(file);
  if (whole) stage.ExchangePalette(read);
  return whole;
}

// The persistence core's words for a file of a newer editor, else the
// stage file's in kind.
const char* StagePaletteLoadFailure() {
  return SysText(g_bFileTooNew ? "%s の読み込みに失敗しました！\n実行ファイル(.exe)より上位のバージョンのファイルは使用できません。"
                               : "ステージパレットファイル %s の読み込みに失敗しました！");
}

bool SaveCommonPalette() {
  if (!CommonPalette().SaveFile(PathOf(ePath::CommonPalette))) return false;
  StageEdit().m_bCommonChanged = 0;
  return true;
}

int AskSaveBeforeExit() {
  const cStageEdit& edit = StageEdit();
  if (edit.m_bHasStage && edit.m_bStageChanged &&
      !SaveIfAnswered("ステージが変更された可能性があります。\n保存しますか？", SaveStageInPlace)) {
    return 0;
  }
  if (edit.m_bCommonChanged && !SaveIfAnswered("コモンパレットが変更された可能性があります。\n保存しますか？", SaveCommonPalette)) {
    return 0;
  }
  return 1;
}

}  // namespace velmora
