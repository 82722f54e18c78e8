#include "core/Log.h"

#include <cstdarg>
#include <cstdio>

#include "core/AppControl.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "platform/FileSystem.h"

namespace velmora {
namespace {

constexpr size_t kFormatLimit = 1024;

std::string g_reportLog;
std::string g_debugLog;
bool g_debugSwitch = false;
bool g_debugStarted = false;
OwnerWindow g_activeWindow = nullptr;

std::string FormatV(const char* format, va_list args) {
  char buffer[kFormatLimit];
  std::vsnprintf(buffer, sizeof buffer, format, args);
  return buffer;
}

// va_start can only run inside the variadic function itself, so the one
// shared formatting step has to be a macro.
#define FORMAT_ARGUMENTS(text, format) \
  std::string text;                    \
  do {                                 \
    va_list args;                      \
    va_start(args, format);            \
    text = FormatV(format, args);      \
    va_end(args);                      \
  } while (0)

void AppendLine(const std::string& file, const char* mode, const std::string& text) {
  if (file.empty()) return;
  std::FILE* out = OpenFile(file, mode);
  if (!out) return;
  std::fputs(text.c_str(), out);
  if (text.empty() || text.back() != '\n') std::fputc('\n', out);
  std::fclose(out);
}

void AppendReport(const std::string& text) { AppendLine(g_reportLog, "ab", text); }

void AppendDebug(const std::string& text) {
  if (!g_debugSwitch) return;
  AppendLine(g_debugLog, g_debugStarted ? "ab" : "wb", text);
  g_debugStarted = true;
}

void ShowError(OwnerWindow owner, const std::string& text) {
  Prompt().Ask(owner, SysText("エラー"), text, eButtons::Ok, eIcon::Error);
}

}  // namespace

bool OpenReportLog(const std::string& storedName) {
  g_reportLog = storedName;
  std::FILE* out = OpenFile(storedName, "wb");
  if (!out) return false;
  std::fclose(out);
  return true;
}

void SetDebugLog(const std::string& storedName, bool enabled) {
  g_debugLog = storedName;
  g_debugSwitch = enabled;
  g_debugStarted = false;
}

bool DebugSwitch() { return g_debugSwitch; }

void SetActiveWindow(OwnerWindow window) { g_activeWindow = window; }

void ReportLine(const char* format, ...) {
  FORMAT_ARGUMENTS(text, format);
  AppendReport(text);
}

void ReportText(const char* text) {
  AppendReport(text);
  AppendDebug(text);
}

void ReportFormat(const char* format, ...) {
  FORMAT_ARGUMENTS(text, format);
  AppendReport(text);
  AppendDebug(text);
}

void ReportBoxFormat(const char* format, ...) {
  FORMAT_ARGUMENTS(text, format);
  AppendReport(text);
  AppendDebug(text);
  ShowError(g_activeWindow, text);
}

void DebugText(const char* text) { AppendDebug(text); }

void DebugFormat(const char* format, ...) {
  if (!g_debugSwitch) return;
  FORMAT_ARGUMENTS(text, format);
  AppendDebug(text);
}

void DebugBox(const char* format, ...) {
  if (!g_debugSwitch) return;
  FORMAT_ARGUMENTS(text, format);
  ShowError(g_activeWindow, text);
}

void ErrorBox(const char* format, ...) {
  FORMAT_ARGUMENTS(text, format);
  ShowError(g_activeWindow, text);
}

void ErrorBoxOwned(OwnerWindow owner, const char* format, ...) {
  FORMAT_ARGUMENTS(text, format);
  ShowError(owner, text);
}

void ErrorBoxText(const char* text) { ShowError(g_activeWindow, text); }

void StopOutOfMemory() {
  ErrorBoxText(SysText("メモリが不足しています！"));
  g_bNoSave = 1;
  AppControl().PostCloseRequest();
}

void StopNoResources() {
  DebugBox("%s", SysText("システムリソース不足です！"));
  AppControl().Beep();
  g_bNoSave = 1;
  AppControl().PostCloseRequest();
}

void BadIndex(char kind, int index, int count, int elementSize, eBadIndexClose close) {
  char text[128];
  std::snprintf(text, sizeof text, "err %c[%d] ( %d , %d )", kind, index, count, elementSize);
  DebugText(text);
  AppendReport(text);
  g_bNoSave = 1;
  if (close == eBadIndexClose::DestroyAtOnce) AppControl().DestroyMainWindow();
  else AppControl().PostCloseRequest();
}

}  // namespace velmora
