#include <QLineEdit>
#include <QListWidget>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "platform/TextCodec.h"
#include "ui/list/ListControl.h"

namespace velmora::testing {
namespace {

constexpr int kIdList = 3001;
constexpr int kIdNameEdit = 3002;

struct cNamed {
  std::string strName;
};

// A page in the usual shape: the list on the left, the working record's
// field beside it.
class cNamesPage : public cDialog {
 public:
  cNamesPage(cDialogManager& manager, std::vector<cNamed>& names) : cDialog(manager, nullptr) {
    edit.m_lpData = &names;
    edit.m_lpWork = &work;
    edit.m_RowText = [](int, const cNamed& n) { return n.strName; };
    m_form.rows = {
        {nullptr, cCustomDesc{kIdList, [](QWidget* parent) { return new QListWidget(parent); }}},
        {"名前", EditStrLine(kIdNameEdit, &work.strName, 16)},
    };
  }

  cListControl<cNamed>* list = nullptr;
  cListEdit<cNamed> edit;
  cNamed work;

 protected:
  void BindOwnControls() override {
    auto control = std::make_unique<cListControl<cNamed>>(*this, qobject_cast<QListWidget*>(Item(kIdList)), kIdList,
                                                          edit, 1, 1);
    list = control.get();
    AddControl(std::move(control));
  }
  void OnDialogCommand(int id, int) override { list->OnListCommand(id); }
  void OnCommand(uint32_t wParam, intptr_t lParam) override {
    cDialog::OnCommand(wParam, lParam);
    if (list) list->StoreIfFieldChanged(wParam);
  }
};

class ListControl : public ::testing::Test {
 protected:
  void SetUp() override {
    page.Create(0, true);
    Activate(page.Window());
    widget = qobject_cast<QListWidget*>(page.Item(kIdList));
    nameEdit = qobject_cast<QLineEdit*>(page.Item(kIdNameEdit));
    page.RefreshAll();
  }
  void TearDown() override { page.Close(0); }

  cDialogManager manager;
  std::vector<cNamed> names{{"a"}, {"b"}, {"c"}};
  cNamesPage page{manager, names};
  QListWidget* widget = nullptr;
  QLineEdit* nameEdit = nullptr;
};

TEST_F(ListControl, SelectionFillsTheFieldsAndAFieldEditRewritesTheRow) {
  ASSERT_EQ(widget->count(), 3);
  widget->setCurrentRow(1);
  EXPECT_EQ(nameEdit->text(), QStringLiteral("b"));
  nameEdit->selectAll();
  TypeText(nameEdit, QStringLiteral("bee"));
  EXPECT_EQ(names[1].strName, "bee");
  EXPECT_EQ(widget->item(1)->text(), QStringLiteral("bee"));
}

TEST_F(ListControl, KeysAndMenuChoicesRunOnlyWhileTheListHasTheFocus) {
  widget->setCurrentRow(0);
  widget->setFocus();
  ASSERT_TRUE(widget->hasFocus());
  page.list->OnKey(Qt::Key_C, true);
  page.list->OnKey(Qt::Key_V, true);
  ASSERT_EQ(names.size(), 4u);
  EXPECT_EQ(names[1].strName, "a");
  page.list->OnKey(Qt::Key_Delete, false);
  EXPECT_EQ(names.size(), 3u);

  page.list->choosePopup = [](const std::vector<cMenuItem>&, const QPoint&) { return 40042; };  // insert
  widget->setCurrentRow(2);
  EXPECT_TRUE(page.list->View().RightClick(widget->visualItemRect(widget->item(1)).center()));
  ASSERT_EQ(names.size(), 4u);
  EXPECT_EQ(names[1].strName, "");
  EXPECT_EQ(nameEdit->text(), QString());

  nameEdit->setFocus();
  page.list->OnKey(Qt::Key_Delete, false);
  EXPECT_EQ(names.size(), 4u);
  page.list->OnKey(Qt::Key_Z, true);
  EXPECT_EQ(names.size(), 4u);
}

}  // namespace
}  // namespace velmora::testing
