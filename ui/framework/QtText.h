#pragma once
#include <QString>
#include <string>

namespace velmora {

// Record strings are CP932; widgets speak UTF-16. Every text that crosses
// the widget boundary goes through one of these.
QString FromCp932(const std::string& cp932);
std::string ToCp932(const QString& text);
// The dialogs' own wording is written in UTF-8 in the sources.
inline QString Ui(const char* utf8) { return QString::fromUtf8(utf8); }

}  // namespace velmora
