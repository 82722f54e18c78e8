#include "project/FileFieldRules.h"

#include "core/SystemText.h"
#include "platform/TextCodec.h"

namespace velmora {
namespace {

struct cFileFieldRow {
  const char* title;       // UTF-8
  const char* filterText;  // UTF-8
  const char* extensions;  // separated by ";"
  const char* folder;
};

const cFileFieldRow kFields[] = {
    {"専用bmpの選択", "BitmapFile ( *.bmp )", "bmp", "bmp\\chara_sp\\"},
    {"ビットマップの選択", "BitmapFile ( *.bmp )", "bmp", "bmp\\sword\\"},
    {"ビットマップの選択", "BitmapFile ( *.bmp )", "bmp", "bmp\\effect\\"},
    {"ビットマップの選択", "BitmapFile ( *.bmp )", "bmp", "bmp\\picture\\"},
    {"効果音の選択", "WaveFile ( *.wav )", "wav", "wave\\"},
    {"BGMの選択", "BgmFile ( *.mid;*.ogg )", "mid;ogg", "bgm\\"},
};

// "mid;ogg" as the patterns "*.mid;*.ogg".
std::string PatternsOf(const std::string& extensions) {
  std::string patterns = "*.";
  for (char c : extensions) patterns += c == ';' ? std::string(";*.") : std::string(1, c);
  return patterns;
}

// Where the file name begins: behind the last backslash that is a
// character of its own, not the second byte of a two-byte character.
size_t FileNameStart(const std::string& path) {
  size_t start = 0;
  for (size_t i = 0; i < path.size(); ++i) {
    if (IsCp932LeadByte(static_cast<unsigned char>(path[i]))) ++i;
    else if (path[i] == '\\' || path[i] == '/') start = i + 1;
  }
  return start;
}

// Bytes of the longest run of whole characters from the front that fits.
size_t WholeCharsWithin(const std::string& text, size_t limit) {
  size_t end = 0;
  while (end < text.size()) {
    const size_t next = end + (IsCp932LeadByte(static_cast<unsigned char>(text[end])) ? 2 : 1);
    if (next > limit || next > text.size()) break;
    end = next;
  }
  return end;
}

}  // namespace

cFilePrompt FileFieldPrompt(eFileField field) {
  const cFileFieldRow& row = kFields[static_cast<int>(field)];
  cFilePrompt prompt;
  prompt.title = SysText(row.title);
  prompt.filter = std::string(SysText(row.filterText)) + '\0' + PatternsOf(row.extensions) + '\0';
  prompt.folder = row.folder;
  prompt.defaultExt = row.extensions;
  return prompt;
}

bool StoredFileChoice(const std::string& chosen, std::string& stored) {
  const bool absolute = chosen.empty() || chosen[0] == '\\' || chosen.find(':') != std::string::npos;
  if (absolute) return false;
  std::string relative = chosen.compare(0, 2, ".\\") == 0 ? chosen : ".\\" + chosen;
  if (relative.size() > kFilePathLimit) return false;
  stored = std::move(relative);
  return true;
}

std::string NameFromPath(const std::string& path, size_t limit) {
  std::string name = path.substr(FileNameStart(path));
  const size_t dot = name.rfind('.');
  // A dot can't be the second byte of a character in CP932.
  if (dot != std::string::npos && dot > 0) name.erase(dot);
  return name.substr(0, WholeCharsWithin(name, limit));
}

}  // namespace velmora
