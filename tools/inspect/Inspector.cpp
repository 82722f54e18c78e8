#include "inspect/Inspector.h"

#include "project/ProjectRefSizes.h"

#include "core/SaveData.h"
#include "inspect/Behaviour.h"
#include "inspect/DiffStages.h"
#include "inspect/FileKinds.h"
#include "inspect/JsonWriter.h"
#include "inspect/RenderStage.h"
#include "inspect/WhereUsed.h"
#include "platform/HostPath.h"

namespace velmora::inspect {
namespace {

const char kUsage[] =
    "usage: velmora-inspect dump FILE\n"
    "       velmora-inspect resave IN OUT\n"
    "       velmora-inspect behaviour FILE [chara:N|item:N]\n"
    "       velmora-inspect render STAGE OUT.png [x y w h]\n"
    "       velmora-inspect where-used KIND N [--stage NAME]\n"
    "       velmora-inspect diff A.stg4_950 B.stg4_950 [OUT.png]\n"
    "Run inside a project folder so that checks use its data.\n";

std::unique_ptr<cLoadedFile> LoadKnown(const std::string& path, std::string& err) {
  const cFileKind* kind = FindFileKind(path);
  if (!kind) {
    err += "velmora-inspect: no known file kind for " + path + "\n";
    return nullptr;
  }
  const std::string stored = StoredPath(path);
  std::unique_ptr<cLoadedFile> loaded = kind->load(stored);
  if (!loaded) {
    err += ReadFailureText(path);
  }
  return loaded;
}

int Dump(const std::string& path, std::string& out, std::string& err) {
  std::unique_ptr<cLoadedFile> loaded = LoadKnown(path, err);
  if (!loaded) return 1;
  const uint32_t version = g_nFileVersion;
  out += "{\n  \"kind\": " + JsonString(FindFileKind(path)->name) + ",\n  \"version\": " + std::to_string(version) +
         ",\n  \"data\": " + loaded->Json() + "\n}\n";
  return 0;
}

int Resave(const std::string& in, const std::string& outPath, std::string& err) {
  // Inside a project the checks that run while loading see its lists, as
  // in the editor; elsewhere nothing counts as out of range.
  InstallProjectRefSizes();
  std::unique_ptr<cLoadedFile> loaded = LoadKnown(in, err);
  if (!loaded) return 1;
  if (!loaded->Save(StoredPath(outPath))) {
    err += "velmora-inspect: cannot write " + outPath + "\n";
    return 1;
  }
  return 0;
}

}  // namespace

std::string ReadFailureText(const std::string& path) {
  return g_bFileTooNew ? "velmora-inspect: " + path + " is of version " + std::to_string(g_nFileVersion) +
                             ", newer than this build (" + std::to_string(g_nAppVersion) + ")\n"
                       : "velmora-inspect: cannot read " + path + "\n";
}

int RunInspector(const std::vector<std::string>& args, std::string& out, std::string& err) {
  if (args.size() == 2 && args[0] == "dump") return Dump(args[1], out, err);
  if (args.size() == 3 && args[0] == "resave") return Resave(args[1], args[2], err);
  if ((args.size() == 2 || args.size() == 3) && args[0] == "behaviour") {
    return Behaviour(args[1], args.size() == 3 ? args[2] : "", out, err);
  }
  if ((args.size() == 3 || args.size() == 7) && args[0] == "render") return RenderStage(args, err);
  if ((args.size() == 3 || args.size() == 4) && args[0] == "diff") return DiffStages(args, out, err);
  if ((args.size() == 3 || args.size() == 5) && args[0] == "where-used") return WhereUsed(args, out, err);
  err += kUsage;
  return 2;
}

}  // namespace velmora::inspect
