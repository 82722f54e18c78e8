#include <QApplication>
#include <cstdlib>
#include <gtest/gtest.h>

// Widget tests need one application object for the whole program; they run
// without a display.
namespace {

class cQtEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static int argc = 1;
    static char name[] = "tests_ui";
    static char* argv[] = {name, nullptr};
    m_app = new QApplication(argc, argv);
  }
  void TearDown() override {
    delete m_app;
    m_app = nullptr;
  }

 private:
  QApplication* m_app = nullptr;
};

const auto* const g_environment = ::testing::AddGlobalTestEnvironment(new cQtEnvironment);

}  // namespace
