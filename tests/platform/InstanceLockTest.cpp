#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "core/DoubleStart.h"
#include "platform/InstanceLock.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

// Each test locks a name of its own inside its own runtime folder, so that
// an editor running on this machine never meets the tests' locks.
class InstanceLockTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const char* previous = std::getenv("XDG_RUNTIME_DIR");
    m_hadRuntime = previous != nullptr;
    if (previous) m_previousRuntime = previous;
    ::setenv("XDG_RUNTIME_DIR", project.Path().c_str(), 1);
  }
  void TearDown() override {
    if (m_hadRuntime) {
      ::setenv("XDG_RUNTIME_DIR", m_previousRuntime.c_str(), 1);
    } else {
      ::unsetenv("XDG_RUNTIME_DIR");
    }
  }
  testing::cTempProject project;
  bool m_hadRuntime = false;
  std::string m_previousRuntime;
};

TEST_F(InstanceLockTest, OneHolderAtATimeUntilReleased) {
  cInstanceLock first(kEditorLockName);
  EXPECT_FALSE(first.HeldElsewhere());
  EXPECT_EQ(project.Path() + "/velmora-エディター.lock", first.FilePath());
  {
    cInstanceLock second(kEditorLockName);
    EXPECT_TRUE(second.HeldElsewhere());
    cInstanceLock other("別の名前");
    EXPECT_FALSE(other.HeldElsewhere());
  }
  first.Release();
  cInstanceLock third(kEditorLockName);
  EXPECT_FALSE(third.HeldElsewhere());
}

TEST_F(InstanceLockTest, SecondStartAsksAndEndsOnNo) {
  testing::cScriptedPrompt prompt;
  cInstanceLock first(kEditorLockName);
  EXPECT_TRUE(ConfirmDoubleStart(first));
  EXPECT_TRUE(prompt.Shown().empty());

  cInstanceLock second(kEditorLockName);
  EXPECT_FALSE(ConfirmDoubleStart(second));
  ASSERT_EQ(1u, prompt.Shown().size());
  EXPECT_EQ("二重起動", prompt.Shown()[0].caption);
  EXPECT_EQ("既に起動しています。\n二重起動しますか？  ※非推奨。データの上書き保存に注意！\n", prompt.Shown()[0].text);
  EXPECT_EQ(eButtons::YesNo, prompt.Shown()[0].buttons);

  prompt.QueueAnswer(eAnswer::Yes);
  cInstanceLock third(kEditorLockName);
  EXPECT_TRUE(ConfirmDoubleStart(third));
}

}  // namespace
}  // namespace velmora
