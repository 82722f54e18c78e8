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

namespace {

cFormRow BlockRow(cFormBlock::eKind kind, const char* title, std::vector<std::vector<cFormRow>> columns) {
  cFormRow row;
  row.block = std::make_shared<const cFormBlock>(cFormBlock{kind, title, std::move(columns)});
  return row;
}

void CollectControlRows(const std::vector<cFormRow>& rows, std::vector<const cFormRow*>& out) {
  for (const cFormRow& row : rows) {
    if (!row.block) {
      out.push_back(&row);
      continue;
    }
    for (const std::vector<cFormRow>& column : row.block->columns) CollectControlRows(column, out);
  }
}

}  // namespace

cFormRow FormGroup(const char* title, std::vector<cFormRow> rows) {
  return BlockRow(cFormBlock::kGroup, title, {std::move(rows)});
}

cFormRow FormColumns(std::vector<std::vector<cFormRow>> columns) {
  return BlockRow(cFormBlock::kColumns, nullptr, std::move(columns));
}

cFormRow FormScroll(std::vector<cFormRow> rows) { return BlockRow(cFormBlock::kScroll, nullptr, {std::move(rows)}); }

cFormRow FormRows(std::vector<cFormRow> rows) { return BlockRow(cFormBlock::kInline, nullptr, {std::move(rows)}); }

std::vector<cFormRow> RepeatRows(int count, const std::function<std::vector<cFormRow>(int index)>& make) {
  std::vector<cFormRow> rows;
  for (int index = 0; index < count; ++index) {
    for (cFormRow& row : make(index)) rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<const cFormRow*> ControlRows(const std::vector<cFormRow>& rows) {
  std::vector<const cFormRow*> out;
  CollectControlRows(rows, out);
  return out;
}

std::vector<std::string> SysTexts(std::initializer_list<const char*> utf8) {
  std::vector<std::string> texts;
  for (const char* text : utf8) texts.emplace_back(SysText(text));
  return texts;
}

}  // namespace velmora
