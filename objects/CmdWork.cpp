#include "objects/CmdWork.h"

#include <algorithm>

#include "objects/CmdTable.h"

namespace velmora {

bool IsEditableCmdKind(bool itemCmd, int kind) {
  const cCmdInfo* info = FindCmdInfo(itemCmd, kind);
  return kind > 0 && info && info->paramCount <= kMaxCmdParams;
}

cCmdWork CmdWorkOf(const cEdCmd& cmd) {
  cEdCmd fresh;
  fresh.SetUpNew(cmd.m_nKind, cmd.m_bItemCmd != 0);
  cCmdWork work;
  work.cmd = cmd;
  work.cmd.m_pMove.Clear();
  work.cmd.m_pShot.Clear();
  work.cmd.m_pCondList.Clear();
  work.cmd.m_vSubFlow.clear();
  work.cmd.m_vParam.clear();
  work.move = cmd.m_pMove ? *cmd.m_pMove : fresh.m_pMove ? *fresh.m_pMove : cEdMove();
  work.shot = cmd.m_pShot ? *cmd.m_pShot : cEdShot();
  work.condList = cmd.m_pCondList ? *cmd.m_pCondList : cCondList();
  work.paramCount = std::min(CmdParamCount(cmd.m_bItemCmd != 0, cmd.m_nKind), kMaxCmdParams);
  const size_t kept = std::min(cmd.m_vParam.size(), static_cast<size_t>(work.paramCount));
  std::copy_n(cmd.m_vParam.begin(), kept, work.params.begin());
  return work;
}

void StoreCmdWork(const cCmdWork& work, cEdCmd& cmd) {
  cEdCmd stored = work.cmd;
  stored.m_pMove = std::move(cmd.m_pMove);
  stored.m_pShot = std::move(cmd.m_pShot);
  stored.m_pCondList = std::move(cmd.m_pCondList);
  stored.m_vSubFlow = std::move(cmd.m_vSubFlow);
  const cCmdInfo* info = FindCmdInfo(stored.m_bItemCmd != 0, stored.m_nKind);
  switch (info ? info->record : eCmdRecord::None) {
    case eCmdRecord::Move:
      stored.m_pMove.Make() = work.move;
      break;
    case eCmdRecord::Shot:
      stored.m_pShot.Make() = work.shot;
      break;
    case eCmdRecord::CondList:
      stored.m_pCondList.Make() = work.condList;
      break;
    case eCmdRecord::None:
      break;
  }
  stored.m_vParam.assign(work.params.begin(), work.params.begin() + work.paramCount);
  cmd = std::move(stored);
}

}  // namespace velmora
