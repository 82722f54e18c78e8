#pragma once

namespace velmora {

// What the sample fields of an animation allow for its sample kind: the
// range of the object's number, whether a starting cell can be given and
// up to which, and whether "一覧" can pick the object.
struct cSampleLimits {
  int numberMin = 1;
  int numberMax = 119;
  bool cellEnabled = false;
  int cellMax = 0;
  bool listEnabled = true;
};

// `charaBmpCount` is the number of entries of the character bitmap list,
// reserved index 0 included: its own bitmaps are numbered from 1.
cSampleLimits SampleLimits(int sampleKind, int charaBmpCount);

}  // namespace velmora
