#pragma once
#include <QString>
#include <string>
#include <vector>

class QWidget;

namespace velmora {

// File and folder prompts over the platform's dialogs. Folders and answers
// are stored paths in CP932 (backslashes); a filter is "label\0pattern\0"
// pairs as one string, patterns separated by ";". Each gives 1 on OK, 0
// when the author cancels or the answer doesn't fit a 260-byte path.

int OpenFileDialog(QWidget* owner, std::string& buffer, const std::string& initialDir, const std::string& title,
                   const std::string& filter, const std::string& defaultExt, bool multi,
                   std::vector<std::string>* names);
int SaveFileDialog(QWidget* owner, std::string& buffer, const std::string& initialDir, const std::string& title,
                   const std::string& filter, const std::string& defaultExt, bool keepName);
int BrowseFolder(QWidget* owner, std::string& buffer, const std::string& startPath, const std::string& title);

// A host path, chosen in a prompt or dropped from the desktop, as the
// stored path that records keep: relative to the project folder when it
// lies inside it. False when it doesn't fit a 260-byte path.
bool StoredPathOfHost(const QString& host, std::string& stored);

// The Qt form of a filter: "label (patterns)" entries joined by ";;".
std::string QtFilterOf(const std::string& filter);

}  // namespace velmora
