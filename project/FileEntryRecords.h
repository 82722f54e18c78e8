#pragma once
#include <cstdint>
#include <string>

#include "core/SaveData.h"

namespace velmora {

// Files from before version 153 hold a "same as the file name" flag that
// was never meant: it is dropped on load.
void DropNameFromFileOfOldFiles(int32_t& flag);

// An entry of the database that names a file: pictures, sounds and music.
class cEdFileEntry : public cSaveData {
 public:
  std::string m_strName;
  int32_t m_bNameFromFile = 0;
  std::string m_strPath;

  void Load(cDataFile& file) override;

 protected:
  void Register(uint32_t version) override;
};

class cEdPicture : public cEdFileEntry {
 public:
  cEdPicture() { Reset(); }
};

class cEdSound : public cEdFileEntry {
 public:
  cEdSound() { Reset(); }
};

class cEdBgm : public cEdFileEntry {
 public:
  int32_t m_iVolume = 100;  // percent

  cEdBgm() { SetUp(); }
  void SetUp();

 protected:
  void Register(uint32_t version) override;
};

// A character's own bitmap, optionally of a giant character spanning
// m_iHugeSize × m_iHugeSize chara cells.
class cEdCharaBmp : public cSaveData {
 public:
  std::string m_strName;
  int32_t m_bNameFromFile = 0;
  std::string m_strPath;
  int32_t m_bHuge = 0;
  int32_t m_iHugeSize = 2;

  cEdCharaBmp() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
