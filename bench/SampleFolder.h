#pragma once
#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <string>

#include "sample/SampleProject.h"

namespace velmora::bench {

// The sample project in a folder of its own under the temporary folder,
// made the current directory as the editor wants its project; removed
// again at the end.
class cSampleFolder {
 public:
  explicit cSampleFolder(const char* name)
      : m_folder(QDir::temp().filePath(QStringLiteral("velmora-bench-%1-%2")
                                           .arg(QString::fromUtf8(name))
                                           .arg(QCoreApplication::applicationPid()))) {
    std::string error;
    m_bMade = sample::MakeSampleProject(m_folder.toStdString(), false, error);
    if (!m_bMade) std::fprintf(stderr, "sample project: %s\n", error.c_str());
    else QDir::setCurrent(m_folder);
  }
  ~cSampleFolder() {
    QDir::setCurrent(QDir::tempPath());
    QDir(m_folder).removeRecursively();
  }
  cSampleFolder(const cSampleFolder&) = delete;
  cSampleFolder& operator=(const cSampleFolder&) = delete;
  bool Made() const { return m_bMade; }

 private:
  QString m_folder;
  bool m_bMade = false;
};

}  // namespace velmora::bench
