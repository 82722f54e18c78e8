#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <gtest/gtest.h>

// Widget tests need one application object for the whole program; they run
// without a display.
//
// Each test program has a runtime folder of its own. The editor's
// single-instance lock lives there, so the tests neither wait for an editor
// the developer has open nor make that editor's next start ask about a
// second one; tests that want the question hold the lock themselves.
namespace {

class cQtEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    char runtime[] = "/tmp/velmora-tests-XXXXXX";
    if (mkdtemp(runtime)) {
      m_runtime = runtime;
      setenv("XDG_RUNTIME_DIR", runtime, 1);
    }
    static int argc = 1;
    static char name[] = "tests_ui";
    static char* argv[] = {name, nullptr};
    m_app = new QApplication(argc, argv);
  }
  void TearDown() override {
    delete m_app;
    m_app = nullptr;
    if (!m_runtime.empty()) std::filesystem::remove_all(m_runtime);
  }

 private:
  QApplication* m_app = nullptr;
  std::string m_runtime;
};

const auto* const g_environment = ::testing::AddGlobalTestEnvironment(new cQtEnvironment);

}  // namespace
