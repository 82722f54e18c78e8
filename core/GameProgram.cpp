#include "core/GameProgram.h"

#include <algorithm>
#include <memory>

#include "core/GameMark.h"
#include "core/PrjOption.h"
#include "platform/ElfNotes.h"
#include "platform/FileBytes.h"
#include "platform/FileSystem.h"
#include "platform/PeStrings.h"

namespace velmora {
namespace {

using cFileHandle = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

cFileHandle OpenForReading(const std::string& stored) { return {OpenFile(stored, "rb"), &std::fclose}; }

bool HasGameString(cFileBytes& bytes) {
  std::u16string text;
  const std::u16string mark(std::begin(kGameMarkText), std::end(kGameMarkText) - 1);
  return PeStringResource(bytes, kGameStringId, text) && text == mark;
}

}  // namespace

bool RunsUnderWine(const std::string& stored) {
  cFileHandle file = OpenForReading(stored);
  return file && cFileBytes(file.get()).Holds(0, "MZ", 2);
}

bool IsGameProgram(const std::string& stored) {
  cFileHandle file = OpenForReading(stored);
  if (!file) return false;
  cFileBytes bytes(file.get());
  const cElfNote note{kGameNoteName, kGameNoteType, kGameMarkText};
  return ElfHasNote(bytes, note) || HasGameString(bytes);
}

bool FindGameProgram(std::string& out) {
  out.clear();
  const PrjOption& option = ProjectOption();
  if (!option.m_bAutoGame) {
    if (!FileExists(option.m_strGamePath)) return false;
    out = option.m_strGamePath;
    return true;
  }
  std::vector<std::string> names;
  for (const cDirEntry& entry : ListDirectory(".")) {
    if (!entry.isDirectory) names.push_back(entry.name);
  }
  // Directory order differs between file systems; by name, the same folder
  // always gives the same game.
  std::sort(names.begin(), names.end());
  for (const std::string& name : names) {
    if (FileExists(name) && IsGameProgram(name)) {
      out = name;
      return true;
    }
  }
  return false;
}

std::vector<std::string> GameCommand(const std::string& program, const std::vector<std::string>& args,
                                     bool& searchPath) {
  std::vector<std::string> command;
  searchPath = RunsUnderWine(program);
  if (searchPath) command.push_back(kWineCommand);
  command.push_back(FullHostPath(program));
  command.insert(command.end(), args.begin(), args.end());
  return command;
}

}  // namespace velmora
