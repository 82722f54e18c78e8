#pragma once

namespace velmora {

// Where an entry editor opens, for a caller that takes the author to one
// place of the entry. Rows count from 1 as the lists show them; 0 leaves
// a list on its first row. Without a place the editor opens on the page
// the author had in front last.
struct cEditorStart {
  int field = 0;      // a control id: its page comes to the front, the control in the focus
  int flow = 0;       // a character's flow: the flow page, the flow selected
  int command = 0;    // of the flow, or of an item's own commands
  int condition = 0;  // of the flow, or of the entry's own conditions

  bool IsSet() const { return field != 0 || flow != 0 || command != 0 || condition != 0; }
};

}  // namespace velmora
