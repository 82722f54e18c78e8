#include "core/Prompt.h"

#include <cstdio>

#include "platform/TextCodec.h"

namespace velmora {
namespace {

class cQuietPrompt : public cPrompt {
 public:
  eAnswer Ask(OwnerWindow, const std::string& caption, const std::string& text, eButtons buttons,
              eIcon) override {
    std::fprintf(stderr, "[%s] %s\n", ToUtf8(caption).c_str(), ToUtf8(text).c_str());
    switch (buttons) {
      case eButtons::Ok: return eAnswer::Ok;
      case eButtons::OkCancel: return eAnswer::Cancel;
      case eButtons::YesNo: return eAnswer::No;
      case eButtons::YesNoCancel: return eAnswer::Cancel;
    }
    return eAnswer::Cancel;
  }
  bool OpenFile(OwnerWindow, const cFilePrompt&, std::string&) override { return false; }
  bool SaveFile(OwnerWindow, const cFilePrompt&, std::string&) override { return false; }
  bool BrowseFolder(OwnerWindow, const std::string&, std::string&) override { return false; }
};

cQuietPrompt g_quietPrompt;
cPrompt* g_prompt = &g_quietPrompt;

}  // namespace

cPrompt& Prompt() { return *g_prompt; }

void SetPrompt(cPrompt* prompt) { g_prompt = prompt ? prompt : &g_quietPrompt; }

}  // namespace velmora
