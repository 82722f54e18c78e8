#pragma once
#include "objects/RefNames.h"

namespace velmora {

// The names and running times that command lines show, read from the
// project's database; palette entry names come from the installed palettes.
class cProjectRefNames : public cRefNames {
 public:
  std::string DbRowName(eDbList list, int row) const override;
  std::vector<int> FrameTimes(eDbList list, int row) const override;
  int EffectTime(eDbList list, int row) const override;
};

}  // namespace velmora
