#include "inspect/JsonWriter.h"

#include <cinttypes>
#include <cstdio>
#include <cstring>

#include "platform/TextCodec.h"

namespace velmora::inspect {
namespace {

std::string Pad(int indent) { return std::string(static_cast<size_t>(indent) * 2, ' '); }

template <class T>
T ReadAs(const char* bytes) {
  T value;
  std::memcpy(&value, bytes, sizeof value);
  return value;
}

std::string ScalarText(const char* bytes, int size, eFieldKind kind) {
  char text[64];
  if (kind == eFieldKind::Float) {
    std::snprintf(text, sizeof text, "%.17g", size == 8 ? ReadAs<double>(bytes) : ReadAs<float>(bytes));
    return text;
  }
  if (kind == eFieldKind::Signed) {
    int64_t value = size == 1 ? ReadAs<int8_t>(bytes)
                    : size == 2 ? ReadAs<int16_t>(bytes)
                    : size == 4 ? ReadAs<int32_t>(bytes)
                                : ReadAs<int64_t>(bytes);
    std::snprintf(text, sizeof text, "%" PRId64, value);
    return text;
  }
  uint64_t value = size == 1 ? ReadAs<uint8_t>(bytes)
                   : size == 2 ? ReadAs<uint16_t>(bytes)
                   : size == 4 ? ReadAs<uint32_t>(bytes)
                               : ReadAs<uint64_t>(bytes);
  std::snprintf(text, sizeof text, "%" PRIu64, value);
  return text;
}


class cJsonNested : public cNestedVisitor {
 public:
  cJsonNested(std::string& out, int indent) : m_out(out), m_indent(indent) {}
  void BeginArray(const char* name) override {
    Key(name);
    m_out += "[";
    m_first = true;
  }
  void Element(const cSaveData& record) override {
    m_out.append(m_first ? "\n" : ",\n").append(Pad(m_indent + 2)).append(RecordJson(record, m_indent + 2));
    m_first = false;
  }
  void EndArray() override {
    if (!m_first) m_out.append("\n").append(Pad(m_indent + 1));
    m_out += "]";
  }
  void Child(const char* name, const cSaveData* record) override {
    Key(name);
    m_out += record ? RecordJson(*record, m_indent + 1) : "null";
  }
  void Numbers(const char* name, const std::vector<int64_t>& values) override {
    Key(name);
    m_out += "[";
    for (size_t i = 0; i < values.size(); ++i) m_out.append(i ? ", " : "").append(std::to_string(values[i]));
    m_out += "]";
  }
  void Texts(const char* name, const std::vector<std::string>& texts) override {
    Key(name);
    m_out += "[";
    for (size_t i = 0; i < texts.size(); ++i) m_out.append(i ? ", " : "").append(JsonString(ToUtf8(texts[i])));
    m_out += "]";
  }

 private:
  void Key(const char* name) { m_out.append(",\n").append(Pad(m_indent + 1)).append(JsonString(name)).append(": "); }
  std::string& m_out;
  int m_indent;
  bool m_first = true;
};

}  // namespace

std::string FieldValueText(const cSaveData& record, const cSaveField& field) {
  const char* base = reinterpret_cast<const char*>(&record) + field.offset;
  if (field.count == 1) return ScalarText(base, field.size, field.kind);
  std::string list = "[";
  for (int i = 0; i < field.count; ++i) {
    if (i) list += ", ";
    list += ScalarText(base + i * field.size, field.size, field.kind);
  }
  return list + "]";
}

std::string JsonString(const std::string& utf8) {
  std::string out = "\"";
  for (unsigned char c : utf8) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c < 0x20) {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", c);
      out += escaped;
    } else {
      out += static_cast<char>(c);
    }
  }
  return out + "\"";
}

std::string RecordJson(const cSaveData& record, int indent) {
  const cRecordLayout& layout = record.Layout(g_nAppVersion);
  std::string out = "{";
  bool first = true;
  auto key = [&](const char* name) {
    out.append(first ? "\n" : ",\n").append(Pad(indent + 1)).append(JsonString(name)).append(": ");
    first = false;
  };
  for (const cSaveField& field : layout.fields) {
    if (field.dropped) continue;
    key(field.name);
    out += FieldValueText(record, field);
  }
  for (const cSaveString& entry : layout.strings) {
    if (entry.dropped) continue;
    key(entry.name);
    const std::string* text = reinterpret_cast<const std::string*>(reinterpret_cast<const char*>(&record) + entry.offset);
    out += JsonString(ToUtf8(*text));
  }
  std::string nested;
  cJsonNested visitor(nested, indent);
  record.VisitNested(visitor);
  if (!nested.empty()) {
    // The visitor writes a separating comma before each key; the first one
    // is not needed when the record has no fields.
    out += first ? nested.substr(1) : nested;
    first = false;
  }
  if (!first) out.append("\n").append(Pad(indent));
  out += "}";
  return out;
}

}  // namespace velmora::inspect
