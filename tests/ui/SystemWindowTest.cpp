#include <QApplication>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>

#include "SystemSheetFixture.h"
#include "core/SystemText.h"
#include "ui/system/FontPreview.h"

namespace velmora::testing {
namespace {

using SystemWindow = cSystemSheetTest;

TEST_F(SystemWindow, ThePreviewDrawsTheChosenFaceOrSaysWhichStandsIn) {
  Run([&](cSystemSheet&) {
    auto* preview = dynamic_cast<cFontPreview*>(Show(0, kIdFontPreview));
    ASSERT_NE(preview, nullptr);
    Key(0, kIdFont, Qt::Key_Home);
    EXPECT_EQ(preview->findChild<QLabel*>()->font().family(), QStringLiteral("System"));
    preview->ShowFace(QFontDatabase::families().front());
    EXPECT_FALSE(preview->ShowsStandIn());
    preview->ShowFace(QStringLiteral("No Such Face Anywhere"));
    EXPECT_TRUE(preview->ShowsStandIn());
  }, false);
}

}  // namespace
}  // namespace velmora::testing
