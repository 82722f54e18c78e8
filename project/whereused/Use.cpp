#include "project/whereused/Use.h"

#include "core/SystemText.h"

namespace velmora {
namespace {

constexpr const char* kListLabels[] = {"ブロック", "キャラ", "アイテム"};

const char* ListLabel(ePaletteList list) { return SysText(kListLabels[static_cast<size_t>(list)]); }

void AppendNumbered(std::string& text, const char* label, int number) {
  if (number > 0) text += std::string(" ") + SysText(label) + " " + std::to_string(number);
}

void AppendName(std::string& text, const std::string& name) {
  text += SysText("「") + name + SysText("」");
}

std::string AreaText(const cUse& use) {
  std::string text;
  switch (use.area) {
    case eUseArea::Palette:
      text = std::string(SysText("パレット ")) + ListLabel(use.list) + " " + std::to_string(use.entry);
      AppendName(text, use.name);
      break;
    case eUseArea::Cell:
      text = std::string(SysText("セル ")) + "(" + std::to_string(use.x) + "," + std::to_string(use.y) + ") " +
             ListLabel(use.list);
      AppendName(text, use.name);
      break;
    case eUseArea::StageSettings:
      text = SysText("ステージ設定");
      break;
    case eUseArea::WorldMap:
      text = std::string(SysText("イベント ")) + std::to_string(use.entry);
      AppendName(text, use.name);
      AppendNumbered(text, "ページ", use.page);
      break;
    case eUseArea::System:
      text = SysText("システム設定");
      break;
    case eUseArea::Background:
      text = std::string(SysText("ステージ設定 背景 ")) + std::to_string(use.entry);
      break;
  }
  return text;
}

}  // namespace

std::string UsePlaceText(const cUse& use) {
  std::string text = AreaText(use);
  AppendNumbered(text, "フロー", use.flow);
  AppendNumbered(text, "コマンド", use.cmd);
  AppendNumbered(text, "条件", use.cond);
  return text;
}

std::string UseLineText(const std::string& file, const cUse& use) {
  return file + " " + UsePlaceText(use) + SysText(" ： ") + use.what;
}

}  // namespace velmora
