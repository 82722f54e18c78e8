#pragma once
#include <string>
#include <vector>

namespace velmora {

// The option lists that settings bind to, in value order, as UTF-8
// literals (SysText gives their CP932 form). The terminating empty entry of
// the stored lists is not part of these vectors.
enum class eOptionList {
  OldStageHandling,
  ScrollType,
  HorizontalExtension,
  VerticalExtension,
  HitLevel,
  SpeedLevel,
  PositionA,
  PositionB,
  Display,
  Colour,
  WheelDirection,
};

const std::vector<std::string>& OptionList(eOptionList list);

}  // namespace velmora
