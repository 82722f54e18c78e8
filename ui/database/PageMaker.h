#pragma once
#include <memory>

#include "project/DatabaseWork.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// The pages of the database window, each over its list in the window's
// copy of the lists.
class cAnimeSetPage;
class cAnimePage;
class cCharaBmpPage;
class cSwordTypePage;
class cEffectPage;
class cCharaEffectPage;
class cScrEffectPage;
class cPicturePage;
class cSoundPage;
class cBgmPage;
class cWorldChipPage;

// Makes a page. The file of each page makes this for its class, so that
// the sheet needs no more than the class's name.
template <class Page>
std::unique_ptr<cDialog> MakePage(cDialogManager& manager, cDatabaseWork& work);

}  // namespace velmora
