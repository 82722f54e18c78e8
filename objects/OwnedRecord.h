#pragma once
#include <cstdint>
#include <memory>

#include "core/DataFile.h"

namespace velmora {

// A record that another record owns and may lack. Copying the owner copies
// the record too: two commands never share their parameters.
template <class T>
class cOwnedRecord {
 public:
  cOwnedRecord() = default;
  cOwnedRecord(const cOwnedRecord& other) : m_record(Clone(other)) {}
  cOwnedRecord& operator=(const cOwnedRecord& other) {
    if (this != &other) m_record = Clone(other);
    return *this;
  }
  cOwnedRecord(cOwnedRecord&&) noexcept = default;
  cOwnedRecord& operator=(cOwnedRecord&&) noexcept = default;

  T* get() const { return m_record.get(); }
  T* operator->() const { return m_record.get(); }
  T& operator*() const { return *m_record; }
  explicit operator bool() const { return m_record != nullptr; }

  // Replaces what was held by a record with its defaults.
  T& Make() {
    m_record = std::make_unique<T>();
    return *m_record;
  }
  void Clear() { m_record.reset(); }

  bool operator==(const cOwnedRecord& other) const {
    if (!m_record || !other.m_record) return !m_record && !other.m_record;
    return *m_record == *other.m_record;
  }

  // In a file the record stands behind a 32-bit presence word.
  void Load(cDataFile& file) {
    int32_t present = 0;
    if (!file.ReadInt32(present)) return;
    if (present == 0) {
      Clear();
      return;
    }
    Make().Load(file);
  }
  void Save(cDataFile& file) const {
    file.WriteInt32(m_record ? 1 : 0);
    if (m_record) m_record->Save(file);
  }

 private:
  static std::unique_ptr<T> Clone(const cOwnedRecord& other) {
    return other.m_record ? std::make_unique<T>(*other.m_record) : nullptr;
  }
  std::unique_ptr<T> m_record;
};

}  // namespace velmora
