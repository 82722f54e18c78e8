#include "inspect/Behaviour.h"

#include <cstring>
#include <memory>

#include "inspect/BehaviourText.h"
#include "inspect/FileKinds.h"
#include "inspect/Inspector.h"
#include "inspect/ProjectNames.h"
#include "inspect/PaletteFiles.h"
#include "platform/HostPath.h"
#include "stage/Stage.h"

namespace velmora::inspect {
namespace {

// A file read for its behaviour: the record that owns the lists, and the
// lists.
struct cBehaviourSource {
  std::unique_ptr<cSaveData> owner;
  cPaletteLists lists;
};

// `ListsOf` names the lists of the owner's palette; a stage shows the
// entries of its own.
template <class T, auto ListsOf>
bool LoadListsOwner(const std::string& storedPath, cBehaviourSource& source) {
  auto record = std::make_unique<T>();
  if (!record->LoadFile(storedPath)) return false;
  source.lists = (record.get()->*ListsOf)();
  source.owner = std::move(record);
  return true;
}

// The files that hold characters and items, by their row in FileKinds(),
// and the palette their lists stand for, which entry references name.
struct cBehaviourKind {
  const char* fileKind;
  ePalette palette;
  bool (*load)(const std::string& storedPath, cBehaviourSource& source);
};

constexpr cBehaviourKind kBehaviourKinds[] = {
    {"CommonPalette", ePalette::Common, &LoadListsOwner<cPalette, &cPalette::Lists>},
    {"StagePalette", ePalette::Stage, &LoadListsOwner<cStagePaletteFile, &cStagePaletteFile::Lists>},
    {"Stage", ePalette::Stage, &LoadListsOwner<cStage, &cStage::Palette>},
};

const cBehaviourKind* FindBehaviourKind(const std::string& path) {
  const cFileKind* fileKind = FindFileKind(path);
  if (!fileKind) return nullptr;
  for (const cBehaviourKind& kind : kBehaviourKinds) {
    if (std::strcmp(kind.fileKind, fileKind->name) == 0) return &kind;
  }
  return nullptr;
}

}  // namespace

int Behaviour(const std::string& path, const std::string& entry, std::string& out, std::string& err) {
  cEntryFilter filter;
  if (!entry.empty() && !ParseEntryFilter(entry, filter)) {
    err += "velmora-inspect: entry must be chara:N or item:N, not " + entry + "\n";
    return 2;
  }
  const cBehaviourKind* kind = FindBehaviourKind(path);
  if (!kind) {
    err += "velmora-inspect: " + path + " holds no characters or items\n";
    return 1;
  }
  LoadProjectNames(kind->palette);
  cBehaviourSource source;
  if (!kind->load(StoredPath(path), source)) {
    err += ReadFailureText(path);
    return 1;
  }
  InstallPaletteLists(kind->palette, source.lists);
  out += BehaviourText(source.lists, filter);
  InstallPaletteLists(kind->palette, {});
  return 0;
}

}  // namespace velmora::inspect
