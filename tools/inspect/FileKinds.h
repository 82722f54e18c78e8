#pragma once
#include <memory>
#include <string>
#include <vector>

#include "core/SaveData.h"

namespace velmora::inspect {

// A project file loaded the way the editor loads it.
class cLoadedFile {
 public:
  virtual ~cLoadedFile() = default;
  virtual std::string Json() const = 0;
  virtual bool Save(const std::string& storedPath) = 0;
};

struct cFileKind {
  const char* name;     // shown in the dump
  const char* pattern;  // file name or "*.ext", compared without case
  // Gives null when the file could not be read (missing or too new).
  std::unique_ptr<cLoadedFile> (*load)(const std::string& storedPath);
};

const std::vector<cFileKind>& FileKinds();
const cFileKind* FindFileKind(const std::string& path);

// The common shape: one record at the top of the file.
template <class T>
class cRecordFile : public cLoadedFile {
 public:
  static std::unique_ptr<cLoadedFile> Load(const std::string& storedPath) {
    auto file = std::make_unique<cRecordFile<T>>();
    if (!file->m_record.LoadFile(storedPath)) return nullptr;
    return file;
  }
  std::string Json() const override;
  bool Save(const std::string& storedPath) override { return m_record.SaveFile(storedPath) != 0; }

 private:
  T m_record;
};

}  // namespace velmora::inspect

#include "inspect/JsonWriter.h"

template <class T>
std::string velmora::inspect::cRecordFile<T>::Json() const {
  return RecordJson(m_record, 1);
}
