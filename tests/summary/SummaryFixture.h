#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "objects/RefNames.h"
#include "platform/TextCodec.h"

namespace velmora::testing {

// Database rows named "<tag><row>"; a few palette entries and variables
// with names, so that every line can show what it refers to.
class cFakeRefNames : public cRefNames {
 public:
  std::string DbRowName(eDbList list, int row) const override;
  std::vector<int> FrameTimes(eDbList list, int row) const override;
  int EffectTime(eDbList list, int row) const override { return list == eDbList::Anime ? 0 : row * 5; }
  std::string EntryName(ePalette palette, ePaletteList list, int number) const override;
};

class SummaryTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  cFakeRefNames m_names;
  std::vector<cStageVar> m_stageVars;
};

}  // namespace velmora::testing
