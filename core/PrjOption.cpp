#include "core/PrjOption.h"

#include "core/WindowPlace.h"
#include "objects/PlainVector.h"

namespace velmora {
namespace {

constexpr int kGroupCounts[3] = {kBlockInheritGroups, kCharaInheritGroups, kItemInheritGroups};

// Groups that a placed entry does not inherit by default, per kind.
const std::vector<int> kNotInheritedWhenPlaced[3] = {{1}, {4, 5, 33, 35}, {1}};

// Where each moment's values stand behind the string block, and from
// which version a file holds them.
struct cFlagRow {
  eInheritMoment moment;
  uint32_t since;
};
const cFlagRow kFlagRows[] = {{kMomentStage, 50}, {kMomentCommonPlaced, 70}, {kMomentStagePlaced, 50}};

// A group added in the middle of a kind's flags: the stage row gains 0,
// the two placing rows gain 1.
struct cFlagInsertion {
  uint32_t below;
  eEntryKind kind;
  size_t index;
};
const cFlagInsertion kInsertions[] = {
    {88, kKindBlock, 5}, {88, kKindChara, 14}, {88, kKindItem, 7},    {105, kKindChara, 3},
    {168, kKindChara, 27}, {201, kKindChara, 24}, {210, kKindChara, 21},
};

// Flag vectors that an old file holds too short, resized with zeros.
struct cFlagResize {
  uint32_t below;
  eEntryKind kind;
};
const cFlagResize kResizes[] = {{81, kKindChara}, {92, kKindBlock}};

void InsertInRows(PrjOption& option, const cFlagInsertion& insertion) {
  const uint8_t values[3] = {0, 1, 1};
  const size_t size = static_cast<size_t>(kGroupCounts[insertion.kind]);
  for (int moment = 0; moment < 3; ++moment) {
    InsertFlag(option.m_vDefFlags[moment][insertion.kind], size, insertion.index, values[moment]);
  }
}

// The flag upgrades in version order: resizes and insertions interleave.
void UpgradeFlags(PrjOption& option, uint32_t version) {
  for (uint32_t step : {81u, 88u, 92u, 105u, 168u, 201u, 210u}) {
    if (version >= step) continue;
    for (const cFlagResize& resize : kResizes) {
      if (resize.below != step) continue;
      for (auto& row : option.m_vDefFlags) row[resize.kind].resize(static_cast<size_t>(kGroupCounts[resize.kind]), 0);
    }
    for (const cFlagInsertion& insertion : kInsertions) {
      if (insertion.below == step) InsertInRows(option, insertion);
    }
  }
}

}  // namespace

int InheritGroupCount(eEntryKind kind) { return kGroupCounts[kind]; }

void PrjOption::SetUp() {
  Reset();
  for (int kind = 0; kind < 3; ++kind) {
    m_anDefSrc[kMomentStage][kind] = 0;
    m_anDefSrc[kMomentCommonPlaced][kind] = 1;
    m_anDefSrc[kMomentStagePlaced][kind] = 2;
    const size_t groups = static_cast<size_t>(kGroupCounts[kind]);
    m_vDefFlags[kMomentStage][kind].assign(groups, 0);
    std::vector<uint8_t> placed(groups, 1);
    for (int group : kNotInheritedWhenPlaced[kind]) placed[static_cast<size_t>(group)] = 0;
    m_vDefFlags[kMomentCommonPlaced][kind] = placed;
    m_vDefFlags[kMomentStagePlaced][kind] = placed;
  }
  m_bAutoGame = 1;
  m_nOldStage = 2;
  m_bBackup = 1;
  m_DefBlock.ResetEntry();
  m_DefChara.ResetEntry();
  m_DefItem.ResetEntry();
}

void PrjOption::Register(uint32_t version) {
  ClearLists();
  if (version < 130) {
    AddString(&g_strDropped, "retired");
    Add4(&g_nDropped, 1, "retired");
    AddString(&g_strDropped, "retired");
    AddString(&g_strDropped, "retired");
  }
  if (version >= 51) {
    for (int32_t& src : m_anDefSrc[kMomentStage]) Add4(&src, 1, "m_anDefSrcStage");
    if (version >= 70) {
      for (int32_t& src : m_anDefSrc[kMomentCommonPlaced]) Add4(&src, 1, "m_anDefSrcCommonPlaced");
    }
    for (int32_t& src : m_anDefSrc[kMomentStagePlaced]) Add4(&src, 1, "m_anDefSrcStagePlaced");
  }
  Add4(VFIELD(m_bAutoGame));
  AddString(VSTRING(m_strGamePath));
  if (version >= 142) Add4(VFIELD(m_nOldStage));
  if (version >= 917) {
    Add4(VFIELD(m_bBackup));
    Add4(VFIELD(m_nBackupHours));
    Add4(VFIELD(m_nLastBackupMinute));
  }
}

void PrjOption::Load(cDataFile& file) {
  const uint32_t version = g_nFileVersion;
  cSaveData::Load(file);
  if (version >= 120) {
    m_DefBlock.Load(file);
    m_DefChara.Load(file);
    m_DefItem.Load(file);
  }
  if (version >= 71 && version < 130) {
    cWindowPlace retired;
    for (int i = 0; i < 11; ++i) retired.Load(file);
  }
  for (const cFlagRow& row : kFlagRows) {
    if (version < row.since) continue;
    for (auto& flags : m_vDefFlags[row.moment]) LoadPlainVector(flags, file);
  }
  if (version < kCurrentVersion) {
    UpgradeFlags(*this, version);
    if (version < 142) m_nOldStage = 0;
  }
  // Default entries are made fresh: they inherit nothing.
  for (cEdEntry* entry : {static_cast<cEdEntry*>(&m_DefBlock), static_cast<cEdEntry*>(&m_DefChara),
                          static_cast<cEdEntry*>(&m_DefItem)}) {
    std::fill(entry->m_bbInherit.begin(), entry->m_bbInherit.end(), 0);
  }
}

// Writes the layout of the version being written, which is always the
// current one but for tests that make old files.
void PrjOption::Save(cDataFile& file) {
  const uint32_t version = g_nAppVersion;
  cSaveData::Save(file);
  if (version >= 120) {
    m_DefBlock.Save(file);
    m_DefChara.Save(file);
    m_DefItem.Save(file);
  }
  if (version >= 71 && version < 130) {
    cWindowPlace retired;
    for (int i = 0; i < 11; ++i) retired.Save(file);
  }
  for (const cFlagRow& row : kFlagRows) {
    if (version < row.since) continue;
    for (const auto& flags : m_vDefFlags[row.moment]) SavePlainVector(flags, file);
  }
}

void PrjOption::VisitNested(cNestedVisitor& visitor) const {
  visitor.Child("m_DefBlock", &m_DefBlock);
  visitor.Child("m_DefChara", &m_DefChara);
  visitor.Child("m_DefItem", &m_DefItem);
  const char* names[3] = {"m_vDefFlagsStage", "m_vDefFlagsCommonPlaced", "m_vDefFlagsStagePlaced"};
  const char* kinds[3] = {"Block", "Chara", "Item"};
  for (const cFlagRow& row : kFlagRows) {
    for (int kind = 0; kind < 3; ++kind) {
      const std::string name = std::string(names[row.moment]) + kinds[kind];
      const auto& flags = m_vDefFlags[row.moment][kind];
      visitor.Numbers(name.c_str(), std::vector<int64_t>(flags.begin(), flags.end()));
    }
  }
}

bool PrjOption::FlagsHaveFullLength() const {
  for (const auto& row : m_vDefFlags) {
    for (int kind = 0; kind < 3; ++kind) {
      if (row[kind].size() != static_cast<size_t>(kGroupCounts[kind])) return false;
    }
  }
  return true;
}

PrjOption& ProjectOption() {
  static PrjOption option;
  return option;
}

}  // namespace velmora
