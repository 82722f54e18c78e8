#include "objects/InheritGroups.h"

namespace velmora {
namespace {

// Copies the named members from the source entry.
template <class T, auto... Members>
void Copy(T& to, const T& from) {
  ((to.*Members = from.*Members), ...);
}

void CopyFlows(cEdChara& to, const cEdChara& from) {
  to.m_vFlow = from.m_vFlow;
  // A character always has a flow to edit.
  if (to.m_vFlow.empty()) to.m_vFlow.emplace_back();
}

using B = cEdBlock;
using C = cEdChara;
using I = cEdItem;

const cInheritGroup<B> kBlockGroups[kBlockInheritGroups] = {
    {"ブロック名", &Copy<B, &B::m_strName>},
    {"出現条件", &Copy<B, &B::m_vCond, &B::m_nCondJudge, &B::m_bCondLatch>},
    {"グラフィック", &Copy<B, &B::m_nGraphicKind, &B::m_nGraphicNo, &B::m_nGraphicFrame>},
    {"キャラより手前に表示", &Copy<B, &B::m_bFront>},
    {"透明", &Copy<B, &B::m_nTransparent>},
    {"マーク", &Copy<B, &B::m_nMarkShow, &B::m_nMarkNo>},
    {"ブロックタイプ", &Copy<B, &B::m_nBlockType>},
    {"無効勢力", &Copy<B, &B::m_nNoHitForce>},
    {"アクション", &Copy<B, &B::m_nAction, &B::m_nActionX>},
    {"取得アイテム", &Copy<B, &B::m_nGetItemSrc, &B::m_nGetItemNo>},
    {"ブロック召喚を無効化", &Copy<B, &B::m_bNoSummon>},
};

const cInheritGroup<C> kCharaGroups[kCharaInheritGroups] = {
    {"キャラ名", &Copy<C, &C::m_strName>},
    {"操作", &Copy<C, &C::m_nControl, &C::m_nPlayerNo>},
    {"勢力", &Copy<C, &C::m_nForce>},
    {"キャラID", &Copy<C, &C::m_nCharaId>},
    {"出現条件", &Copy<C, &C::m_vCond, &C::m_nCondJudge, &C::m_bCondLatch>},
    {"右向き", &Copy<C, &C::m_bFaceRight>},
    {"分身数", &Copy<C, &C::m_nCloneCount>},
    {"初期位置のズレX", &Copy<C, &C::m_nOffsetX, &C::m_nOffsetXClone, &C::m_bOffsetXFlip>},
    {"初期位置のズレY", &Copy<C, &C::m_nOffsetY, &C::m_nOffsetYClone, &C::m_bOffsetYFlip>},
    {"グラフィック", &Copy<C, &C::m_nGraphicKind, &C::m_nGraphicNo, &C::m_nGraphicShift>},
    {"アニメセット", &Copy<C, &C::m_nAnimeSet>},
    {"Z座標", &Copy<C, &C::m_nZ>},
    {"透明", &Copy<C, &C::m_nTransparent>},
    {"初期エフェクト", &Copy<C, &C::m_nStartEffect, &C::m_nStartEffectMode, &C::m_bStartEffectLoop>},
    {"死亡エフェクト", &Copy<C, &C::m_nDeathEffect, &C::m_nDeathEffectMode>},
    {"マーク", &Copy<C, &C::m_nMarkShow, &C::m_nMarkNo>},
    {"向き固定", &Copy<C, &C::m_bFixDir>},
    {"飛行", &Copy<C, &C::m_nFly>},
    {"無敵", &Copy<C, &C::m_nInvincible, &C::m_nInvincibleFx>},
    {"ブロック", &Copy<C, &C::m_nBlock>},
    {"巨大化", &Copy<C, &C::m_nGiant>},
    {"オートスクロールとシンクロ", &Copy<C, &C::m_bAutoScrollSync>},
    {"視界", &Copy<C, &C::m_nSightType, &C::m_nSightRange>},
    {"HP", &Copy<C, &C::m_nHp>},
    {"SP", &Copy<C, &C::m_nSp>},
    {"体当たりの当たり判定", &Copy<C, &C::m_nBodyHitRange>},
    {"体当たりの威力", &Copy<C, &C::m_nBodyPower>},
    {"体当たりの衝撃", &Copy<C, &C::m_nBodyImpact>},
    {"体当たりのエフェクト", &Copy<C, &C::m_nBodyEffect>},
    {"防御力", &Copy<C, &C::m_nDefense>},
    {"衝撃耐性", &Copy<C, &C::m_nImpactResist>},
    {"止まりやすさ", &Copy<C, &C::m_nStopEase>},
    {"行動条件", &Copy<C, &C::m_nActRange, &C::m_nActJudge>},
    {"グループ", &Copy<C, &C::m_nGroupNo, &C::m_bGroup>},
    {"スコア", &Copy<C, &C::m_nScore>},
    {"アイテムを所持", &Copy<C, &C::m_bHoldItem>},
    {"行動", &CopyFlows},
};

const cInheritGroup<I> kItemGroups[kItemInheritGroups] = {
    {"アイテム名", &Copy<I, &I::m_strName>},
    {"出現条件", &Copy<I, &I::m_vCond, &I::m_nCondJudge, &I::m_bCondLatch>},
    {"初期位置のズレX", &Copy<I, &I::m_nOffsetX>},
    {"初期位置のズレY", &Copy<I, &I::m_nOffsetY>},
    {"グラフィック", &Copy<I, &I::m_nGraphicKind, &I::m_nGraphicNo, &I::m_nGraphicFrame>},
    {"Z座標", &Copy<I, &I::m_nZ>},
    {"透明", &Copy<I, &I::m_nTransparent>},
    {"マーク", &Copy<I, &I::m_nMarkShow, &I::m_nMarkNo>},
    {"巨大化", &Copy<I, &I::m_nGiant>},
    {"取得タイプ", &Copy<I, &I::m_nGetType>},
    {"キャラの頭上にアイテム表示", &Copy<I, &I::m_bGetShow>},
    {"効果音", &Copy<I, &I::m_nGetSound>},
    {"効果", &Copy<I, &I::m_vCmd>},
};

}  // namespace

std::span<const cInheritGroup<cEdBlock>> BlockInheritGroups() { return kBlockGroups; }
std::span<const cInheritGroup<cEdChara>> CharaInheritGroups() { return kCharaGroups; }
std::span<const cInheritGroup<cEdItem>> ItemInheritGroups() { return kItemGroups; }

}  // namespace velmora
