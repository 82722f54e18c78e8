#pragma once
#include <algorithm>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "core/CheckedAccess.h"
#include "core/DataFile.h"

namespace velmora {

// The process-wide persistence state.
inline constexpr uint32_t kCurrentVersion = 950;
extern uint32_t g_nAppVersion;   // the version this build writes
extern uint32_t g_nFileVersion;  // version word of the file last opened by OpenRead
extern int32_t g_bFileTooNew;    // the last OpenRead that found its file refused it
extern int32_t g_bNoSave;        // once set, nothing is saved any more
extern std::string g_strDropped; // target of retired string fields
extern int32_t g_nDropped;       // target of retired scalar fields (any width)

void SetAppVersion();


// One registered scalar field. Records are kept by the hundred thousand, so
// a record holds no field list of its own: the list describes where the
// members lie inside any record of its class, and one list per class and
// version is shared by all of them.
enum class eFieldKind : uint8_t { Unsigned, Signed, Float };

struct cSaveField {
  std::ptrdiff_t offset = 0;  // from the record's cSaveData base
  const char* name = "";      // the member's name, for the inspector
  int32_t count = 1;          // elements stored one behind the other
  int8_t size = 0;            // 1, 2, 4 or 8
  eFieldKind kind = eFieldKind::Unsigned;
  bool dropped = false;       // a retired field: read and thrown away
};

struct cSaveString {
  std::ptrdiff_t offset = 0;
  const char* name = "";
  bool dropped = false;
};

// Registration names each member after itself: Add4(VFIELD(m_nLife)),
// Add4(VFIELDS(m_anParam, 5)), AddString(VSTRING(m_strName)).
#define VFIELD(member) &(member), 1, #member
#define VFIELDS(member, count) (member), (count), #member
#define VSTRING(member) &(member), #member

class cSaveData;
struct cSafeWritePlaces;

// Walks what the field lists do not know: nested vectors and records held
// by pointer. The inspector and the tests of nested records use it.
class cNestedVisitor {
 public:
  virtual ~cNestedVisitor() = default;
  virtual void BeginArray(const char* name) = 0;
  virtual void Element(const cSaveData& record) = 0;
  virtual void EndArray() = 0;
  // A record held by pointer; null when absent.
  virtual void Child(const char* name, const cSaveData* record) = 0;
  // Parts that are not records: bare numbers and bare strings.
  virtual void Numbers(const char* /*name*/, const std::vector<int64_t>& /*values*/) {}
  virtual void Texts(const char* /*name*/, const std::vector<std::string>& /*texts*/) {}
};

template <class Number>
void VisitNumbers(cNestedVisitor& visitor, const char* name, const std::vector<Number>& values) {
  visitor.Numbers(name, std::vector<int64_t>(values.begin(), values.end()));
}

template <class Vector>
void VisitVector(cNestedVisitor& visitor, const char* name, const Vector& vec) {
  visitor.BeginArray(name);
  for (const auto& element : vec) visitor.Element(element);
  visitor.EndArray();
}

// Neighbouring fields that lie back to back in the record as in the file,
// moved as one piece. A retired field is a run of its own.
struct cFieldRun {
  std::ptrdiff_t offset = 0;
  size_t bytes = 0;
  bool dropped = false;
};

struct cRecordLayout {
  std::vector<cSaveField> fields;
  std::vector<cSaveString> strings;
  std::vector<cFieldRun> runs;  // the fields again, in file order
  size_t scalarBytes = 0;       // of all the fields together, as a file holds them
};

// Base of every stored record. A derived class states its stored members in
// file order in Register(version), under version gates. Register must depend
// only on the version, never on the values in the
// record, since its result is built once and shared.
class cSaveData {
 public:
  cSaveData() = default;
  cSaveData(const cSaveData&) = default;
  cSaveData& operator=(const cSaveData&) = default;
  virtual ~cSaveData() = default;

  virtual void Prepare(uint32_t /*version*/) {}
  virtual void Load(cDataFile& file);
  virtual void Save(cDataFile& file);

  int LoadFile(const std::string& name);
  // As LoadFile, and 0 too when the contents turned out damaged or ended
  // before the record did: the record then holds part of the file and is
  // only fit to be thrown away.
  int LoadWholeFile(const std::string& name);
  // Crash-safe: the file is written beside its place and renamed over it
  // (core/SafeWrite.h), so a kill leaves the old file or the new one.
  int SaveFile(const std::string& name);
  void Reset();
  void CopyFrom(const cSaveData& other);

