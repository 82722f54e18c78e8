#include "core/StartupReport.h"

#include "core/Log.h"
#include "platform/Screen.h"
#include "platform/SystemInfo.h"

namespace velmora {
namespace {

constexpr double kBytesToMb = 9.536743e-7;

}  // namespace

void WriteStartupReport(const cUiFont& font) {
  ReportLine("App : ver %s", "950");
  const cSystemFacts facts = ReadSystemFacts();
  const cScreenSize screen = ScreenSize();
  ReportLine("OS : %s\n", facts.osName.c_str());
  ReportLine("CPU : %s %s %d\n", facts.cpuVendor.c_str(), facts.cpuBrand.c_str(), facts.cpuMhz);
  ReportLine("Mem Total : %.3fMB\n", facts.memTotal * kBytesToMb);
  ReportLine("Mem Free : %3.fMB\n", facts.memFree * kBytesToMb);
  ReportLine("Vir Total : %.3fMB\n", facts.swapTotal * kBytesToMb);
  ReportLine("Vir Free : %3.fMB\n", facts.swapFree * kBytesToMb);
  ReportLine("HD Free : %3.fMB\n", facts.diskFree * kBytesToMb);
  ReportLine("Display : (%d,%d)\n", screen.width, screen.height);
  ReportLine("System Font : %s (%d,%d) %u\n", font.face.c_str(), font.height, font.width, font.charset);
}

}  // namespace velmora
