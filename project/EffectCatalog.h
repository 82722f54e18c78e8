#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

// One of the five parameters of a character or screen effect kind. An
// empty label marks an unused slot (its limits and default are 0).
struct cEffectParamDef {
  std::string m_strLabel;  // CP932
  int16_t m_sMin = 0;
  int16_t m_sMax = 0;
  int16_t m_sDefault = 0;
};

// What the five numbers of an effect record mean for each kind. Kind 0 is
// the nameless kind of a list's reserved entry; the named kinds start at 1.
class cEffectCatalog {
 public:
  static constexpr int kParamCount = 5;

  struct cKind {
    std::string name;  // CP932
    std::string note;  // CP932, two lines
    cEffectParamDef params[kParamCount];
  };

  explicit cEffectCatalog(std::vector<cKind> kinds) : m_vecKinds(std::move(kinds)) {}

  // Kinds including kind 0.
  int KindCount() const { return static_cast<int>(m_vecKinds.size()); }
  // Empty for kind 0 and for a kind that no table knows, as a file may hold.
  const std::string& Name(int kind) const;
  const std::string& Note(int kind) const;
  // The empty slot for an unknown kind or slot.
  const cEffectParamDef& Param(int kind, int slot) const;
  // The names a choice box offers: line n stands for kind n + 1.
  std::vector<std::string> ChoiceNames() const;
  // The values a kind starts with when chosen: each slot's default.
  void FillDefaults(int kind, int32_t (&params)[kParamCount]) const;

 private:
  const cKind* Find(int kind) const;
  std::vector<cKind> m_vecKinds;
};

const cEffectCatalog& CharaEffectCatalog();
const cEffectCatalog& ScrEffectCatalog();

}  // namespace velmora
