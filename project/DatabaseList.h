#pragma once
#include <string>
#include <vector>

#include "core/CheckedAccess.h"
#include "core/SaveData.h"
#include "project/StreamParts.h"

namespace velmora {

// How a list of the database is numbered and sized. References to an entry
// are its row number. Where index 0 is reserved it is stored like any other
// entry, the list pages never show it, and choice boxes show it as "なし",
// so a stored 0 means "none".
struct cListRule {
  bool reservedZero;
  int least;  // a page grows the list to this many entries when opened
  int most;   // the limit of the page and of the "データ数" button
};

// A list file: the version word and one nested vector, no record at the
// top. It travels through the record stream as a record without fields.
class cDbListBase : public cSaveData {
 public:
  virtual int Count() const = 0;
  // Grows with default entries or cuts at the end; entries are never
  // inserted or removed in the middle, so references keep their meaning.
  virtual void Resize(int count) = 0;
  virtual const std::string& NameAt(int index) const = 0;
  // Entries that the list pages show: all but a reserved index 0.
  int ShownCount(const cListRule& rule) const { return rule.reservedZero && Count() > 0 ? Count() - 1 : Count(); }
  // What a list page does on opening.
  void GrowToLeast(const cListRule& rule) {
    if (Count() < rule.least) Resize(rule.least);
  }
};

// What a list does after its file was read and before it is written.
template <class T>
void FixListAfterLoad(std::vector<T>&) {}
template <class T>
void FixListBeforeSave(std::vector<T>&) {}

template <class T>
class cDbList : public cDbListBase {
 public:
  std::vector<T> m_vecEntries;

  int Count() const override { return static_cast<int>(m_vecEntries.size()); }
  void Resize(int count) override { m_vecEntries.resize(static_cast<size_t>(count < 0 ? 0 : count)); }
  const std::string& NameAt(int index) const override { return At(index).m_strName; }

  // A read outside the list is the orderly stop; the caller gets entry 0.
  T& At(int index) { return VecAt(m_vecEntries, index); }
  const T& At(int index) const { return VecAt(m_vecEntries, index); }
  // The entry a stored reference names, or null for "none": the reserved
  // index 0 and any row the list does not have.
  const T* Resolve(int index, const cListRule& rule) const {
    if (index < 0 || index >= Count() || (rule.reservedZero && index == 0)) return nullptr;
    return &m_vecEntries[static_cast<size_t>(index)];
  }

  void Load(cDataFile& file) override {
    // Even an empty record has its two entry counts.
    const int32_t count = ReadKeepingCount(file, 8);
    if (count < 1) return;
    m_vecEntries.clear();
    m_vecEntries.resize(static_cast<size_t>(count));
    for (T& entry : m_vecEntries) entry.Load(file);
    FixListAfterLoad(m_vecEntries);
  }
  void Save(cDataFile& file) override {
    FixListBeforeSave(m_vecEntries);
    SaveVector(m_vecEntries, file);
  }
  void VisitNested(cNestedVisitor& visitor) const override { VisitVector(visitor, "m_vecEntries", m_vecEntries); }
};

}  // namespace velmora
