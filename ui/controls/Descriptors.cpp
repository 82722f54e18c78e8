#include "ui/controls/Descriptors.h"

#include <algorithm>
#include <cstring>

#include "core/SystemText.h"

namespace velmora {

std::string cTextField::Get() const {
  if (m_pString) return *m_pString;
  if (!m_pBuffer) return std::string();
  return std::string(m_pBuffer, strnlen(m_pBuffer, m_nBufferSize));
}

void cTextField::Set(const std::string& cp932) const {
  if (m_pString) {
    *m_pString = cp932;
  } else if (m_pBuffer && m_nBufferSize > 0) {
    const size_t length = std::min(cp932.size(), m_nBufferSize - 1);
    std::memcpy(m_pBuffer, cp932.data(), length);
    m_pBuffer[length] = '\0';
  }
}

cEditStrDesc EditStrLine(int id, cTextField field, int limit, bool countChars) {
  cEditStrDesc desc;
  desc.id = id;
  desc.field = field;
  desc.byteLimit = limit;
  desc.width = countChars ? limit : 0;
  desc.lineLimit = 1;
  desc.countChars = countChars;
  return desc;
}

int DescriptorId(const cControlDesc& desc) {
  return std::visit([](const auto& d) { return d.id; }, desc);
}

std::vector<std::string> SysTexts(std::initializer_list<const char*> utf8) {
  std::vector<std::string> texts;
  for (const char* text : utf8) texts.emplace_back(SysText(text));
  return texts;
}

}  // namespace velmora
