#pragma once
#include "objects/LabelTable.h"

namespace velmora {

// The words the system pages show for the rows of the system record's
// parts and for its enumerations, each table in the order of its part.

// The faces the game can draw its texts in, by the row `m_iFont` stores.
extern const cLabelTable SystemFontTable;
inline constexpr int kDefaultSystemFont = 60;  // ＭＳ Ｐゴシック

extern const cLabelTable StockTable;          // m_abStock, m_abStockReset
extern const cLabelTable SystemSoundTable;    // m_vecSounds
extern const cLabelTable SystemBgmTable;      // m_aiBgm, m_abBgmLoop
extern const cLabelTable GaugeTable;          // m_vecGauges
extern const cLabelTable RankColumnTable;     // m_abColumns of a ranking
extern const cLabelTable SystemOptionTable;   // m_vecOptions, by row
extern const cLabelTable CharaDrawTable;      // m_iCharaDraw
extern const cLabelTable ReplayFileNameTable; // m_iReplayFileName
extern const cLabelTable BmpDepthTable;       // m_iBmpDepth
extern const cLabelTable ScreenBppTable;      // m_iBppD3D, m_iBppDD
extern const cLabelTable BarUnitTable;        // m_bBarPercent

// How many characters a term of `m_vecTerms` may have.
int TermCharLimit(int term);

}  // namespace velmora
