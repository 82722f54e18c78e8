#include "objects/Entry.h"

#include "objects/PlainVector.h"

namespace velmora {

void cEdEntry::RegisterHead() {
  Add1(VFIELD(m_nInheritSrc));
  Add2(VFIELD(m_nInheritNo));
  Add1(VFIELD(m_nCondJudge));
  Add1(VFIELD(m_bCondLatch));
}

void cEdEntry::LoadPosition(cDataFile& file) {
  file.Read(&m_nPosX, sizeof m_nPosX);
  file.Read(&m_nPosY, sizeof m_nPosY);
}

void cEdEntry::SavePosition(cDataFile& file) const {
  file.Write(&m_nPosX, sizeof m_nPosX);
  file.Write(&m_nPosY, sizeof m_nPosY);
}

void cEdEntry::LoadInheritAndConds(cDataFile& file) {
  LoadPlainVector(m_bbInherit, file);
  LoadVector(m_vCond, file);
}

void cEdEntry::SaveInheritAndConds(cDataFile& file) {
  SavePlainVector(m_bbInherit, file);
  SaveVector(m_vCond, file);
}

void cEdEntry::VisitInheritAndConds(cNestedVisitor& visitor) const {
  visitor.Numbers("m_nPosX", {m_nPosX});
  visitor.Numbers("m_nPosY", {m_nPosY});
  visitor.Numbers("m_bbInherit", std::vector<int64_t>(m_bbInherit.begin(), m_bbInherit.end()));
  VisitVector(visitor, "m_vCond", m_vCond);
}

bool cEdEntry::SameEntry(const cEdEntry& other) const {
  return IsSame(*this, other) && m_nPosX == other.m_nPosX && m_nPosY == other.m_nPosY &&
         m_bbInherit == other.m_bbInherit && m_vCond == other.m_vCond;
}

void cEdEntry::CheckInheritRef(int listSize) {
  if ((m_nInheritSrc == 1 || m_nInheritSrc == 2) && (m_nInheritNo < 0 || m_nInheritNo >= listSize)) {
    m_nInheritSrc = 0;
    m_nInheritNo = 0;
  }
}

}  // namespace velmora
