#include "platform/TextCodec.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <mutex>

namespace velmora {
namespace {

// Bytes of a UTF-8 sequence, from its lead byte; 1 for anything else, so
// a stray byte is stepped over on its own.
size_t Utf8Length(unsigned char lead) {
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  if (lead >= 0xE0) return lead <= 0xEF ? 3 : 1;
  return lead >= 0xC2 && lead <= 0xDF ? 2 : 1;
}

// Converts `input`; a sequence that can't be converted is marked with '?'
// and stepped over by `step` bytes, and handed to `skipped` when given.
std::string Convert(std::string_view input, const char* to, const char* from, size_t (*step)(unsigned char),
                    std::string* skipped = nullptr) {
  iconv_t cd = ::iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1)) return std::string(input);
  std::string out;
  out.resize(input.size() * 4 + 4);
  char* in = const_cast<char*>(input.data());
  size_t inLeft = input.size();
  char* dst = out.data();
  size_t outLeft = out.size();
  while (inLeft > 0) {
    if (::iconv(cd, &in, &inLeft, &dst, &outLeft) != static_cast<size_t>(-1)) break;
    if (errno == E2BIG) break;  // cannot happen with the 4x buffer
    if (outLeft == 0) break;
    *dst++ = '?';
    --outLeft;
    const size_t length = std::min(step(static_cast<unsigned char>(*in)), inLeft);
    if (skipped) skipped->append(in, length);
    in += length;
    inLeft -= length;
  }
  out.resize(out.size() - outLeft);
  ::iconv_close(cd);
  return out;
}

size_t OneByte(unsigned char) { return 1; }

}  // namespace

std::string ToCp932(std::string_view utf8) { return Convert(utf8, "CP932", "UTF-8", OneByte); }

std::string NotInCp932(std::string_view utf8) {
  std::string skipped;
  Convert(utf8, "CP932", "UTF-8", Utf8Length, &skipped);
  return skipped;
}

std::string ToUtf8(std::string_view cp932) { return Convert(cp932, "UTF-8", "CP932", OneByte); }

bool IsCp932LeadByte(unsigned char byte) {
  return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

int Cp932CharCount(std::string_view cp932) {
  int count = 0;
  for (size_t i = 0; i < cp932.size(); ++i, ++count) {
    if (IsCp932LeadByte(static_cast<unsigned char>(cp932[i])) && i + 1 < cp932.size()) ++i;
  }
  return count;
}

}  // namespace velmora
