#pragma once
#include <string>
#include <vector>

#include "core/ProjectPaths.h"
#include "objects/StageVar.h"

namespace velmora {

inline constexpr int kCommonVarCount = 1000;

// The names of the common variables, always kCommonVarCount of them once
// loaded.
extern std::vector<cStageVar> g_vecCommonVar;

// The file of the common names: a version word and one nested vector, no
// record at the top. Loading brings the list to exactly kCommonVarCount.
class cCommonVarFile : public cSaveData {
 public:
  std::vector<cStageVar> m_vVar;

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override { VisitVector(visitor, "m_vVar", m_vVar); }
};

// False when the file is missing, too new or damaged; the list then stays
// as it was.
bool LoadCommonVars(const std::string& storedPath = PathOf(ePath::GValInfo));
bool SaveCommonVars(const std::string& storedPath = PathOf(ePath::GValInfo));

enum eVarScope : int { kScopeCommon = 0, kScopeStage = 1 };

// The stage record owns the stage names; it tells where they are.
void SetStageVarList(const std::vector<cStageVar>* names);
const std::vector<cStageVar>* StageVarList();

// A stage's names stand as the installed stage names while the guard lives,
// for reading a stage beside the edit stage.
class cStageVarScope {
 public:
  explicit cStageVarScope(const std::vector<cStageVar>& names) : m_previous(StageVarList()) { SetStageVarList(&names); }
  ~cStageVarScope() { SetStageVarList(m_previous); }
  cStageVarScope(const cStageVarScope&) = delete;
  cStageVarScope& operator=(const cStageVarScope&) = delete;

 private:
  const std::vector<cStageVar>* m_previous;
};

// The name of variable `number` of a scope; "" when there is none.
const std::string& VarName(int scope, int number);
// A variable's number as the lists show it: three digits.
std::string VarNumberText(int number);

}  // namespace velmora
