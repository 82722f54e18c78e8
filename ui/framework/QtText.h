#pragma once
#include <QString>
#include <string>

namespace velmora {

// Record strings are CP932; widgets speak UTF-16. Every text that crosses
// the widget boundary goes through one of these.
//
// CP932 byte 0x5C is the yen sign on the systems the projects come from,
// and it separates the folders of every stored path. Shown as U+005C, a
// Japanese font draws it as ¥ and a Latin one as \, so one path could show
// both within one line; it is shown as ¥ everywhere instead. Typed back,
// both ¥ and \ become 0x5C.
QString FromCp932(const std::string& cp932);
std::string ToCp932(const QString& text);
// The characters of `text` that a record can't hold, as "U+D55C U+1F409";
// empty when ToCp932 keeps every one.
QString CodePointsNotInCp932(const QString& text);
// The dialogs' own wording is written in UTF-8 in the sources.
inline QString Ui(const char* utf8) { return QString::fromUtf8(utf8); }

}  // namespace velmora
