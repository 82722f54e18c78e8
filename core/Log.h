#pragma once
#include <string>

#include "core/Prompt.h"

namespace velmora {

// Two logs: the report log is always on and is reopened for every line so a
// crash loses nothing; the debug log is written only with the debug switch
// on, which this program leaves off. All texts and formats are CP932.

#define VELMORA_PRINTF(fmt, args) __attribute__((format(printf, fmt, args)))

// Creates the report log empty. False when it cannot be created: start-up
// ends on that.
bool OpenReportLog(const std::string& storedName);
void SetDebugLog(const std::string& storedName, bool enabled);
bool DebugSwitch();

void ReportLine(const char* format, ...) VELMORA_PRINTF(1, 2);
void ReportText(const char* text);
void ReportFormat(const char* format, ...) VELMORA_PRINTF(1, 2);
void ReportBoxFormat(const char* format, ...) VELMORA_PRINTF(1, 2);
void DebugText(const char* text);
void DebugFormat(const char* format, ...) VELMORA_PRINTF(1, 2);
void DebugBox(const char* format, ...) VELMORA_PRINTF(1, 2);
void ErrorBox(const char* format, ...) VELMORA_PRINTF(1, 2);
void ErrorBoxOwned(OwnerWindow owner, const char* format, ...) VELMORA_PRINTF(2, 3);
void ErrorBoxText(const char* text);

// The active window owns boxes that name no owner. The GUI keeps it current.
void SetActiveWindow(OwnerWindow window);

// Full stops: each forbids every later save and asks the application to end.
void StopOutOfMemory();
void StopNoResources();

enum class eBadIndexClose { PostRequest, DestroyAtOnce };
// The checked-access failure: reports "err V[..]" (or "err L[..]" for a
// list), forbids saving and closes the main window. The caller then gives
// element 0, or ends the process when there is none.
void BadIndex(char kind, int index, int count, int elementSize, eBadIndexClose close);

}  // namespace velmora
