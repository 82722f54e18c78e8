#pragma once
#include <cstdint>

namespace velmora {

// Command and message numbers shared by every window. A command travels as
// a pair: the low word is the control id, the high word the notice code,
// so a dialog can tell a click from an edit change by the same id.
inline constexpr int kIdOk = 1000;
inline constexpr int kIdCancel = 1001;
inline constexpr int kIdPlaceholder = 1006;  // hidden static, the window's own focus target
inline constexpr int kIdHorzScroll = 1008;
inline constexpr int kIdVertScroll = 1009;
inline constexpr int kMsgPageChanged = 1128;
inline constexpr int kMsgHookKey = 2024;     // a key that the keyboard hook forwards

// Notice codes of the commands that controls send.
enum eNotice : uint16_t {
  kNoticeClicked = 0,     // buttons, check boxes; also the slider's own command
  kNoticeEditUpdate = 1,  // an edit's text was changed by the user
  kNoticeKillFocus = 2,   // focus left an edit or a list
  kNoticeSelChange = 3,   // a combo box or list got a new selection
  kNoticeAccelerator = 4, // the command came from an accelerator table
};

inline constexpr uint32_t MakeCommand(int id, int notice) {
  return (static_cast<uint32_t>(notice) << 16) | (static_cast<uint32_t>(id) & 0xFFFFu);
}
inline constexpr int CommandId(uint32_t wParam) { return static_cast<int>(wParam & 0xFFFFu); }
inline constexpr int CommandNotice(uint32_t wParam) { return static_cast<int>(wParam >> 16); }

}  // namespace velmora
