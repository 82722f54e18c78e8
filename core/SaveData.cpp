#include "core/SaveData.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <type_traits>
#include <typeindex>

#include "core/SafeWrite.h"
#include "platform/TextCodec.h"

namespace velmora {

uint32_t g_nAppVersion = kCurrentVersion;
uint32_t g_nFileVersion = 0;
int32_t g_bFileTooNew = 0;
int32_t g_bNoSave = 0;
std::string g_strDropped;
int32_t g_nDropped = 0;

void SetAppVersion() { g_nAppVersion = kCurrentVersion; }

namespace {

// A string passes through a working buffer of this size when saved.
constexpr size_t kStringBuffer = 5120;

thread_local cRecordLayout* t_building = nullptr;
thread_local const cSaveData* t_buildingRecord = nullptr;

struct cLayoutKey {
  std::type_index type;
  uint32_t version;
  bool operator<(const cLayoutKey& other) const {
    if (type != other.type) return type < other.type;
    return version < other.version;
  }
};

// Function statics, so that a record built during static initialisation
// (a process-wide settings object) finds the table ready.
std::mutex& LayoutLock() {
  static std::mutex lock;
  return lock;
}

std::map<cLayoutKey, std::unique_ptr<cRecordLayout>>& Layouts() {
  static std::map<cLayoutKey, std::unique_ptr<cRecordLayout>> layouts;
  return layouts;
}

// A small memo per thread in front of the shared table. Nested records
// take turns by the million in a stage file (character, flow, condition,
// command ...), so it holds a few classes at once, each found by the
// address of its type.
struct cLayoutMemo {
  const std::type_info* type = nullptr;
  uint32_t version = 0;
  const cRecordLayout* layout = nullptr;
};
constexpr size_t kMemoSlots = 64;
thread_local std::array<cLayoutMemo, kMemoSlots> t_memo;

cLayoutMemo& MemoSlot(const std::type_info* type, uint32_t version) {
  const auto bits = reinterpret_cast<uintptr_t>(type);
  return t_memo[((bits >> 3) ^ (bits >> 9) ^ (version * 7u)) % kMemoSlots];
}

template <class T>
T* At(const cSaveData* record, std::ptrdiff_t offset) {
  return reinterpret_cast<T*>(const_cast<char*>(reinterpret_cast<const char*>(record)) + offset);
}

// The checked access of the field lists. Past the end of a list the stop
// runs as for any bad index, but the load ends there instead of going on
// with element 0: the stream is out of step and nothing more of the file
// can be trusted, and a class with no strings has no element 0 to give.
template <class Entry>
bool EntryInRange(const std::vector<Entry>& list, int index, cDataFile& file) {
  if (index >= 0 && static_cast<size_t>(index) < list.size()) return true;
  BadIndex('V', index, static_cast<int>(list.size()), static_cast<int>(sizeof(Entry)), eBadIndexClose::PostRequest);
  file.MarkDamaged();
  return false;
}

size_t FieldBytes(const cSaveField& field) {
  return static_cast<size_t>(field.count) * static_cast<size_t>(field.size);
}

void BuildRuns(cRecordLayout& layout) {
  for (const cSaveField& field : layout.fields) {
    const size_t bytes = FieldBytes(field);
    layout.scalarBytes += bytes;
    cFieldRun* last = layout.runs.empty() ? nullptr : &layout.runs.back();
    if (last && !last->dropped && !field.dropped && last->offset + static_cast<std::ptrdiff_t>(last->bytes) == field.offset) {
      last->bytes += bytes;
    } else {
      layout.runs.push_back({field.offset, bytes, field.dropped});
    }
  }
}

// A run is a few bytes long, and a call into the C library for each would
// cost more than the copy: short runs move as two fixed-width pieces that
// may overlap in the middle.
inline void CopyRun(char* target, const char* source, size_t bytes) {
  const auto pair = [&](auto width) {
    std::memcpy(target, source, width);
    std::memcpy(target + bytes - width, source + bytes - width, width);
  };
  if (bytes > 16) {
    std::memcpy(target, source, bytes);
  } else if (bytes >= 8) {
    pair(std::integral_constant<size_t, 8>());
  } else if (bytes >= 4) {
    pair(std::integral_constant<size_t, 4>());
  } else if (bytes >= 2) {
    pair(std::integral_constant<size_t, 2>());
  } else if (bytes == 1) {
    *target = *source;
  }
}

// Copies a scalar block that lies whole in the buffer into the record, run
// by run; gives the byte behind it.
const char* CopyRuns(cSaveData* record, const cRecordLayout& layout, const char* source) {
  for (const cFieldRun& run : layout.runs) {
    if (!run.dropped) {
      CopyRun(At<char>(record, run.offset), source, run.bytes);
    } else if (run.bytes <= sizeof g_nDropped) {
      std::memcpy(&g_nDropped, source, run.bytes);
    }
    source += run.bytes;
  }
  return source;
}

// The usual record, written by this class at this version: its entry
// count, its scalars and the string count behind them come in one piece of
// the buffer. Anything else is left unread.
bool ReadUsualHead(cSaveData* record, const cRecordLayout& layout, cDataFile& file, int32_t& strings) {
  int32_t entries = 0;
  const size_t bytes = sizeof entries + layout.scalarBytes + sizeof strings;
  const char* head = file.Peek(bytes);
  if (!head) return false;
  std::memcpy(&entries, head, sizeof entries);
  if (static_cast<size_t>(entries) != layout.fields.size()) return false;
  std::memcpy(&strings, CopyRuns(record, layout, head + sizeof entries), sizeof strings);
  file.Consume(bytes);
  return true;
}

// Out of line, like the text body below: kept inside Load, these rare cases
// would cost every record of a stage the registers they need.
[[gnu::noinline]] void ReadScalarEntries(cSaveData* record, const cRecordLayout& layout, int32_t entries,
                                         cDataFile& file) {
  for (int32_t i = 0; i < entries; ++i) {
    if (!EntryInRange(layout.fields, i, file)) return;
    const cSaveField& field = layout.fields[static_cast<size_t>(i)];
    const size_t bytes = FieldBytes(field);
    if (field.dropped) {
      if (bytes <= sizeof g_nDropped ? !file.Read(&g_nDropped, bytes) : !file.Skip(bytes)) return;
    } else if (!file.Read(At<char>(record, field.offset), bytes)) {
      return;
    }
  }
}

void WriteScalarBlock(const cSaveData* record, const cRecordLayout& layout, cDataFile& file) {
  char* target = file.WriteSpan(layout.scalarBytes);
  for (const cFieldRun& run : layout.runs) {
    const char* source = run.dropped ? reinterpret_cast<const char*>(&g_nDropped) : At<char>(record, run.offset);
    if (!target) {
      file.Write(source, run.bytes);
      continue;
    }
    CopyRun(target, source, run.bytes);
    target += run.bytes;
  }
}

// The text behind a length word other than 1 (1 is the empty text).
[[gnu::noinline]] bool ReadStringBody(cDataFile& file, int32_t length, std::string& target) {
  if (length < 1 || static_cast<uint64_t>(length) > file.Remaining()) {
    file.MarkDamaged();
    return false;
  }
  std::string buffer(static_cast<size_t>(length), '\0');
  if (!file.Read(buffer.data(), buffer.size())) return false;
  buffer.resize(std::strlen(buffer.c_str()));
  target = std::move(buffer);
  return true;
}

// Most stored texts are empty, so that case stays out of any call.
inline bool ReadString(cDataFile& file, std::string& target) {
  int32_t length = 0;
  if (!file.ReadInt32(length)) return false;
  if (length != 1) return ReadStringBody(file, length, target);
  target.clear();
  return true;
}

void ReadStringEntries(cSaveData* record, const cRecordLayout& layout, int32_t entries, cDataFile& file) {
  for (int32_t i = 0; i < entries; ++i) {
    if (!EntryInRange(layout.strings, i, file)) return;
    const cSaveString& entry = layout.strings[static_cast<size_t>(i)];
    if (!ReadString(file, entry.dropped ? g_strDropped : *At<std::string>(record, entry.offset))) return;
  }
}

// Cuts a text where the working buffer of the writer would: at its first
// zero byte, and within the buffer without splitting a two-byte character.
void CutForBuffer(std::string& text) {
  size_t zero = text.find('\0');
  if (zero != std::string::npos) text.resize(zero);
  if (text.size() < kStringBuffer) return;
  size_t cut = 0;
  for (size_t i = 0; i < kStringBuffer - 1;) {
    size_t step = IsCp932LeadByte(static_cast<unsigned char>(text[i])) ? 2 : 1;
    if (i + step > kStringBuffer - 1) break;
    i += step;
    cut = i;
  }
  text.resize(cut);
}

bool SameFirstElement(const cSaveData& a, const cSaveData& b, const cSaveField& field) {
  const char* left = At<char>(&a, field.offset);
  const char* right = At<char>(&b, field.offset);
  switch (field.size) {
    case 1:
    case 2:
    case 4:
      return std::memcmp(left, right, static_cast<size_t>(field.size)) == 0;
    case 8: {
      double x, y;
      std::memcpy(&x, left, 8);
      std::memcpy(&y, right, 8);
      return x == y;
    }
    default:
      return true;
  }
}

}  // namespace

class cLayoutBuilder {
 public:
  static std::unique_ptr<cRecordLayout> Build(const cSaveData& record, uint32_t version) {
    auto layout = std::make_unique<cRecordLayout>();
    cRecordLayout* outerLayout = t_building;
    const cSaveData* outerRecord = t_buildingRecord;
    t_building = layout.get();
    t_buildingRecord = &record;
    const_cast<cSaveData&>(record).Register(version);
    t_building = outerLayout;
    t_buildingRecord = outerRecord;
    BuildRuns(*layout);
    return layout;
  }
  [[gnu::noinline]] static const cRecordLayout& Remember(const cSaveData& record, const std::type_info& type,
                                                         uint32_t version);
};

// A memo miss: the shared table, or a new layout. Kept out of Layout so
// that a hit costs a handful of instructions.
const cRecordLayout& cLayoutBuilder::Remember(const cSaveData& record, const std::type_info& type, uint32_t version) {
  const cLayoutKey key{std::type_index(type), version};
  const cRecordLayout* layout = nullptr;
  {
    std::lock_guard<std::mutex> guard(LayoutLock());
    auto found = Layouts().find(key);
    if (found != Layouts().end()) layout = found->second.get();
  }
  if (!layout) {
    // Built outside the lock: a Register may construct other records.
    auto built = Build(record, version);
    std::lock_guard<std::mutex> guard(LayoutLock());
    auto [it, inserted] = Layouts().try_emplace(key, std::move(built));
    layout = it->second.get();
  }
  MemoSlot(&type, version) = {&type, version, layout};
  return *layout;
}

const cRecordLayout& cSaveData::Layout(uint32_t version) const {
  const std::type_info& type = typeid(*this);
  const cLayoutMemo& memo = MemoSlot(&type, version);
  if (memo.type == &type && memo.version == version) return *memo.layout;
  return cLayoutBuilder::Remember(*this, type, version);
}

void cSaveData::ClearLists() {
  if (!t_building) return;
  t_building->fields.clear();
  t_building->strings.clear();
}

void cSaveData::AddField(void* data, bool widthMatches, int count, int size, eFieldKind kind, const char* name) {
  if (!t_building || t_buildingRecord != this) return;
  cSaveField field;
  field.name = name;
  field.kind = kind;
  field.count = count;
  field.size = static_cast<int8_t>(size);
  field.dropped = (data == &g_nDropped);
  if (!widthMatches && !field.dropped) {
    // A field whose width differs from its Add would corrupt memory on load.
    ReportFormat("bad field width %d in %s", size, typeid(*this).name());
    AppControl().EndProcess(4);
  }
  field.offset = field.dropped ? 0 : reinterpret_cast<char*>(data) - reinterpret_cast<char*>(this);
  t_building->fields.push_back(field);
}

void cSaveData::AddString(std::string* text, const char* name) {
  if (!t_building || t_buildingRecord != this) return;
  cSaveString entry;
  entry.name = name;
  entry.dropped = (text == &g_strDropped);
  entry.offset = entry.dropped ? 0 : reinterpret_cast<char*>(text) - reinterpret_cast<char*>(this);
  t_building->strings.push_back(entry);
}

void cSaveData::Load(cDataFile& file) {
  const cRecordLayout& layout = Layout(g_nFileVersion);
  int32_t strings = 0;
  if (!ReadUsualHead(this, layout, file, strings)) {
    // An older, cut or damaged block goes entry by entry.
    int32_t entries = 0;
    if (!file.ReadInt32(entries)) return;
    ReadScalarEntries(this, layout, entries, file);
    if (!file.ReadInt32(strings)) return;
  }
  ReadStringEntries(this, layout, strings, file);
}

void cSaveData::Save(cDataFile& file) {
  const cRecordLayout& layout = Layout(g_nAppVersion);
  file.WriteInt32(static_cast<int32_t>(layout.fields.size()));
  WriteScalarBlock(this, layout, file);
  file.WriteInt32(static_cast<int32_t>(layout.strings.size()));
  for (const cSaveString& entry : layout.strings) {
    WriteStreamString(file, entry.dropped ? g_strDropped : *At<std::string>(this, entry.offset));
  }
}

bool ReadStreamString(cDataFile& file, std::string& target) { return ReadString(file, target); }

void WriteStreamString(cDataFile& file, std::string& text) {
  CutForBuffer(text);
  const int32_t length = static_cast<int32_t>(text.size()) + 1;
  file.WriteInt32(length);
  if (length != 1) file.Write(text.c_str(), static_cast<size_t>(length));
}

int cSaveData::LoadFile(const std::string& name) {
  DataFilePtr file = OpenRead(name);
  if (!file) return 0;
  Load(*file);
  CloseData(file);
  return 1;
}

int cSaveData::LoadWholeFile(const std::string& name) {
  DataFilePtr file = OpenRead(name);
  if (!file) return 0;
  Load(*file);
  const bool whole = !file->Damaged() && !file->Ended();
  CloseData(file);
  return whole ? 1 : 0;
}

int cSaveData::SaveFile(const std::string& name) {
  if (g_bNoSave) return 0;
  return SaveRecordSafely(*this, name) ? 1 : 0;
}

int cSaveData::WriteFileInPlace(const std::string& name) {
  if (g_bNoSave) return 0;
  DataFilePtr file = OpenWrite(name);
  if (!file) return 0;
  Save(*file);
  return CloseData(file) ? 1 : 0;
}

void cSaveData::Reset() {
  const cRecordLayout& layout = Layout(g_nAppVersion);
  for (const cSaveField& field : layout.fields) {
    if (field.dropped) continue;
    std::memset(At<char>(this, field.offset), 0, FieldBytes(field));
  }
  for (const cSaveString& entry : layout.strings) {
    if (!entry.dropped) At<std::string>(this, entry.offset)->clear();
  }
}

void cSaveData::CopyFrom(const cSaveData& other) {
  const cRecordLayout& layout = Layout(g_nAppVersion);
  const cRecordLayout& source = other.Layout(g_nAppVersion);
  const size_t fields = std::min(layout.fields.size(), source.fields.size());
  for (size_t i = 0; i < fields; ++i) {
    const cSaveField& field = layout.fields[i];
    if (field.dropped) continue;
    std::memmove(At<char>(this, field.offset), At<char>(&other, source.fields[i].offset),
                 FieldBytes(field));
  }
  const size_t strings = std::min(layout.strings.size(), source.strings.size());
  for (size_t i = 0; i < strings; ++i) {
    if (layout.strings[i].dropped) continue;
    *At<std::string>(this, layout.strings[i].offset) = *At<std::string>(&other, source.strings[i].offset);
  }
}

bool IsSame(const cSaveData& a, const cSaveData& b) {
  const_cast<cSaveData&>(a).Prepare(g_nAppVersion);
  const_cast<cSaveData&>(b).Prepare(g_nAppVersion);
  const cRecordLayout& layout = a.Layout(g_nAppVersion);
  for (const cSaveField& field : layout.fields) {
    if (!field.dropped && !SameFirstElement(a, b, field)) return false;
  }
  for (const cSaveString& entry : layout.strings) {
    if (entry.dropped) continue;
    if (*At<std::string>(&a, entry.offset) != *At<std::string>(&b, entry.offset)) return false;
  }
  return true;
}

DataFilePtr OpenRead(const std::string& name) {
  DataFilePtr file = cDataFile::OpenForRead(name.empty() ? "err" : name);
  if (!file) return nullptr;
  uint32_t version = 0;
  // A file too short for its version word reads as version 0, the oldest.
  if (!file->Read(&version, sizeof version)) version = 0;
  g_nFileVersion = version;
  if (g_nFileVersion > g_nAppVersion) {
    g_bFileTooNew = 1;
    return nullptr;
  }
  g_bFileTooNew = 0;
  return file;
}

DataFilePtr OpenWrite(const std::string& name) {
  if (g_bNoSave) return nullptr;
  DataFilePtr file = cDataFile::OpenForWrite(name.empty() ? "err" : name);
  if (!file) return nullptr;
  file->Write(&g_nAppVersion, sizeof g_nAppVersion);
  return file;
}

bool CloseData(DataFilePtr& file) {
  if (!file) return true;
  bool ok = file->Close();
  file.reset();
  return ok;
}

bool IsOlderFile(const std::string& name, uint32_t version) {
  DataFilePtr file = OpenRead(name);
  if (!file) return false;
  CloseData(file);
  return g_nFileVersion < version;
}

}  // namespace velmora
