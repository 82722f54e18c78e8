#include "ui/controls/TextReflow.h"

#include <algorithm>
#include <vector>

#include "platform/TextCodec.h"

namespace velmora {
namespace {

const std::string kBreak = "\r\n";

size_t CharLength(const std::string& text, size_t at) {
  return IsCp932LeadByte(static_cast<unsigned char>(text[at])) && at + 1 < text.size() ? 2 : 1;
}

// The byte length of the longest start of `line` that fits `width`.
size_t FittingLength(const std::string& line, int width, bool countChars) {
  size_t at = 0;
  int used = 0;
  while (at < line.size()) {
    const size_t length = CharLength(line, at);
    const int cost = countChars ? (line[at] == '\n' ? 0 : 1) : static_cast<int>(length);
    if (used + cost > width) break;
    used += cost;
    at += length;
  }
  return at;
}

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  for (size_t end = text.find(kBreak); end != std::string::npos; end = text.find(kBreak, start)) {
    lines.push_back(text.substr(start, end - start));
    start = end + kBreak.size();
  }
  lines.push_back(text.substr(start));
  return lines;
}

size_t CountLines(const std::string& text) {
  size_t lines = 1;
  for (size_t at = text.find(kBreak); at != std::string::npos; at = text.find(kBreak, at + 2)) ++lines;
  return lines;
}

// Cuts at a character boundary at or below `limit` bytes.
void CutToBytes(std::string& text, size_t limit, int& caret) {
  if (text.size() <= limit) return;
  size_t at = 0;
  while (at < text.size() && at + CharLength(text, at) <= limit) at += CharLength(text, at);
  text.resize(at);
  caret = std::min(caret, static_cast<int>(at));
}

}  // namespace

// Records give a path 260 bytes, less its end, and a path field no fewer.
constexpr int kPathBytes = 256;
// A path of the stage or palette folders with a name of a fair length:
// ".\\data\\stg4\\Default.stg4_950" and longer ones.
constexpr int kPathChars = 48;

int ShownChars(const cTextLimits& limits) { return limits.byteLimit >= kPathBytes ? kPathChars : 0; }

int LineWidth(const std::string& line, bool countChars) {
  if (!countChars) return static_cast<int>(line.size());
  int width = 0;
  for (size_t at = 0; at < line.size(); at += CharLength(line, at)) {
    if (line[at] != '\n') ++width;
  }
  return width;
}

std::string ReflowText(const std::string& text, const cTextLimits& limits, int& caret) {
  const size_t lineLimit = static_cast<size_t>(std::max(limits.lineLimit, 1));
  std::vector<std::string> lines;
  size_t position = 0;  // where the next line starts in the result
  auto addLine = [&](const std::string& line) {
    lines.push_back(line);
    position += line.size() + kBreak.size();
  };
  for (std::string rest : SplitLines(text)) {
    // A break puts the rest of the line on a line of its own, which may
    // need breaking again.
    while (limits.width > 0 && lines.size() < lineLimit && LineWidth(rest, limits.countChars) > limits.width) {
      const size_t fit = std::max<size_t>(FittingLength(rest, limits.width, limits.countChars), 1);
      if (caret > static_cast<int>(position + fit)) caret += static_cast<int>(kBreak.size());
      addLine(rest.substr(0, fit));
      rest.erase(0, fit);
    }
    if (lines.size() >= lineLimit) break;
    addLine(rest);
  }
  std::string result;
  for (size_t i = 0; i < lines.size(); ++i) result += (i ? kBreak : std::string()) + lines[i];
  caret = std::min(caret, static_cast<int>(result.size()));
  CutToBytes(result, static_cast<size_t>(std::max(limits.byteLimit, 0)), caret);
  return result;
}

bool JoinPassesWidth(const std::string& before, const std::string& after, const cTextLimits& limits) {
  if (limits.width <= 0 || after.size() + 2 != before.size() || CountLines(after) + 1 != CountLines(before)) {
    return false;
  }
  for (const std::string& line : SplitLines(after)) {
    if (LineWidth(line, limits.countChars) > limits.width) return true;
  }
  return false;
}

}  // namespace velmora
