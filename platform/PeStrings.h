#pragma once
#include <cstdint>
#include <string>

#include "platform/FileBytes.h"

namespace velmora {

// The language a Windows program is asked for its strings in: neutral with
// the default sublanguage, which a program built for any one language
// answers with that language.
inline constexpr uint16_t kPeDefaultLanguage = 1024;

// String resource `id` of a Windows executable, read from its resource
// table by hand: the entry of kPeDefaultLanguage, else the first language
// the file has. False for a file that is no such executable, has no such
// string or is damaged anywhere on the way.
bool PeStringResource(cFileBytes& file, uint16_t id, std::u16string& out);

}  // namespace velmora
