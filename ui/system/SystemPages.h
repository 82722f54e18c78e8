#pragma once
#include <memory>

namespace velmora {

class cDialog;
class cDialogManager;
class cEdSystem;

// The pages of the system window, in tab order, each over the sheet's
// working copy `work`.
std::unique_ptr<cDialog> MakeGeneralPage(cDialogManager& manager, cEdSystem& work);
std::unique_ptr<cDialog> MakeModesPage(cDialogManager& manager, cEdSystem& work);
std::unique_ptr<cDialog> MakeSoundsPage(cDialogManager& manager, cEdSystem& work);
std::unique_ptr<cDialog> MakeStatusPage(cDialogManager& manager, cEdSystem& work);
std::unique_ptr<cDialog> MakeTermsPage(cDialogManager& manager, cEdSystem& work);
std::unique_ptr<cDialog> MakeIniPage(cDialogManager& manager, cEdSystem& work);
// Pages 7 to 10: `part` 0 to 3 of the compatibility flags.
inline constexpr int kCompatPageCount = 4;
std::unique_ptr<cDialog> MakeCompatPage(cDialogManager& manager, cEdSystem& work, int part);

}  // namespace velmora
