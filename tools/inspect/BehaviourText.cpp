#include "inspect/BehaviourText.h"

#include <cstdlib>

#include "objects/Chara.h"
#include "objects/CmdSummary.h"
#include "objects/CondSummary.h"
#include "objects/FlowRows.h"
#include "objects/FlowTables.h"
#include "objects/GValInfo.h"
#include "objects/Item.h"
#include "objects/ObjectList.h"
#include "platform/TextCodec.h"

namespace velmora::inspect {
namespace {

void Row(std::string& out, int level, const char* tag, const std::string& cp932) {
  out.append(static_cast<size_t>(level) * 2, ' ');
  out += tag;
  if (!cp932.empty()) out += ' ' + ToUtf8(cp932);
  out += '\n';
}

void CommandRows(std::string& out, int level, const std::vector<cEdCmd>& cmds) {
  for (const cEdCmd& cmd : cmds) {
    Row(out, level, "cmd", CmdSummaryText(cmd));
    if (!cmd.m_pCondList) continue;
    for (const cEdCond& cond : cmd.m_pCondList->m_vCond) Row(out, level + 1, "cond", CondSummaryText(cond));
  }
}

void FlowRows(std::string& out, const cEdFlow& flow, int number) {
  Row(out, 1, ("flow " + std::to_string(number)).c_str(), FlowRowText(flow));
  Row(out, 2, "trigger", TriggerTable.Label(flow.m_nTrigger));
  if (!flow.m_strMemo.empty()) Row(out, 2, "memo", flow.m_strMemo);
  for (const cEdCond& cond : flow.m_vCond) Row(out, 2, "cond", CondSummaryText(cond));
  for (const cEdKeyCond& key : flow.m_vKeyCond) Row(out, 2, "key", KeyRowText(key));
  CommandRows(out, 2, flow.m_vCmd);
}

template <class tEntry>
void EntryRows(std::string& out, const std::vector<tEntry>* list, const char* tag, const cEntryFilter& filter,
               ePaletteList kind, void (*body)(std::string&, const tEntry&)) {
  if (!list || (filter.number != 0 && filter.list != kind)) return;
  // Element 0 is the blank entry, never shown.
  for (size_t i = 1; i < list->size(); ++i) {
    if (filter.number != 0 && static_cast<size_t>(filter.number) != i) continue;
    Row(out, 0, (std::string(tag) + " " + VarNumberText(static_cast<int>(i))).c_str(), (*list)[i].m_strName);
    body(out, (*list)[i]);
  }
}

void CharaBody(std::string& out, const cEdChara& chara) {
  SetObjectContext(eObjectContext::CharaEditor);
  for (size_t i = 0; i < chara.m_vFlow.size(); ++i) FlowRows(out, chara.m_vFlow[i], static_cast<int>(i) + 1);
}

// The item page lists its commands with no command dialog open.
void ItemBody(std::string& out, const cEdItem& item) {
  SetObjectContext(eObjectContext::ItemEditor);
  CommandRows(out, 1, item.m_vCmd);
}

}  // namespace

bool ParseEntryFilter(const std::string& text, cEntryFilter& filter) {
  const size_t colon = text.find(':');
  if (colon == std::string::npos) return false;
  const std::string kind = text.substr(0, colon);
  const std::string number = text.substr(colon + 1);
  if (kind != "chara" && kind != "item") return false;
  if (number.empty() || number.size() > 6 || number.find_first_not_of("0123456789") != std::string::npos) return false;
  filter.list = kind == "chara" ? ePaletteList::Chara : ePaletteList::Item;
  filter.number = std::atoi(number.c_str());
  return filter.number >= 1;
}

std::string BehaviourText(const cPaletteLists& lists, const cEntryFilter& filter) {
  std::string out;
  const eObjectContext context = CurrentObjectContext();
  EntryRows(out, lists.charas, "chara", filter, ePaletteList::Chara, &CharaBody);
  EntryRows(out, lists.items, "item", filter, ePaletteList::Item, &ItemBody);
  SetObjectContext(context);
  return out;
}

}  // namespace velmora::inspect
