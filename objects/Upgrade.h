#pragma once
#include <cstdint>
#include <span>

#include "core/SaveData.h"

namespace velmora {

// One change that brings a record of an old file up to date: it applies
// to files below the version `below`. The steps of a class stand in a table
// and run in table order, each under its own version test.
template <class T>
struct cUpgradeStep {
  uint32_t below;
  void (*apply)(T& record);
};

template <class T>
void ApplyUpgrades(T& record, std::span<const cUpgradeStep<T>> steps) {
  if (g_nFileVersion >= kCurrentVersion) return;
  for (const cUpgradeStep<T>& step : steps) {
    if (g_nFileVersion < step.below) step.apply(record);
  }
}

}  // namespace velmora
