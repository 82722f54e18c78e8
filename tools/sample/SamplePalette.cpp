#include "sample/SamplePalette.h"

#include "objects/CmdTable.h"
#include "objects/Palette.h"
#include "platform/TextCodec.h"

namespace velmora::sample {
namespace {

cEdBlock MakeBlock(const char* name, int graphic, int type) {
  cEdBlock block;
  block.m_strName = ToCp932(name);
  block.m_nGraphicNo = static_cast<int16_t>(graphic);
  block.m_nBlockType = static_cast<uint8_t>(type);
  return block;
}

cEdCmd MakeCmd(int kind, int time) {
  cEdCmd cmd;
  cmd.SetUpNew(kind, false);
  cmd.m_nTime = static_cast<int16_t>(time);
  return cmd;
}

cEdChara MakeEnemy() {
  cEdChara enemy;
  enemy.m_strName = ToCp932("スライム");
  enemy.m_nGraphicNo = 2;
  enemy.m_nForce = 2;
  enemy.m_nHp = 3;
  enemy.m_nBodyPower = 1;
  cEdFlow walk;
  walk.m_strMemo = ToCp932("左右に歩いて、ときどき跳ねる");
  walk.m_vCmd = {MakeCmd(kCmdLine, 20), MakeCmd(kCmdTurn, 1), MakeCmd(kCmdJump, 10), MakeCmd(kCmdWait, 5)};
  enemy.m_vFlow = {walk};
  return enemy;
}

cEdChara MakePlayer() {
  cEdChara player;
  player.m_strName = ToCp932("ヴェルモラ");
  player.m_nGraphicNo = 1;
  player.m_nControl = 0;
  player.m_bFaceRight = 1;
  player.m_nHp = 5;
  return player;
}

cEdItem MakeCoin() {
  cEdItem coin;
  coin.m_strName = ToCp932("コイン");
  coin.m_nGraphicNo = 1;
  coin.m_nGetType = 0;
  cEdCmd score;
  score.SetUpNew(kCmdStatusOp - kItemKindOffset, true);
  coin.m_vCmd = {score};
  return coin;
}

}  // namespace

void FillSampleCommonPalette() {
  cPalette& palette = CommonPalette();
  palette.m_vecBlockPlt = {cEdBlock(), MakeBlock("地面", 1, 1), MakeBlock("レンガ", 2, 1), MakeBlock("トゲ", 3, 2)};
  palette.m_vecCharaPlt = {cEdChara(), MakePlayer(), MakeEnemy()};
  palette.m_vecItemPlt = {cEdItem(), MakeCoin()};
}

}  // namespace velmora::sample