  // The field lists for a version of this record's class.
  const cRecordLayout& Layout(uint32_t version) const;
  // Nested vectors and pointed-to records, in file order.
  virtual void VisitNested(cNestedVisitor& /*visitor*/) const {}

 protected:
  virtual void Register(uint32_t /*version*/) {}

  void ClearLists();
  template <class T>
  void Add1(T* data, int count = 1, const char* name = "") { AddScalar<T, 1>(data, count, name); }
  template <class T>
  void Add2(T* data, int count = 1, const char* name = "") { AddScalar<T, 2>(data, count, name); }
  template <class T>
  void Add4(T* data, int count = 1, const char* name = "") { AddScalar<T, 4>(data, count, name); }
  template <class T>
  void Add8(T* data, int count = 1, const char* name = "") { AddScalar<T, 8>(data, count, name); }
  void AddString(std::string* text, const char* name = "");

 private:
  // Empties the file and writes the record into it; only the safe write
  // calls this, on its fresh file.
  int WriteFileInPlace(const std::string& name);
  friend bool SaveRecordSafely(cSaveData& record, const std::string& path, const cSafeWritePlaces& places);

  template <class T, int N>
  void AddScalar(T* data, int count, const char* name) {
    static_assert(std::is_trivially_copyable_v<T>, "stored fields are plain memory");
    // A retired field of any width is read into the one scratch value.
    static_assert(sizeof(T) == N || std::is_same_v<T, int32_t>, "field width does not match its Add");
    eFieldKind kind = std::is_floating_point_v<T> ? eFieldKind::Float
                      : std::is_signed_v<T>       ? eFieldKind::Signed
                                                  : eFieldKind::Unsigned;
    AddField(data, sizeof(T) == N, count, N, kind, name);
  }
  void AddField(void* data, bool widthMatches, int count, int size, eFieldKind kind, const char* name);
  friend class cLayoutBuilder;
};

bool IsSame(const cSaveData& a, const cSaveData& b);

// File functions.
DataFilePtr OpenRead(const std::string& name);
DataFilePtr OpenWrite(const std::string& name);
// Closes and forgets the file; false when something written was lost.
bool CloseData(DataFilePtr& file);
bool IsOlderFile(const std::string& name, uint32_t version);

// One string in the stream's form, for parts that store bare strings
// outside a record's string block. The writer cuts the member the way a
// record's strings are cut. A read gives false when the stream ended.
bool ReadStreamString(cDataFile& file, std::string& target);
void WriteStreamString(cDataFile& file, std::string& text);

// Reading a count that sizes a vector: a count beyond what the rest of the
// file could hold (each element takes at least `minBytesPerElement`) is
// damage: the stream ends there and the count reads as 0.
// Inline: every nested vector starts with one.
inline int32_t ReadCount(cDataFile& file, uint64_t minBytesPerElement) {
  int32_t count = 0;
  if (!file.ReadInt32(count)) return 0;
  // A count is below 2^31 and an element a few bytes: the product can't wrap.
  if (count < 0 || static_cast<uint64_t>(count) * (minBytesPerElement ? minBytesPerElement : 1) > file.Remaining()) {
    file.MarkDamaged();
    return 0;
  }
  return count;
}

// A record takes far more room in memory than the 8 bytes it may take in a
// file, so a damaged count in a large file could still ask for many times
// the file's size. Past this many records a list grows by the records read,
// and stops growing where the damage shows.
inline constexpr int32_t kRecordsBeforeGrowing = 1024;

template <class T>
void LoadVector(std::vector<T>& vec, cDataFile& file) {
  static_assert(std::is_base_of_v<cSaveData, T>);
  // Even an empty record has its two entry counts.
  const int32_t count = ReadCount(file, 8);
  vec.clear();
  vec.resize(static_cast<size_t>(std::min(count, kRecordsBeforeGrowing)));
  for (T& element : vec) element.Load(file);
  // A file that merely ends keeps its count of default records, as a short
  // list does; only damage stops the list short.
  while (vec.size() < static_cast<size_t>(count) && !file.Damaged()) vec.emplace_back().Load(file);
}

template <class T>
void SaveVector(std::vector<T>& vec, cDataFile& file) {
  static_assert(std::is_base_of_v<cSaveData, T>);
  file.WriteInt32(static_cast<int32_t>(vec.size()));
  for (T& element : vec) element.Save(file);
}

}  // namespace velmora
