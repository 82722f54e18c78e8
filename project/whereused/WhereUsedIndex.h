#pragma once
#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "project/whereused/Use.h"

namespace velmora {

// The uses of everything searchable across the project: the common
// palette, the newest file of every stage in data\stg4\, the world map's
// events and the system settings. It is built from the files and kept up
// to date by reading again only those that changed.
class cWhereUsedIndex {
 public:
  struct cFound {
    const std::string* file;  // stored path
    const cUse* use;
  };

  // Reads the files that are new or changed since the last update and
  // drops those that are gone; gives the number of files read. The stages
  // are all read again when the common palette or the database changed,
  // as their entries take inherited values and reference checks from them.
  int Update();

  // Every use of `target`, file by file in the order above and in the
  // order they stand in a file; with `onlyFile`, those in that file alone.
  std::vector<cFound> Find(const cUseTarget& target, const std::string& onlyFile = {}) const;

  // The files the last update could not read: each is listed, and the
  // search goes on without it.
  std::vector<std::string> UnreadableFiles() const;

 private:
  struct cFileUses {
    std::string path;
    cFileStamp stamp;
    bool readable = false;
    std::vector<cUse> uses;  // by target, then in file order
  };
  using cCollect = bool (*)(const std::string&, std::vector<cUse>&);

  bool Refresh(const std::string& path, cCollect collect, bool force, std::vector<cFileUses>& fresh);
  std::vector<cFileStamp> DependencyStamps() const;

  std::vector<cFileUses> m_files;
  std::vector<cFileStamp> m_dependencies;
};

}  // namespace velmora
