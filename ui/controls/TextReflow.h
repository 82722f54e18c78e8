#pragma once
#include <string>

namespace velmora {

// The limits of a text box. Lines are separated by "\r\n", as records keep
// them. A width of 0 means no width limit.
struct cTextLimits {
  int byteLimit = 4096;
  int width = 0;         // per line, in characters or bytes
  int lineLimit = 1;
  bool countChars = false;
};

// Width of one line under the limits' counting rule: a two-byte character
// counts as one character.
int LineWidth(const std::string& line, bool countChars);

// How many characters a one-line box shows at once. A box with room for a
// path is wide enough for a long path of a project; others keep the
// standard width of an edit (0).
int ShownChars(const cTextLimits& limits);

// Typing into a limited box reflows rather than refuses: an over-wide line
// is broken where it stops fitting and its rest flows on to the next line;
// lines beyond the limit are cut off, and the text is cut at the byte
// limit. `caret` is a byte offset and follows the character it stood behind.
std::string ReflowText(const std::string& text, const cTextLimits& limits, int& caret);

// Whether a Backspace that turned `before` into `after` joined two lines
// into one that passes the width limit.
bool JoinPassesWidth(const std::string& before, const std::string& after, const cTextLimits& limits);

}  // namespace velmora
