// A script driven through real objects beside the edited track, a few frames at a time: the
// document, the picture and the car of the window stay as they are.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "drive/key_script.h"
#include "drive/object_drive.h"
#include "level/globals.h"
#include "platform/clock.h"
#include "platform/device.h"
#include "platform/keyboard.h"
#include "play/clsPlayer.h"

namespace drive {

class ObjectReplay {
 public:
  /// Of the track in the document, in edit mode. Throws std::runtime_error when it cannot be
  /// entered.
  explicit ObjectReplay(KeyScript script);
  ~ObjectReplay();
  ObjectReplay(const ObjectReplay&) = delete;
  ObjectReplay& operator=(const ObjectReplay&) = delete;

  /// Runs so many frames more; how the run ended, or nothing while it goes on.
  std::optional<Ending> Advance(int frames);

 private:
  class Inside;
  void Exchange();

  KeyScript script_;
  KeyReader keys_;
  // What is not in use: outside of Advance the replay's, inside the window's.
  LevelDocument document_;
  std::unique_ptr<Device> device_;
  clsPlayer player_;
  clsParticles particles_;
  std::function<void()> trackReplaced_;
  Vector3 cameraPosition_, cameraTarget_;
  bool onGround_ = false;
  KeyboardState keyState_{};
  Clock* clock_ = nullptr;
  std::unique_ptr<ObjectDrive> drive_;
};

}  // namespace drive
