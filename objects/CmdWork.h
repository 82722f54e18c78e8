#pragma once
#include <array>
#include <cstdint>

#include "objects/Cmd.h"
#include "objects/Flow.h"

namespace velmora {

// The most parameters a kind has (ステータスの操作).
inline constexpr int kMaxCmdParams = 22;

// A command as its dialog edits it. A dialog binds its controls to fields
// by address, so every part it edits stands here at a fixed place: copying
// a work into another keeps each field where it was, which copying a
// command would not (its records and parameters are held on the heap).
struct cCmdWork {
  cEdCmd cmd;  // the kind, the text, time, sound and the like; no records, no parameters
  cEdMove move;
  cEdShot shot;
  cCondList condList;
  std::array<int32_t, kMaxCmdParams> params{};
  int paramCount = 0;  // of the kind
  // Not stored: what the dialog is told, and what it only shows.
  bool commonEntry = false;                 // the command belongs to a common palette entry
  std::array<int32_t, 2> shownVar{1, 1};    // the variables the reference lists show, by scope

  int32_t& P(int i) { return params[static_cast<size_t>(i)]; }
  int32_t P(int i) const { return params[static_cast<size_t>(i)]; }
  // The kind in the numbering of CmdTable, which the dialogs follow.
  int TableKind() const { return cmd.TableKind(); }
};

// Whether a dialog can edit a command of this kind: one that its table
// holds. A damaged file can hold any kind.
bool IsEditableCmdKind(bool itemCmd, int kind);

// The work of a command as its dialog opens on it: the parameters sized
// to the kind, and a record the kind owns but the command lacks made with
// the values of a new command. The command itself is not touched.
cCmdWork CmdWorkOf(const cEdCmd& cmd);

// Gives the work back to the command on OK: its fields, the record of its
// kind and the parameters at the kind's count. What the kind doesn't own
// (other records, sub-flows) stays as the command held it.
void StoreCmdWork(const cCmdWork& work, cEdCmd& cmd);

}  // namespace velmora
