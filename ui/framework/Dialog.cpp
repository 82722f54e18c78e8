#include "ui/framework/Dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSlider>
#include <QStatusBar>
#include <QTabWidget>

#include "core/AppControl.h"
#include "core/Log.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "ui/controls/Button.h"
#include "ui/controls/Combo.h"
#include "ui/controls/EditStr.h"
#include "ui/controls/EditVal.h"
#include "ui/controls/EditWidgets.h"
#include "ui/controls/FormLayout.h"
#include "ui/controls/Picture.h"
#include "ui/controls/ScrollBar.h"
#include "ui/controls/Slider.h"
#include "ui/controls/SoundPreviewButton.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogManager.h"
#include "ui/framework/DialogWindow.h"
#include "ui/framework/Hook.h"
#include "ui/framework/QtText.h"
#include "ui/framework/Sheet.h"

namespace velmora {

cDialog::cDialog(cDialogManager& manager, QWidget* parent) : m_manager(manager), m_pParent(parent) {}

cDialog::~cDialog() {
  DestroyControls();
  if (m_pWindow) {
    // Forgetting the window clears the pointer; the window itself goes too.
    cDialogWindow* window = m_pWindow.data();
    window->Detach();
    OnWindowDestroyed();
    delete window;
  }
}

QWidget* cDialog::Window() const { return m_pWindow.data(); }

// ---- opening and closing ----

void cDialog::BuildWindow(QWidget* parent, bool asPage) {
  m_pWindow = new cDialogWindow(*this, parent, asPage);
  m_pWindow->setProperty("DLG_CLASS", QVariant::fromValue(reinterpret_cast<quintptr>(this)));
  if (!m_title.isEmpty()) m_pWindow->setWindowTitle(m_title);
  if (!asPage) ApplyWindowStyle(*m_pWindow, m_style);
  // A small dialog is as wide as its title needs, whatever its content.
  if (!asPage && m_style == eWindowStyle::SmallDialog) m_pWindow->Client()->setMinimumWidth(TitleFitWidth(m_title));
  BuildClient(*m_pWindow->Client());
  if (m_bWantToolBar) m_pWindow->ToolBar();
  if (m_bWantStatusBar) {
    QStatusBar* bar = m_pWindow->StatusBar();
    for (size_t part = 0; part < m_vecStatusParts.size(); ++part) {
      auto* label = new QLabel(bar);
      label->setMinimumWidth(m_vecStatusParts[part]);
      m_pWindow->Items().Set(-1 - static_cast<int>(part), label);
      bar->addWidget(label, part + 1 == m_vecStatusParts.size() ? 1 : 0);
    }
  }
}

void cDialog::BuildClient(QWidget& client) { LayoutForm(m_form, client, m_pWindow->Items()); }

void cDialog::HideOrDisableOthers(bool restore) {
  if (m_nModalFlags & kHideOthers) ShowAll(m_manager, restore);
  if (m_nModalFlags & kDisableOthers) EnableAll(m_manager, restore);
}

bool cDialog::Create(int flags, bool show) {
  if (m_pWindow) return true;
  m_nResult = 0;
  m_bModeless = true;
  m_nModalFlags = flags;
  HideOrDisableOthers(false);
  BuildWindow(m_pParent, false);
  if (!m_pWindow) {
    StopNoResources();
    return false;
  }
  OnInitDialog();
  if (show) m_pWindow->show();
  return true;
}

int cDialog::DoModal(int flags) {
  m_bModeless = false;
  m_nModalFlags = flags;
  m_nResult = 0;
  const bool hookBefore = cHook::IsInstalled();
  HideOrDisableOthers(false);
  BuildWindow(m_pParent, false);
  m_pWindow->setModal(true);
  m_bClosed = false;
  OnInitDialog();
  if (m_pWindow && !m_bClosed) {
    m_bInModalLoop = true;
    m_pWindow->exec();
    m_bInModalLoop = false;
  }
  HideOrDisableOthers(true);
  if (m_pWindow) delete m_pWindow.data();
  if (!hookBefore) cHook::Uninstall();
  return m_nResult;
}

bool cDialog::CreatePage(QWidget* sheetWindow, bool modeless) {
  m_bModeless = modeless;
  m_nModalFlags = 0;
  m_nResult = 0;
  BuildWindow(sheetWindow, true);
  OnInitDialog();
  return m_pWindow != nullptr;
}

void cDialog::Close(int result) {
  m_nResult = result;
  m_bClosed = true;
  DestroyControls();
  if (!m_pWindow) return;
  if (!m_bModeless && m_nWindowKind == kStandAlone) {
    // The modal loop's caller deletes the window when the loop returns.
    if (m_bInModalLoop) m_pWindow->done(result);
    return;
  }
  // A modeless window goes at once; events still under way for it are
  // dropped with it.
  cDialogWindow* window = m_pWindow.data();
  window->Detach();
  OnWindowDestroyed();
  window->hide();
  window->deleteLater();
}

void cDialog::OnWindowDestroyed() {
  if (!m_pWindow && !m_bSetUp) return;
  DestroyControls();
  if (m_pWindow) cHook::Unregister(m_pWindow);
  if (m_bModeless && m_bSetUp) m_manager.Remove(this);
  m_pWindow = nullptr;
  m_bSetUp = false;
  m_bGeometryDone = false;
  m_bInCommand = false;
  m_bUpdating = false;
  m_pHorzBar = m_pVertBar = nullptr;
}

void cDialog::DestroyControls() { m_vecControl.clear(); }

// ---- set-up ----

void cDialog::InitBase() {
  m_bRightLatch = !(QGuiApplication::mouseButtons() & Qt::RightButton);
  if (m_bWantScrollBars) {
    QGridLayout* body = m_pWindow->Body();
    auto* horz = new QScrollBar(Qt::Horizontal, m_pWindow);
    auto* vert = new QScrollBar(Qt::Vertical, m_pWindow);
    horz->setFocusPolicy(Qt::NoFocus);
    vert->setFocusPolicy(Qt::NoFocus);
    // The bars run along the drawing area, however short it is.
    horz->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    vert->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    body->addWidget(horz, 1, 0);
    body->addWidget(vert, 0, 1);
    m_pWindow->Items().Set(kIdHorzScroll, horz);
    m_pWindow->Items().Set(kIdVertScroll, vert);
    auto addBar = [this](QScrollBar* bar, int id) {
      auto control = std::make_unique<cScrollBar>(*this, bar, id);
      cScrollBar* raw = control.get();
      QObject::connect(bar, &QScrollBar::valueChanged, m_pWindow->Client(), [this] {
        if (m_pWindow) m_pWindow->Client()->update();
      });
      AddControl(std::move(control));
      return raw;
    };
    m_pHorzBar = addBar(horz, kIdHorzScroll);
    m_pVertBar = addBar(vert, kIdVertScroll);
  }
  cHook::Install();
  cHook::Register(m_pWindow, this, m_bModeless);
  ReadMouse(false);
  UpdateGeometry();
}

void cDialog::OnInitDialog() {
  InitBase();
  // The pages of a modeless sheet are open windows too: their accelerators
  // and idle calls come through the manager like any window's.
  if (m_bModeless) m_manager.Add(this);
  // The placeholder stays as the window's focus target but shows nothing.
  auto* placeholder = new QWidget(m_pWindow->Client());
  placeholder->setFixedSize(0, 0);
  placeholder->setFocusPolicy(Qt::StrongFocus);
  m_pWindow->Items().Set(kIdPlaceholder, placeholder);
  BindControls(m_form);
  BindOwnControls();
  RefreshAll();
  UpdateEnables();
  m_bSetUp = true;
}

namespace {

// The order in which a dialog binds its kinds of controls.
enum eDescIndex {
  kDescButton, kDescEditVal, kDescEditStr, kDescPicture, kDescCheck, kDescCombo, kDescSlider, kDescStatic,
  kDescCustom, kDescSoundPreview,
};
constexpr eDescIndex kBindOrder[] = {kDescEditVal, kDescEditStr, kDescCheck,  kDescCombo,
                                     kDescButton,  kDescSoundPreview, kDescSlider, kDescPicture};

}  // namespace

void cDialog::BindControls(const cForm& form) {
  std::vector<cButtonDesc> buttons;
  if (form.okCancel) buttons = {{kIdOk, ""}, {kIdCancel, ""}};
  const std::vector<const cFormRow*> rows = ControlRows(form.rows);
  for (eDescIndex kind : kBindOrder) {
    for (const cFormRow* rowPointer : rows) {
      const cFormRow& row = *rowPointer;
      if (row.control.index() != static_cast<size_t>(kind)) continue;
      const int id = DescriptorId(row.control);
      QWidget* widget = Item(id);
      if (!widget) {
        Control(id);  // reports the id that the window lacks
        continue;
      }
      switch (kind) {
        case kDescButton:
          AddControl(std::make_unique<cButton>(*this, qobject_cast<QAbstractButton*>(widget),
                                               std::get<cButtonDesc>(row.control)));
          break;
        case kDescEditVal: {
          const auto& desc = std::get<cEditValDesc>(row.control);
          auto edit = std::make_unique<cEditVal>(*this, static_cast<cLineEdit*>(widget), desc);
          if (desc.spinId != 0 && Item(desc.spinId)) {
            auto spin = std::make_unique<cSpin>(*this, Item(desc.spinId), desc.spinId, desc.id, desc.minimum,
                                                desc.maximum);
            edit->SetSpin(spin.get());
            AddControl(std::move(edit));
            AddControl(std::move(spin));
          } else {
            AddControl(std::move(edit));
          }
          break;
        }
        case kDescEditStr:
          AddControl(std::make_unique<cEditStr>(*this, widget, std::get<cEditStrDesc>(row.control)));
          break;
        case kDescPicture:
          AddControl(std::make_unique<cPicture>(*this, static_cast<cPictureView*>(widget),
                                                std::get<cPictureDesc>(row.control)));
          break;
        case kDescCheck:
          AddControl(std::make_unique<cCheck>(*this, qobject_cast<QAbstractButton*>(widget),
                                              std::get<cCheckDesc>(row.control)));
          break;
        case kDescCombo:
          AddControl(std::make_unique<cCombo>(*this, qobject_cast<QComboBox*>(widget),
                                              std::get<cComboDesc>(row.control)));
          break;
        case kDescSlider:
          AddControl(std::make_unique<cSlider>(*this, qobject_cast<QSlider*>(widget),
                                               std::get<cSliderDesc>(row.control)));
          break;
        case kDescSoundPreview:
          AddControl(std::make_unique<cSoundPreviewButton>(*this, qobject_cast<QAbstractButton*>(widget),
                                                           std::get<cSoundPreviewDesc>(row.control)));
          break;
        case kDescStatic:
        case kDescCustom: break;
      }
    }
    if (kind == kDescButton) {
      for (const cButtonDesc& desc : buttons) {
        if (auto* button = qobject_cast<QAbstractButton*>(Item(desc.id))) {
          AddControl(std::make_unique<cButton>(*this, button, desc));
        }
      }
    }
  }
}

void cDialog::AddControl(std::unique_ptr<cControl> control) { m_vecControl.push_back(std::move(control)); }

cControl* cDialog::FindControl(int id) const {
  for (const auto& control : m_vecControl) {
    if (control->Id() == id) return control.get();
  }
  return nullptr;
}

cControl* cDialog::Control(int id) const {
  if (cControl* control = FindControl(id)) return control;
  DebugBox(SysText("コントロールID 【%u】 が見つかりません！"), static_cast<unsigned>(id));
  g_bNoSave = 1;
  AppControl().DestroyMainWindow();
  return nullptr;
}

QWidget* cDialog::Item(int id) const { return m_pWindow ? m_pWindow->Items().Get(id) : nullptr; }

void cDialog::EnableControl(int id, bool enable) {
  if (cControl* control = FindControl(id)) control->Enable(enable);
  else if (QWidget* item = Item(id)) item->setEnabled(enable);
}

bool cDialog::IsChecked(int id) const {
  const cCheck* check = FindControlOf<cCheck>(id);
  return check && check->IsChecked();
}

void cDialog::SetItemText(int id, const std::string& cp932) {
  if (auto* label = qobject_cast<QLabel*>(Item(id))) label->setText(FromCp932(cp932));
}

// ---- fields ----

void cDialog::ApplyAll() {
  for (const auto& control : m_vecControl) control->Commit();
}

void cDialog::RefreshAll() { RefreshOthers(0); }

void cDialog::RefreshOthers(int id) {
  m_bUpdating = true;
  for (const auto& control : m_vecControl) {
    if (id == 0 || control->Id() != id) control->Refresh();
  }
  m_bUpdating = false;
}

int cDialog::FindChanged(uint32_t wParam) const {
  const int id = CommandId(wParam);
  const int notice = CommandNotice(wParam);
  const cControl* control = FindControl(id);
  if (!control) return 0;
  switch (control->Kind()) {
    case eControlKind::Button: return notice == kNoticeClicked ? id : 0;
    case eControlKind::EditVal:
    case eControlKind::EditStr: return notice == kNoticeEditUpdate ? id : 0;
    case eControlKind::Check:
    case eControlKind::Slider: return id;
    case eControlKind::Combo: return notice == kNoticeSelChange ? id : 0;
    default: return 0;
  }
}

void cDialog::DispatchControlCommand(uint32_t wParam, intptr_t /*lParam*/) {
  const int id = CommandId(wParam);
  const int notice = CommandNotice(wParam);
  for (const auto& control : m_vecControl) {
    if (control->Id() != id) continue;
    switch (control->Kind()) {
      case eControlKind::EditVal:
      case eControlKind::EditStr:
      case eControlKind::List:
        if (notice == kNoticeEditUpdate || notice == kNoticeSelChange) control->OnChange();
        else if (notice == kNoticeKillFocus) control->OnKillFocus();
        break;
      case eControlKind::Combo:
        if (notice == kNoticeSelChange) control->OnChange();
        break;
      default: break;
    }
  }
  for (const auto& control : m_vecControl) {
    if (control->Kind() != eControlKind::List) continue;
    if (control->Widget()) control->Widget()->setUpdatesEnabled(false);
    control->OnAfterCommand();
  }
}

void cDialog::RedrawLists() {
  for (const auto& control : m_vecControl) {
    if (control->Kind() == eControlKind::List) control->OnRedraw();
  }
}

// ---- commands ----

void cDialog::SendCommand(uint32_t wParam, intptr_t lParam) {
  // A command that a handler sends to its own dialog would run the handler
  // inside itself; it is dropped.
  if (m_bInCommand) return;
  m_bInCommand = true;
  OnCommand(wParam, lParam);
  m_bInCommand = false;
  if (m_nWindowKind == kPage && m_pSheet) m_pSheet->PageChanged(this);
}

void cDialog::OnCommand(uint32_t wParam, intptr_t lParam) {
  DispatchControlCommand(wParam, lParam);
  const int id = CommandId(wParam);
  if (id == kIdOk && m_nWindowKind == kStandAlone) {
    ApplyAll();
    if (OnApply()) Close(1);
    return;
  }
  if (id == kIdCancel && m_nWindowKind == kStandAlone) {
    Close(0);
    return;
  }
  if (!OfferToControls(id)) OnDialogCommand(id, CommandNotice(wParam));
  if (IsOpen() && FindChanged(wParam) != 0) UpdateEnables();
}

bool cDialog::OfferToControls(int id) {
  for (size_t i = 0; i < m_vecControl.size(); ++i) {
    if (m_vecControl[i]->TakeCommand(id)) return true;
  }
  return false;
}

void cDialog::Notify(int id, const cNotice& notice) {
  for (const auto& control : m_vecControl) {
    if (control->OnNotify(id, notice)) return;
  }
}

void cDialog::Scroll(QObject* bar, int action) {
  for (const auto& control : m_vecControl) {
    if (control->OnScroll(bar, action)) return;
  }
}

void cDialog::SetAccel(int focusId, cAccelTable table) { m_vecAccel.push_back({focusId, std::move(table)}); }

}  // namespace velmora
