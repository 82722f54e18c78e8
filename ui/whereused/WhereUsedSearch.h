#pragma once
#include <optional>
#include <string>
#include <vector>

#include "project/whereused/WhereUsedIndex.h"

namespace velmora {

// One found use, kept apart from the index that found it.
struct cFoundUse {
  std::string file;  // stored path
  cUse use;
};

// The search as the window shows it. It outlives the window, which goes
// with the stage window whenever another stage comes in, so the search
// and its results come back with the window.
struct cWhereUsedSearch {
  int kind = 0;  // eUseKind
  int number = 1;
  std::vector<cFoundUse> results;
  std::vector<std::string> unreadable;
  bool shown = false;
  // A use in another stage, to show once that stage's window stands.
  std::optional<cFoundUse> pending;

  // Brings the index up to the files and lists every use of the target.
  void Run();

 private:
  cWhereUsedIndex m_index;
};

cWhereUsedSearch& WhereUsedSearch();

}  // namespace velmora
