#pragma once
#include <string>
#include <vector>

namespace velmora {

// Which palette entry editor a condition or command is being edited in.
// The first row of the object list names the editor's point of view.
enum class eObjectContext {
  BlockEditor,
  CharaEditor,
  ItemEditor,
  ItemCommandDialog,  // the item editor's second page with a command dialog open
};

inline constexpr int kObjectSystem = 5;  // the row "システム"

// The rows, CP932; "システム" closes the list where the dialog wants it.
std::vector<const char*> ObjectList(eObjectContext context, bool withSystem);
// One row, "" outside the list.
const char* ObjectLabel(eObjectContext context, int row);

// The context the editors are in now; summaries of conditions follow it.
eObjectContext CurrentObjectContext();
void SetObjectContext(eObjectContext context);

// The context stands while the guard lives, for texts made outside an
// editor.
class cObjectContextScope {
 public:
  explicit cObjectContextScope(eObjectContext context) : m_previous(CurrentObjectContext()) { SetObjectContext(context); }
  ~cObjectContextScope() { SetObjectContext(m_previous); }
  cObjectContextScope(const cObjectContextScope&) = delete;
  cObjectContextScope& operator=(const cObjectContextScope&) = delete;

 private:
  eObjectContext m_previous;
};

}  // namespace velmora
