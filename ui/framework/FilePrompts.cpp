#include "ui/framework/FilePrompts.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "platform/HostPath.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr size_t kPathRoom = 260;

std::vector<std::string> SplitAtNul(const std::string& filter) {
  std::vector<std::string> parts;
  size_t start = 0;
  while (start < filter.size()) {
    const size_t end = filter.find('\0', start);
    if (end == std::string::npos) {
      parts.push_back(filter.substr(start));
      break;
    }
    parts.push_back(filter.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

// Stored paths hold the bytes that the host's file names have, as the file
// layer opens them; the dialogs see them in the host's file name encoding.
QString HostDir(const std::string& stored) {
  return stored.empty() ? QString() : QFile::decodeName(QByteArray::fromStdString(HostPath(stored)));
}

// A filter's label already names its patterns, as the author knows it;
// the patterns are not shown a second time behind it.
QFileDialog::Options PromptOptions() { return QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails; }

}  // namespace

// Relative when inside the project folder, since the project is the
// current directory and moves as a whole.
bool StoredPathOfHost(const QString& host, std::string& stored) {
  const QString relative = QDir::current().relativeFilePath(host);
  const bool inside = !relative.startsWith(QStringLiteral("..")) && !QDir::isAbsolutePath(relative);
  std::string candidate = StoredPath(QFile::encodeName(inside ? relative : host).toStdString());
  if (candidate.size() >= kPathRoom) return false;
  stored = std::move(candidate);
  return true;
}

std::string QtFilterOf(const std::string& filter) {
  const std::vector<std::string> parts = SplitAtNul(filter);
  std::string result;
  for (size_t i = 0; i + 1 < parts.size(); i += 2) {
    std::string patterns = parts[i + 1];
    for (char& c : patterns) {
      if (c == ';') c = ' ';
    }
    if (!result.empty()) result += ";;";
    result += parts[i] + " (" + patterns + ")";
  }
  return result;
}

int OpenFileDialog(QWidget* owner, std::string& buffer, const std::string& initialDir, const std::string& title,
                   const std::string& filter, const std::string& /*defaultExt*/, bool multi,
                   std::vector<std::string>* names) {
  buffer.clear();
  const QString caption = FromCp932(title);
  const QString dir = HostDir(initialDir);
  const QString qtFilter = FromCp932(QtFilterOf(filter));
  QStringList chosen;
  if (multi) {
    chosen = QFileDialog::getOpenFileNames(owner, caption, dir, qtFilter, nullptr, PromptOptions());
  } else {
    const QString one = QFileDialog::getOpenFileName(owner, caption, dir, qtFilter, nullptr, PromptOptions());
    if (!one.isEmpty()) chosen << one;
  }
  if (chosen.isEmpty() || !StoredPathOfHost(chosen.front(), buffer)) return 0;
  if (names) {
    for (const QString& path : chosen) {
      std::string stored;
      if (StoredPathOfHost(path, stored)) names->push_back(stored);
    }
  }
  return 1;
}

int SaveFileDialog(QWidget* owner, std::string& buffer, const std::string& initialDir, const std::string& title,
                   const std::string& filter, const std::string& defaultExt, bool keepName) {
  if (!keepName) buffer.clear();
  QFileDialog dialog(owner, FromCp932(title), HostDir(initialDir), FromCp932(QtFilterOf(filter)));
  dialog.setOptions(PromptOptions());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  if (!defaultExt.empty()) dialog.setDefaultSuffix(FromCp932(defaultExt));
  if (keepName && !buffer.empty()) dialog.selectFile(HostDir(buffer));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return 0;
  return StoredPathOfHost(dialog.selectedFiles().front(), buffer) ? 1 : 0;
}

int BrowseFolder(QWidget* owner, std::string& buffer, const std::string& startPath, const std::string& title) {
  buffer.clear();
  const QString start = QFileInfo(HostDir(startPath)).absoluteFilePath();
  const QString chosen = QFileDialog::getExistingDirectory(owner, FromCp932(title), start,
                                                           PromptOptions() | QFileDialog::ShowDirsOnly);
  if (chosen.isEmpty()) return 0;
  return StoredPathOfHost(chosen, buffer) ? 1 : 0;
}

}  // namespace velmora
