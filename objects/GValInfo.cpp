#include "objects/GValInfo.h"

#include <cstdio>

namespace velmora {

std::vector<cStageVar> g_vecCommonVar;

namespace {

const std::vector<cStageVar>* g_pStageVars = nullptr;

const std::string& NameIn(const std::vector<cStageVar>* names, int number) {
  static const std::string kNone;
  if (!names || number < 0 || static_cast<size_t>(number) >= names->size()) return kNone;
  return (*names)[static_cast<size_t>(number)].m_strName;
}

}  // namespace

void cCommonVarFile::Load(cDataFile& file) {
  LoadVector(m_vVar, file);
  m_vVar.resize(kCommonVarCount);
}

void cCommonVarFile::Save(cDataFile& file) { SaveVector(m_vVar, file); }

bool LoadCommonVars(const std::string& storedPath) {
  DataFilePtr file = OpenRead(storedPath);
  if (!file) return false;
  cCommonVarFile names;
  names.Load(*file);
  const bool damaged = file->Damaged();
  CloseData(file);
  // A damaged file must not wipe the names the editor holds.
  if (damaged) return false;
  g_vecCommonVar = std::move(names.m_vVar);
  return true;
}

bool SaveCommonVars(const std::string& storedPath) {
  cCommonVarFile file;
  file.m_vVar = g_vecCommonVar;
  return file.SaveFile(storedPath) != 0;
}

void SetStageVarList(const std::vector<cStageVar>* names) { g_pStageVars = names; }
const std::vector<cStageVar>* StageVarList() { return g_pStageVars; }

const std::string& VarName(int scope, int number) {
  return NameIn(scope == kScopeStage ? g_pStageVars : &g_vecCommonVar, number);
}

std::string VarNumberText(int number) {
  char text[16];
  std::snprintf(text, sizeof text, "%03d", number);
  return text;
}

}  // namespace velmora
