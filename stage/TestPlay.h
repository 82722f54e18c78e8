#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

class cMessageReceiver;

// What a test play needs from the windows, the stage history and the
// system. The GUI installs its own; the default one starts real processes
// and reads the real clock, and leaves the windows alone.
class cTestPlayHost {
 public:
  virtual ~cTestPlayHost() = default;
  virtual uint32_t Now();
  // Starts `program` (a stored path) with `args` in the project folder.
  virtual bool StartGame(const std::string& program, const std::vector<std::string>& args);
  // Drops the undo history of the edit stage.
  virtual void ClearHistory();
  // Builds the undo history of the edit stage anew for its stored depth.
  virtual void AllocHistory();
  virtual void RedrawStageWindow() {}
  virtual void ActivateStageWindow() {}
  // Stops the idle drawing while the game has the screen.
  virtual void ClearActiveFlag() {}
  // A test play began or ended: the windows say whether one runs.
  virtual void ShowTestPlayState() {}
};

cTestPlayHost& TestPlayHost();
// Installs `host` (not owned); null brings back the default.
void SetTestPlayHost(cTestPlayHost* host);

// A held key repeats the command; within this time a second start is
// taken for that and ignored without a word.
inline constexpr uint32_t kTestPlayRepeatMs = 3000;

// The identifier of the game's message that it has ended.
inline constexpr uint32_t kGameEndedMessage = 0;

// The test play of the current stage (whole 0) or of the whole game
// (whole 1). 1 when the game was started.
int TestPlay(int whole);

// The game's end message.
void OnTestPlayEnd();

// Takes every waiting message of a game from `receiver`; the GUI calls it
// whenever the receiver's descriptor is readable.
void TakeGameMessages(cMessageReceiver& receiver);

// Collects the ended child processes; the end of a game started through
// wine ends its test play, as such a game can't send the end message. The
// GUI calls it whenever a child process has ended.
void TakeEndedGames();

}  // namespace velmora
