#include "objects/Cmd.h"

#include <cstring>

#include "objects/CmdTable.h"
#include "objects/Flow.h"
#include "objects/PlainVector.h"

namespace velmora {
namespace {

constexpr uint32_t kCondListStored = 764;

// Parameters that a new command of a kind starts with besides zero.
struct cNewParam {
  int kind;
  int index;
  int32_t value;
};
const cNewParam kNewParams[] = {
    {kCmdStageClear, 10, 1},
    {kCmdStatusOp, 20, 2},
    {kCmdStatusOp, 21, 2},
};

constexpr int16_t kNewMaxSpeed = 200;

}  // namespace

cEdCmd::cEdCmd() = default;
cEdCmd::cEdCmd(const cEdCmd& other) = default;
cEdCmd& cEdCmd::operator=(const cEdCmd& other) = default;
cEdCmd::cEdCmd(cEdCmd&& other) noexcept = default;
cEdCmd& cEdCmd::operator=(cEdCmd&& other) noexcept = default;
cEdCmd::~cEdCmd() = default;

void cEdCmd::Register(uint32_t /*version*/) {
  ClearLists();
  Add1(VFIELD(m_bItemCmd));
  Add1(VFIELD(m_nKind));
  AddString(VSTRING(m_strText));
  Add2(VFIELD(m_nTime));
  Add2(VFIELD(m_nTimeClone));
  Add1(VFIELD(m_bParallel));
  Add2(VFIELD(m_nSound));
  Add1(VFIELD(m_bNoSoundOffscreen));
  Add2(VFIELD(m_nAnime));
}

int cEdCmd::TableKind() const { return CmdTableKind(m_bItemCmd != 0, m_nKind); }

void cEdCmd::SetUpNew(int kind, bool itemCmd) {
  *this = cEdCmd();
  m_bItemCmd = itemCmd ? 1 : 0;
  m_nKind = static_cast<uint8_t>(kind);
  const cCmdInfo* info = FindCmdInfo(itemCmd, kind);
  if (!info) return;
  m_nTime = static_cast<int16_t>(info->newTime);
  m_bParallel = info->newParallel ? 1 : 0;
  m_vParam.assign(static_cast<size_t>(info->paramCount), 0);
  for (const cNewParam& param : kNewParams) {
    if (param.kind == TableKind() && param.index < info->paramCount) m_vParam[static_cast<size_t>(param.index)] = param.value;
  }
  switch (info->record) {
    case eCmdRecord::Move:
      m_pMove.Make().m_nMaxSpeed = kNewMaxSpeed;
      break;
    case eCmdRecord::Shot:
      m_pShot.Make();
      break;
    case eCmdRecord::CondList:
      m_pCondList.Make();
      break;
    case eCmdRecord::None:
      break;
  }
}

namespace {

// Most commands own none of their three records: the presence words are
// then read as one piece. False, with nothing read, otherwise.
bool LoadNoRecords(cEdCmd& cmd, cDataFile& file) {
  const size_t words = g_nFileVersion >= kCondListStored ? 3 : 2;
  const size_t bytes = words * sizeof(int32_t);
  const char* presence = file.Peek(bytes);
  if (!presence) return false;
  int32_t present[3] = {};
  std::memcpy(present, presence, bytes);
  if (present[0] | present[1] | present[2]) return false;
  file.Consume(bytes);
  cmd.m_pMove.Clear();
  cmd.m_pShot.Clear();
  if (words == 3) cmd.m_pCondList.Clear();
  return true;
}

}  // namespace

void cEdCmd::Load(cDataFile& file) {
  cSaveData::Load(file);
  if (!LoadNoRecords(*this, file)) {
    m_pMove.Load(file);
    m_pShot.Load(file);
    if (g_nFileVersion >= kCondListStored) m_pCondList.Load(file);
  }
  LoadVector(m_vSubFlow, file);
  LoadPlainVector(m_vParam, file);
  if (g_nFileVersion < kCurrentVersion) UpgradeCmd(*this);
}

void cEdCmd::Save(cDataFile& file) {
  cSaveData::Save(file);
  m_pMove.Save(file);
  m_pShot.Save(file);
  // Writing an older layout is how tests state old files.
  if (g_nAppVersion >= kCondListStored) m_pCondList.Save(file);
  SaveVector(m_vSubFlow, file);
  SavePlainVector(m_vParam, file);
}

void cEdCmd::VisitNested(cNestedVisitor& visitor) const {
  visitor.Child("m_pMove", m_pMove.get());
  visitor.Child("m_pShot", m_pShot.get());
  visitor.Child("m_pCondList", m_pCondList.get());
  VisitVector(visitor, "m_vSubFlow", m_vSubFlow);
  visitor.Numbers("m_vParam", std::vector<int64_t>(m_vParam.begin(), m_vParam.end()));
}

bool cEdCmd::operator==(const cEdCmd& other) const {
  return IsSame(*this, other) && m_pMove == other.m_pMove && m_pShot == other.m_pShot &&
         m_pCondList == other.m_pCondList && m_vSubFlow == other.m_vSubFlow && m_vParam == other.m_vParam;
}

}  // namespace velmora
