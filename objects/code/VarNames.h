#pragma once
#include <string>
#include <vector>

#include "core/CheckedAccess.h"

namespace velmora {

// A list of variable names as the records keep them: the common list of
// data\GValInfo.dat and a stage's own list. Element 0 is never shown and
// element n names variable n.
class cVarNameList {
 public:
  virtual ~cVarNameList() = default;
  virtual int Count() const = 0;  // elements, element 0 included
  virtual const std::string& Name(int element) const = 0;
};

// Views a vector of name records (anything with `m_strName`) as a name list.
template <class tRecord>
class cRecordVarNames : public cVarNameList {
 public:
  explicit cRecordVarNames(const std::vector<tRecord>& records) : m_records(records) {}
  int Count() const override { return static_cast<int>(m_records.size()); }
  const std::string& Name(int element) const override { return VecAt(m_records, element).m_strName; }

 private:
  const std::vector<tRecord>& m_records;
};

}  // namespace velmora
