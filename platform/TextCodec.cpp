#include "platform/TextCodec.h"

#include <iconv.h>

#include <cerrno>
#include <mutex>

namespace velmora {
namespace {

std::string Convert(std::string_view input, const char* to, const char* from) {
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
    // An invalid or incomplete sequence: mark it and step over one byte.
    if (outLeft == 0) break;
    *dst++ = '?';
    --outLeft;
    ++in;
    --inLeft;
  }
  out.resize(out.size() - outLeft);
  ::iconv_close(cd);
  return out;
}

}  // namespace

std::string ToCp932(std::string_view utf8) { return Convert(utf8, "CP932", "UTF-8"); }

std::string ToUtf8(std::string_view cp932) { return Convert(cp932, "UTF-8", "CP932"); }

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
