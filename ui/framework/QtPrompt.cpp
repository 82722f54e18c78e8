#include "ui/framework/QtPrompt.h"

#include <QApplication>
#include <QMessageBox>

#include "ui/framework/FilePrompts.h"
#include "ui/framework/QtText.h"
#include "ui/framework/StockDialogs.h"
#include "ui/framework/WindowStyle.h"

namespace velmora {
namespace {

QWidget* WidgetOf(OwnerWindow owner) {
  return const_cast<QWidget*>(static_cast<const QWidget*>(owner));
}

struct cButtonSet {
  eButtons buttons;
  QMessageBox::StandardButtons standard;
  QMessageBox::StandardButton safe;  // Escape and the close box
};

constexpr cButtonSet kButtonSets[] = {
    {eButtons::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {eButtons::OkCancel, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel},
    {eButtons::YesNo, QMessageBox::Yes | QMessageBox::No, QMessageBox::No},
    {eButtons::YesNoCancel, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel},
};

QMessageBox::Icon IconOf(eIcon icon) {
  switch (icon) {
    case eIcon::Error: return QMessageBox::Critical;
    case eIcon::Warning: return QMessageBox::Warning;
    case eIcon::Question: return QMessageBox::Question;
    case eIcon::Information: return QMessageBox::Information;
    case eIcon::None: break;
  }
  return QMessageBox::NoIcon;
}

eAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes: return eAnswer::Yes;
    case QMessageBox::No: return eAnswer::No;
    case QMessageBox::Ok: return eAnswer::Ok;
    default: return eAnswer::Cancel;
  }
}

}  // namespace

eAnswer cQtPrompt::Ask(OwnerWindow owner, const std::string& caption, const std::string& text, eButtons buttons,
                       eIcon icon) {
  const cButtonSet& set = kButtonSets[static_cast<int>(buttons)];
  QMessageBox box(IconOf(icon), FromCp932(caption), FromCp932(text), set.standard, WidgetOf(owner),
                  WindowFlagsOf(eWindowStyle::SmallDialog));
  box.setEscapeButton(set.safe);
  return AnswerOf(box.exec());
}

bool cQtPrompt::OpenFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) {
  return OpenFileDialog(WidgetOf(owner), path, request.folder, request.title, request.filter, request.defaultExt,
                        false, nullptr) == 1;
}

bool cQtPrompt::OpenFiles(OwnerWindow owner, const cFilePrompt& request, std::vector<std::string>& paths) {
  std::string first;
  return OpenFileDialog(WidgetOf(owner), first, request.folder, request.title, request.filter, request.defaultExt,
                        true, &paths) == 1;
}

bool cQtPrompt::SaveFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) {
  path = request.initialName;
  return SaveFileDialog(WidgetOf(owner), path, request.folder, request.title, request.filter, request.defaultExt,
                        !request.initialName.empty()) == 1;
}

bool cQtPrompt::BrowseFolder(OwnerWindow owner, const std::string& title, std::string& path) {
  const std::string start = path;
  return velmora::BrowseFolder(WidgetOf(owner), path, start, title) == 1;
}

void cQtPrompt::ShowMessageWindow(OwnerWindow owner, const std::string& caption, const std::string& text) {
  velmora::ShowMessageWindow(WidgetOf(owner), m_manager, text, caption, true);
}

void cQtPrompt::CloseMessageWindow() { velmora::CloseMessageWindow(); }

}  // namespace velmora
