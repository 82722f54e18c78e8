#pragma once
#include <QPointer>
#include <QWidget>
#include <map>

namespace velmora {

// The widgets of one window by control id, the way a template names them.
class cItemMap {
 public:
  void Set(int id, QWidget* widget) { m_items[id] = widget; }
  QWidget* Get(int id) const {
    const auto found = m_items.find(id);
    return found == m_items.end() ? nullptr : found->second.data();
  }
  void Clear() { m_items.clear(); }

 private:
  std::map<int, QPointer<QWidget>> m_items;
};

}  // namespace velmora
