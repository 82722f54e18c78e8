#include "inspect/StagePaletteFile.h"

#include "objects/Palette.h"

namespace velmora::inspect {
namespace {

// The lists in a record of their own, so the JSON writer shows them like
// the common palette's.
class cListsHolder : public cSaveData {
 public:
  std::vector<cEdBlock> m_vecBlockPlt;
  std::vector<cEdChara> m_vecCharaPlt;
  std::vector<cEdItem> m_vecItemPlt;
  cPaletteLists Lists() { return {&m_vecBlockPlt, &m_vecCharaPlt, &m_vecItemPlt}; }
  void VisitNested(cNestedVisitor& visitor) const override {
    VisitVector(visitor, "m_vecBlockPlt", m_vecBlockPlt);
    VisitVector(visitor, "m_vecCharaPlt", m_vecCharaPlt);
    VisitVector(visitor, "m_vecItemPlt", m_vecItemPlt);
  }
};

class cStagePaletteFile : public cLoadedFile {
 public:
  bool Load(const std::string& storedPath) {
    DataFilePtr file = OpenRead(storedPath);
    if (!file) return false;
    ReadPaletteLists(m_lists.Lists(), *file);
    CloseData(file);
    return true;
  }
  std::string Json() const override { return RecordJson(m_lists, 1); }
  bool Save(const std::string& storedPath) override {
    DataFilePtr file = OpenWrite(storedPath);
    if (!file) return false;
    WritePaletteLists(m_lists.Lists(), *file);
    return CloseData(file);
  }

 private:
  mutable cListsHolder m_lists;
};

}  // namespace

std::unique_ptr<cLoadedFile> LoadStagePaletteFile(const std::string& storedPath) {
  auto file = std::make_unique<cStagePaletteFile>();
  if (!file->Load(storedPath)) return nullptr;
  return file;
}

}  // namespace velmora::inspect
