#pragma once
#include <string>
#include <string_view>

namespace velmora {

// Every record and every system text is a CP932 byte string. Sources are
// UTF-8, so the system's own texts pass through ToCp932 once where they are
// used; the user interface turns CP932 back into UTF-8 at its boundary.
// Bytes that cannot be converted become '?' rather than being dropped, so a
// length never shrinks silently.
std::string ToCp932(std::string_view utf8);
std::string ToUtf8(std::string_view cp932);

// The characters of `utf8` that CP932 has no code for, in UTF-8 and in
// order; empty when the whole text converts.
std::string NotInCp932(std::string_view utf8);

// A CP932 lead byte starts a two-byte character.
bool IsCp932LeadByte(unsigned char byte);

// Characters, not bytes: a two-byte character counts as one.
int Cp932CharCount(std::string_view cp932);

}  // namespace velmora
