#pragma once
#include <span>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"

namespace velmora {

// One inheritable group of fields: its label (the check box beside it and
// the default-flag lists show it) and the copy from the source entry.
template <class T>
struct cInheritGroup {
  const char* label;  // UTF-8
  void (*copy)(T& to, const T& from);
};

std::span<const cInheritGroup<cEdBlock>> BlockInheritGroups();
std::span<const cInheritGroup<cEdChara>> CharaInheritGroups();
std::span<const cInheritGroup<cEdItem>> ItemInheritGroups();

// Runs the copy of every group whose flag is set, in group order.
template <class T>
void CopyInheritedGroups(T& entry, const T& source, std::span<const cInheritGroup<T>> groups) {
  for (size_t i = 0; i < entry.m_bbInherit.size() && i < groups.size(); ++i) {
    if (entry.m_bbInherit[i]) groups[i].copy(entry, source);
  }
}

}  // namespace velmora
