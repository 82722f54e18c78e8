#include "inspect/RecordFields.h"

#include <algorithm>
#include <unordered_map>

#include "inspect/JsonWriter.h"
#include "platform/TextCodec.h"

namespace velmora::inspect {
namespace {

void AppendFields(const cSaveData& record, const std::string& prefix, const std::vector<std::string_view>& skipped,
                  std::vector<cFieldText>& out);

class cFieldCollector : public cNestedVisitor {
 public:
  cFieldCollector(const std::string& prefix, const std::vector<std::string_view>& skipped, std::vector<cFieldText>& out)
      : m_prefix(prefix), m_skipped(skipped), m_out(out) {}
  void BeginArray(const char* name) override {
    m_array = name;
    m_index = 0;
  }
  void Element(const cSaveData& record) override {
    if (Skipped(m_array)) return;
    AppendFields(record, m_prefix + m_array + "[" + std::to_string(m_index++) + "].", {}, m_out);
  }
  void EndArray() override { m_array.clear(); }
  void Child(const char* name, const cSaveData* record) override {
    if (Skipped(name)) return;
    if (record) AppendFields(*record, m_prefix + name + ".", {}, m_out);
    else m_out.push_back({m_prefix + name, "null"});
  }
  void Numbers(const char* name, const std::vector<int64_t>& values) override {
    if (Skipped(name)) return;
    for (size_t i = 0; i < values.size(); ++i) m_out.push_back({Path(name, i), std::to_string(values[i])});
  }
  void Texts(const char* name, const std::vector<std::string>& texts) override {
    if (Skipped(name)) return;
    for (size_t i = 0; i < texts.size(); ++i) m_out.push_back({Path(name, i), JsonString(ToUtf8(texts[i]))});
  }

 private:
  bool Skipped(std::string_view name) const { return std::find(m_skipped.begin(), m_skipped.end(), name) != m_skipped.end(); }
  std::string Path(const char* name, size_t index) const { return m_prefix + name + "[" + std::to_string(index) + "]"; }

  const std::string& m_prefix;
  const std::vector<std::string_view>& m_skipped;
  std::vector<cFieldText>& m_out;
  std::string m_array;
  int m_index = 0;
};

void AppendFields(const cSaveData& record, const std::string& prefix, const std::vector<std::string_view>& skipped,
                  std::vector<cFieldText>& out) {
  const cRecordLayout& layout = record.Layout(g_nAppVersion);
  for (const cSaveField& field : layout.fields) {
    if (!field.dropped) out.push_back({prefix + field.name, FieldValueText(record, field)});
  }
  for (const cSaveString& entry : layout.strings) {
    if (entry.dropped) continue;
    const auto* text = reinterpret_cast<const std::string*>(reinterpret_cast<const char*>(&record) + entry.offset);
    out.push_back({prefix + entry.name, JsonString(ToUtf8(*text))});
  }
  cFieldCollector collector(prefix, skipped, out);
  record.VisitNested(collector);
}

}  // namespace

std::vector<cFieldText> RecordFields(const cSaveData& record, const std::vector<std::string_view>& skipped) {
  std::vector<cFieldText> fields;
  AppendFields(record, "", skipped, fields);
  return fields;
}

void DiffRecordFields(const std::string& head, const cSaveData& before, const cSaveData& after,
                      const std::vector<std::string_view>& skipped, std::vector<std::string>& lines) {
  const std::vector<cFieldText> was = RecordFields(before, skipped);
  const std::vector<cFieldText> is = RecordFields(after, skipped);
  std::unordered_map<std::string, const std::string*> isByPath;
  for (const cFieldText& field : is) isByPath.emplace(field.path, &field.value);
  std::unordered_map<std::string, bool> wasPaths;
  for (const cFieldText& field : was) {
    wasPaths.emplace(field.path, true);
    auto now = isByPath.find(field.path);
    const std::string newValue = now == isByPath.end() ? "(none)" : *now->second;
    if (newValue != field.value) lines.push_back(head + field.path + ": " + field.value + " -> " + newValue);
  }
  for (const cFieldText& field : is) {
    if (!wasPaths.count(field.path)) lines.push_back(head + field.path + ": (none) -> " + field.value);
  }
}

}  // namespace velmora::inspect
