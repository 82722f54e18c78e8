#pragma once
#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "objects/RefSizes.h"
#include "ui/controls/ValueField.h"

namespace velmora {

// What a dialog states about each control: its id, the record field it
// edits and the rules for that field. Descriptors are members of their
// dialog and outlive the controls made from them, so a dialog that opens
// twice binds again from the same table. Fields are addresses: the record
// must stay in place while the dialog is open.

// A string field: either a std::string or a fixed character buffer.
class cTextField {
 public:
  cTextField() = default;
  cTextField(std::string* text) : m_pString(text) {}  // NOLINT: implicit on purpose
  template <size_t N>
  cTextField(char (&buffer)[N]) : m_pBuffer(buffer), m_nBufferSize(N) {}  // NOLINT
  bool IsBound() const { return m_pString || m_pBuffer; }
  std::string Get() const;  // CP932
  void Set(const std::string& cp932) const;

 private:
  std::string* m_pString = nullptr;
  char* m_pBuffer = nullptr;
  size_t m_nBufferSize = 0;
};

struct cButtonDesc {
  int id = 0;
  const char* text = "";  // UTF-8, the dialog's own wording
};

struct cEditValDesc {
  int id = 0;
  cValueField field;
  double minimum = 0;
  double maximum = 0;
  int spinId = 0;     // 0: no spin
  double step = 1;    // spin step; also sets the decimals of a float
};

struct cEditStrDesc {
  int id = 0;
  cTextField field;
  int byteLimit = 0;  // 0: 4096
  int width = 0;      // per line; 0: 1024
  int lineLimit = 0;  // 0: 32
  bool countChars = false;
};

// The usual string descriptor: a field of at most `limit` bytes on one
// line; counting characters, `limit` is also the line's width in characters.
cEditStrDesc EditStrLine(int id, cTextField field, int limit, bool countChars = false);

struct cPictureDesc {
  int id = 0;
  int width = 0;
  int height = 0;
};

struct cCheckDesc {
  int id = 0;
  cValueField field;  // 0 or 1
  const char* text = "";  // UTF-8, beside the box
  // A long text wraps at the width the form gives it rather than widening
  // the dialog; a click on it still toggles the box.
  bool wrap = false;
};

struct cComboDesc {
  int id = 0;
  cValueField field;
  std::vector<std::string> texts;  // CP932, in list order
  int offset = 0;
  const std::vector<int>* conversion = nullptr;  // field values of the list positions
  bool adjust = false;  // force the field into the list's range at Refresh
};

struct cSliderDesc {
  int id = 0;
  cValueField field;
  int minimum = 0;
  int maximum = 0;
  int editId = 0;  // the companion numeric edit, bound to the same field
};

// A fixed text, possibly rewritten later by id.
struct cStaticDesc {
  int id = 0;
  const char* text = "";  // UTF-8
};

// A widget of the dialog's own making (a drawing area, a list page), placed
// like any other row and found by its id.
struct cCustomDesc {
  int id = 0;
  std::function<QWidget*(QWidget* parent)> make;
};

// The "再生" button beside a choice of the Sound or Bgm list: it plays the
// row that the combo box `comboId` shows, chosen or committed, tells
// "読み込み失敗！" when the file can't be played, and stops what it started
// when the dialog closes. Beside a path edit instead, `pathId`, it plays the
// sound effect file whose stored path the edit shows.
struct cSoundPreviewDesc {
  int id = 0;
  eDbList list = eDbList::Sound;
  int comboId = 0;
  int pathId = 0;
};

using cControlDesc = std::variant<cButtonDesc, cEditValDesc, cEditStrDesc, cPictureDesc, cCheckDesc, cComboDesc,
                                  cSliderDesc, cStaticDesc, cCustomDesc, cSoundPreviewDesc>;

int DescriptorId(const cControlDesc& desc);

struct cFormBlock;

// One line of a dialog's table: the control with the words around it, or
// a block of rows that stands as one line of its own (see the builders
// below).
struct cFormRow {
  const char* label = nullptr;   // UTF-8, left of the control
  cControlDesc control;
  const char* group = nullptr;   // rows with the same group share a frame
  const char* suffix = nullptr;  // UTF-8, right of the control (a unit)
  bool sameLine = false;         // stands right of the previous row
  // Set by the builders: the row is this block, and its own label,
  // control, suffix and sameLine are not read. Its group still places it.
  std::shared_ptr<const cFormBlock> block = nullptr;
};

// Rows laid out together, apart from the lines around them.
struct cFormBlock {
  enum eKind {
    kInline,   // the rows go on in the surrounding lines, as if written there
    kGroup,    // the rows in a frame with a title
    kColumns,  // columns side by side, each with its own label column
    kScroll,   // the rows scroll where the window would outgrow the screen
  };
  eKind kind = kInline;
  const char* title = nullptr;                 // UTF-8, of a group
  std::vector<std::vector<cFormRow>> columns;  // one column but for kColumns
};

// Builders of the blocks, so that a dialog of a hundred fields is still a
// table. They nest: a group in a column of a scroll area is one row there.
cFormRow FormGroup(const char* title, std::vector<cFormRow> rows);
cFormRow FormColumns(std::vector<std::vector<cFormRow>> columns);
cFormRow FormScroll(std::vector<cFormRow> rows);
// Rows spliced in where the row stands, such as those of RepeatRows.
cFormRow FormRows(std::vector<cFormRow> rows);
// The rows of `make(i)` for each i from 0 to count - 1, in that order: a
// block of rows repeated from a table, its ids and fields taken from i.
// Labels are UTF-8 pointers that must outlive the dialog (a static table).
std::vector<cFormRow> RepeatRows(int count, const std::function<std::vector<cFormRow>(int index)>& make);

// Every row of `rows` that holds a control, blocks opened, in table order:
// a block's columns from left to right, each from top to bottom.
std::vector<const cFormRow*> ControlRows(const std::vector<cFormRow>& rows);

// A dialog's whole table. The same rows build the window's layout and bind
// its fields, so a dialog is mostly this data.
struct cForm {
  std::vector<cFormRow> rows;
  bool okCancel = true;  // the OK (1000) and Cancel (1001) buttons at the bottom
};

// Texts of a combo box written in the source, turned into CP932.
std::vector<std::string> SysTexts(std::initializer_list<const char*> utf8);

}  // namespace velmora
